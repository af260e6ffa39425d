#include <new>
#include <utility>

#include "base/WorkDepth.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/ProcessEnds.h"

namespace quendle {
namespace {

class Place : public WorkPlace {
 public:
  explicit Place(std::string path) : path_(std::move(path)) {}
  std::string WorkPath() const override { return path_; }

 private:
  std::string path_;
};

class UnknownPlace : public WorkPlace {
 public:
  std::string WorkPath() const override { throw std::bad_alloc(); }
};

void Nest(WorkDepth& depth, int levels, Work work, const std::string& text) {
  DepthGuard guard(depth, work, text);
  if (levels > 1) Nest(depth, levels - 1, work, text);
}

std::string FaultAtDepth(WorkDepth& depth, int levels, Work work, const std::string& text) {
  try {
    Nest(depth, levels, work, text);
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fault";
}

TEST(WorkDepth, CountsLevelsAndComesBackToNone) {
  WorkDepth depth;
  {
    DepthGuard outer(depth, Work::kLoad, "a.txt");
    DepthGuard inner(depth, Work::kMessage, "show");
    EXPECT_EQ(depth.Depth(), 2);
  }
  EXPECT_EQ(depth.Depth(), 0);
}

TEST(WorkDepth, TakesTwoHundredLevels) {
  WorkDepth depth;
  EXPECT_EQ(FaultAtDepth(depth, 200, Work::kMessage, "ping"), "no fault");
  EXPECT_EQ(depth.Depth(), 0);
}

TEST(WorkDepth, OneLevelMoreIsFatalAndNamesTheWork) {
  const std::string circles = "goes round in circles at ";
  const std::pair<Work, std::string> nouns[] = {
      {Work::kMessage, circles + "message"},
      {Work::kScript, circles + "script line"},
      {Work::kObject, circles + "object file"},
      {Work::kTreeWalk, circles + "walk over the tree"},
      {Work::kLoad, "is nested too deep at file"},
      {Work::kBlock, "is nested too deep at script line"}};
  for (const auto& [work, noun] : nouns) {
    WorkDepth depth;
    EXPECT_EQ(FaultAtDepth(depth, 201, work, "ping"),
              "more than 200 levels deep: the content " + noun + " \"ping\"");
    EXPECT_EQ(depth.Depth(), 0) << "the count is right again after the fault";
  }
}

// Each level of its own text.
void NestNamed(WorkDepth& depth, int levels) {
  const std::string text = "x" + std::to_string(levels);
  DepthGuard guard(depth, Work::kMessage, text);
  if (levels > 1) NestNamed(depth, levels - 1);
}

TEST(WorkDepth, WhatOnlyGoesDeepIsNotCalledACircle) {
  WorkDepth depth;
  try {
    NestNamed(depth, 201);
    FAIL();
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(),
                 "more than 200 levels deep: the content is nested too deep at message \"x1\"");
  }
}

TEST(WorkDepth, LevelsOfOneKindHaveALimitOfTheirOwn) {
  WorkDepth depth;
  const DepthGuard hall(depth, Work::kObject, "hall.txt");
  const DepthGuard walk(depth, Work::kTreeWalk, "hall");
  const DepthGuard door(depth, Work::kObject, "door.txt");
  EXPECT_NO_THROW(door.KeepWithin(2, "objects"));
  const DepthGuard knob(depth, Work::kObject, "knob.txt");
  try {
    knob.KeepWithin(2, "objects");
    FAIL();
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(),
                 "more than 2 objects inside one another: the content is nested too "
                 "deep at object file \"knob.txt\"");
  }
}

std::string FaultAfter(WorkDepth& depth, Work work, int times) {
  try {
    DepthGuard event(depth, Work::kMessage, "ring");
    DepthGuard hall(depth, Work::kScript, "mtp hall");
    for (int i = 0; i < times; ++i) DepthGuard piece(depth, work, "ping");
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fault";
}

TEST(WorkDepth, AnEventThatMultipliesIsFatalAndNamesItsChain) {
  const int most = WorkDepth::MostOf(Work::kScript);
  WorkDepth depth;
  EXPECT_EQ(FaultAfter(depth, Work::kScript, most - 1), "no fault");
  EXPECT_EQ(FaultAfter(depth, Work::kScript, most),
            "more than " + std::to_string(most) +
                " script lines in one event: the content multiplies at mtp hall > ping");
  EXPECT_EQ(depth.Depth(), 0);
}

TEST(WorkDepth, EachOutermostLevelBeginsANewCountButALineAlone) {
  const int most = WorkDepth::MostOf(Work::kScript);
  WorkDepth depth;
  for (int i = 0; i < most; ++i) DepthGuard line(depth, Work::kScript, "change open");
  EXPECT_THROW(DepthGuard(depth, Work::kScript, "change open"), FatalError);
  { DepthGuard walk(depth, Work::kTreeWalk, "draw"); }
  EXPECT_NO_THROW(DepthGuard(depth, Work::kScript, "change open"));
}

TEST(WorkDepth, ALongChainIsToldByItsEnds) {
  WorkDepth depth;
  const std::function<void(int)> nest = [&](int level) {
    const std::string text = std::to_string(level);
    DepthGuard line(depth, Work::kScript, text);
    if (level < 9) return nest(level + 1);
    while (true) DepthGuard last(depth, Work::kScript, "x");
  };
  try {
    nest(1);
  } catch (const FatalError& error) {
    const std::string text = error.what();
    EXPECT_EQ(text.substr(text.find(" at ")), " at 1 > 2 > 3 > ... > 7 > 8 > 9 > x");
  }
}

TEST(WorkDepth, AFaultTellsTheInnermostMessageAndItsObject) {
  WorkDepth depth;
  Place hall("hall");
  Place door("hall/door");
  try {
    DepthGuard outer(depth, Work::kMessage, "toobj_door_open", &hall);
    DepthGuard middle(depth, Work::kMessage, "open", &door);
    throw FatalError("fault");
  } catch (const FatalError&) {
  }
  EXPECT_EQ(depth.FailedObject(), "hall/door");
  EXPECT_EQ(depth.FailedText(), "open");
}

TEST(WorkDepth, LoadsAndWalksGiveTheirObjectAndLeaveTheTextToTheMessageAround) {
  WorkDepth depth;
  Place hall("hall");
  Place door("hall/door");
  try {
    DepthGuard message(depth, Work::kMessage, "cs_hall", &hall);
    DepthGuard load(depth, Work::kLoad, "door.txt", &door);
    DepthGuard walk(depth, Work::kTreeWalk, "draw");
    throw FatalError("fault");
  } catch (const FatalError&) {
  }
  EXPECT_EQ(depth.FailedObject(), "hall/door");
  EXPECT_EQ(depth.FailedText(), "cs_hall");
}

TEST(WorkDepth, ALineWithoutAPlaceTakesTheObjectOfTheLevelAround) {
  WorkDepth depth;
  Place hall("hall");
  try {
    DepthGuard outer(depth, Work::kMessage, "outer", &hall);
    DepthGuard inner(depth, Work::kScript, "change open");
    throw FatalError("fault");
  } catch (const FatalError&) {
  }
  EXPECT_EQ(depth.FailedText(), "change open");
  EXPECT_EQ(depth.FailedObject(), "hall");
}

TEST(WorkDepth, AMessageLeadsBackToTheScriptLineThatSentIt) {
  WorkDepth depth;
  Place door("hall/door");
  const FilePlace line{"Info\\door.txt", 7};
  const FilePlace outer_line{"Info\\outer.txt", 1};
  try {
    DepthGuard outer(depth, Work::kScript, "mtp open", nullptr, &outer_line);
    DepthGuard script(depth, Work::kScript, "mtp cs_attic", &door, &line);
    DepthGuard message(depth, Work::kMessage, "cs_attic");
    throw FatalError("fault");
  } catch (const FatalError&) {
  }
  EXPECT_EQ(depth.FailedText(), "cs_attic");
  EXPECT_EQ(depth.FailedObject(), "hall/door");
  EXPECT_EQ(depth.FailedPlace().file, "Info\\door.txt");
}

TEST(WorkDepth, AFaultTellsWhereItsScriptLineStands) {
  WorkDepth depth;
  const FilePlace line{"Info\\door.txt", 7};
  try {
    DepthGuard message(depth, Work::kMessage, "open");
    DepthGuard script(depth, Work::kScript, "change opne", nullptr, &line);
    throw FatalError("fault");
  } catch (const FatalError&) {
  }
  EXPECT_EQ(depth.FailedPlace().file, "Info\\door.txt");
  EXPECT_EQ(depth.FailedPlace().line, 7);
  depth.ForgetFailure();
  EXPECT_EQ(depth.FailedPlace().file, "");
}

TEST(WorkDepth, WorkThatEndsWellWhileAFaultUnwindsIsNotToldAsItsCause) {
  struct Releasing {
    WorkDepth& depth;
    const Place& place;
    ~Releasing() { DepthGuard guard(depth, Work::kTreeWalk, "release", &place); }
  };
  WorkDepth depth;
  Place hall("hall");
  Place released("hall/released");
  try {
    DepthGuard guard(depth, Work::kMessage, "open", &hall);
    Releasing releasing{depth, released};
    throw FatalError("fault");
  } catch (const FatalError&) {
  }
  EXPECT_EQ(depth.FailedObject(), "hall");
  EXPECT_EQ(depth.FailedText(), "open");
}

TEST(WorkDepth, TheFaultOfTooManyLevelsIsToldLikeAnyOther) {
  WorkDepth depth;
  FaultAtDepth(depth, 201, Work::kMessage, "ping");
  EXPECT_EQ(depth.FailedText(), "ping");
}

TEST(WorkDepth, WithoutAFaultNothingIsTold) {
  WorkDepth depth;
  Place door("hall/door");
  { DepthGuard guard(depth, Work::kMessage, "open", &door); }
  EXPECT_EQ(depth.FailedObject(), "");
  EXPECT_EQ(depth.FailedText(), "");
}

TEST(WorkDepth, TheFirstFaultIsKeptUntilItIsForgotten) {
  WorkDepth depth;
  auto fail = [&](const char* text) {
    try {
      DepthGuard guard(depth, Work::kMessage, text);
      throw FatalError("fault");
    } catch (const FatalError&) {
    }
  };
  fail("first");
  fail("second");
  EXPECT_EQ(depth.FailedText(), "first");
  depth.ForgetFailure();
  EXPECT_EQ(depth.FailedText(), "");
  fail("third");
  EXPECT_EQ(depth.FailedText(), "third");
}

TEST(WorkDepth, TheEndOfTheProcessUnwindsTheCountToo) {
  WorkDepth depth;
  try {
    DepthGuard guard(depth, Work::kMessage, "exitgame");
    throw ProcessEnds{};
  } catch (const ProcessEnds&) {
  }
  EXPECT_EQ(depth.Depth(), 0);
}

TEST(WorkDepth, AFaultThatCannotBeDescribedStillPasses) {
  WorkDepth depth;
  UnknownPlace place;
  EXPECT_THROW(
      {
        DepthGuard guard(depth, Work::kMessage, "open", &place);
        throw FatalError("fault");
      },
      FatalError);
  EXPECT_EQ(depth.Depth(), 0);
}

}  // namespace
}  // namespace quendle
