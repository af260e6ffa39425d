#include "diagnostics/Sidecar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/TextStream.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

StateSnapshot Hall() {
  return {{{"(game)", {{"screen", "hall"}}},
           {"hall/dog", {{"frames", ""}, {"state", "default"}, {"x", "5"}}}}};
}

StateSnapshot Room() {
  return {{{"(game)", {{"screen", "room"}}}, {"room/cat", {{"state", "a = b"}}}}};
}

// A recording whose states are these, a second apart.
Sidecar Of(const std::vector<StateSnapshot>& snapshots, bool ended = true) {
  Sidecar sidecar;
  StateSnapshot last;
  for (const StateSnapshot& snapshot : snapshots) {
    sidecar.last_time += 1000;
    sidecar.states.push_back(
        {sidecar.last_time, HashOfSnapshot(snapshot), ChangesBetween(last, snapshot)});
    last = snapshot;
  }
  sidecar.ended = ended;
  return sidecar;
}

std::string Text(const Sidecar& sidecar) {
  std::string bytes;
  TextComposer stream(bytes);
  WriteConditions(stream, sidecar.conditions);
  for (const SidecarMoment& moment : sidecar.moments) WriteMoment(stream, moment);
  for (const SidecarState& state : sidecar.states) WriteState(stream, state);
  if (sidecar.ended) WriteEnd(stream, sidecar.last_time);
  return bytes;
}

Sidecar Read(const std::string& text) {
  TextReader stream(text, "tour.sidecar.txt");
  return ReadSidecar(stream);
}

std::string Fault(const std::string& text) {
  try {
    Read(text);
  } catch (const FatalError& error) {
    return error.what();
  }
  return "(none)";
}

std::string Difference(const Sidecar& expected, const Sidecar& found) {
  const auto difference = FirstDifference(expected, found);
  return difference ? DescribeDifference(*difference) : "(none)";
}

TEST(Sidecar, ItsNameIsMadeOfTheSessions) {
  EXPECT_EQ(SidecarNameOf("tour.txt"), "tour.sidecar.txt");
  EXPECT_EQ(SidecarNameOf("Loop.TXT"), "Loop.sidecar.txt");
  EXPECT_EQ(SidecarNameOf("tour"), "tour.sidecar.txt");
  EXPECT_EQ(SidecarNameOf(".txt"), ".txt.sidecar.txt");
}

TEST(Sidecar, WhatIsWrittenIsRead) {
  Sidecar sidecar = Of({Hall(), Room()});
  SidecarConditions& conditions = sidecar.conditions;
  conditions.version = "1.2";
  conditions.edition = 1;
  conditions.seed = 18446744073709551615U;
  conditions.difficulty = "Easy";
  conditions.safe_mode = true;
  conditions.personalize = true;
  conditions.depth = 16;
  conditions.direct_draw = false;
  conditions.sound = false;
  conditions.interval = 20;
  conditions.clock = 86399999;
  conditions.content = "0123456789abcdef";
  conditions.files = {{"userdata.txt", {"a line", "", "|x"}}, {"HelpSys.txt", {}}};
  sidecar.moments = {{0, SidecarMoment::Kind::kAction, 0},
                     {20, SidecarMoment::Kind::kKey, 27},
                     {30, SidecarMoment::Kind::kFocus, 0},
                     {40, SidecarMoment::Kind::kFocus, 1},
                     {50, SidecarMoment::Kind::kClose, 0}};
  const std::string text = Text(sidecar);
  const Sidecar read = Read(text);
  EXPECT_EQ(Text(read), text);
  EXPECT_EQ(read.moments, sidecar.moments);
  EXPECT_EQ(read.conditions.files, conditions.files);
  EXPECT_EQ(read.conditions.seed, conditions.seed);
  EXPECT_FALSE(read.conditions.direct_draw);
  EXPECT_TRUE(read.ended);
  EXPECT_EQ(read.last_time, 2000);
  EXPECT_EQ(Difference(sidecar, read), "(none)");
}

TEST(Sidecar, ItIsPlainText) {
  Sidecar sidecar;
  sidecar.conditions.files = {{"HelpSys.txt", {"True"}}};
  sidecar.moments = {{530, SidecarMoment::Kind::kAction, 0}, {600, SidecarMoment::Kind::kKey, 27}};
  const std::string text = Text(sidecar);
  EXPECT_THAT(text, testing::StartsWith("quendle sidecar 1\r\nversion"));
  EXPECT_THAT(text, HasSubstr("\r\nfile HelpSys.txt\r\n|True\r\nstart\r\n"));
  EXPECT_THAT(text, testing::EndsWith("action 530\r\nkey 600 27\r\n"));
}

TEST(Sidecar, OnlyWhatHasChangedIsWritten) {
  StateSnapshot later = Hall();
  later.objects["hall/dog"]["x"] = "6";
  EXPECT_THAT(ChangesBetween(Hall(), later), ElementsAre("object hall/dog", " x = 6"));
  EXPECT_THAT(ChangesBetween(Hall(), Hall()), testing::IsEmpty());
  EXPECT_THAT(ChangesBetween(Hall(), Room()),
              ElementsAre("gone hall/dog", "object (game)", " screen = room", "object room/cat",
                          " state = a = b"));
}

TEST(Sidecar, ChangesLeadFromOneStateToTheNext) {
  for (const StateSnapshot& before : {StateSnapshot(), Hall(), Room()}) {
    for (const StateSnapshot& after : {StateSnapshot(), Hall(), Room()}) {
      StateSnapshot snapshot = before;
      ApplyChanges(snapshot, ChangesBetween(before, after));
      EXPECT_EQ(snapshot, after);
    }
  }
}

TEST(Sidecar, AnObjectThatLosesAFieldIsWrittenAnew) {
  StateSnapshot later = Hall();
  later.objects["hall/dog"].erase("frames");
  StateSnapshot snapshot = Hall();
  ApplyChanges(snapshot, ChangesBetween(snapshot, later));
  EXPECT_EQ(snapshot, later);
}

TEST(Sidecar, TheFirstDifferenceIsNamedBySecondObjectAndField) {
  StateSnapshot other = Hall();
  other.objects["hall/dog"]["state"] = "better1";
  EXPECT_EQ(Difference(Of({Hall(), Hall(), Room()}), Of({Hall(), other, Hall()})),
            "second 2: hall/dog: state: expected \"default\", found \"better1\"");
}

TEST(Sidecar, ADifferenceThatWentAwayAgainIsStillTheFirst) {
  StateSnapshot other = Hall();
  other.objects["hall/dog"]["x"] = "7";
  EXPECT_EQ(Difference(Of({Hall(), Hall()}), Of({other, Hall()})),
            "second 1: hall/dog: x: expected \"5\", found \"7\"");
}

TEST(Sidecar, AMissingObjectIsNamed) {
  StateSnapshot other = Hall();
  other.objects.erase("hall/dog");
  EXPECT_EQ(Difference(Of({Hall()}), Of({other})),
            "second 1: hall/dog: expected \"there\", found nothing");
}

TEST(Sidecar, AGameThatEndedEarlierOrLaterIsADifference) {
  EXPECT_EQ(Difference(Of({Hall(), Hall()}), Of({Hall()})),
            "second 2: (game): ended: expected \"off\", found \"on\"");
  EXPECT_EQ(Difference(Of({Hall()}), Of({Hall(), Hall()})),
            "second 2: (game): ended: expected \"on\", found \"off\"");
  EXPECT_EQ(Difference(Of({Hall()}, true), Of({Hall()}, false)),
            "second 1: (game): ended: expected \"on\", found \"off\"");
}

TEST(Sidecar, AStateAtAnotherTimeIsADifference) {
  Sidecar late = Of({Hall()});
  late.states[0].time = 1020;
  EXPECT_EQ(Difference(Of({Hall()}), late),
            "second 1: (game): time: expected \"1\", found \"1.02\"");
}

TEST(Sidecar, AHashThatBelongsToNoLineIsADifference) {
  Sidecar tampered = Of({Hall()});
  tampered.states[0].hash = "0000000000000000";
  EXPECT_THAT(Difference(tampered, Of({Hall()})), HasSubstr("(game): hash: expected \"0000"));
}

TEST(Sidecar, WhatIsNoSidecarIsFatalAndNamesItsLine) {
  EXPECT_THAT(Fault("B\nmc\n"), HasSubstr("tour.sidecar.txt:1"));
  EXPECT_THAT(Fault(""), HasSubstr("tour.sidecar.txt"));
  EXPECT_THAT(Fault("quendle sidecar 2\n"), HasSubstr("is no line of a sidecar"));
  const std::string start = "quendle sidecar 1\nstart\n";
  EXPECT_EQ(Fault(start), "(none)");
  EXPECT_THAT(Fault("quendle sidecar 1\nedition two\nstart\n"), HasSubstr("tour.sidecar.txt:2"));
  EXPECT_THAT(Fault("quendle sidecar 1\n|lost\nstart\n"), HasSubstr("tour.sidecar.txt:2"));
  for (const char* line : {"action", "action soon", "wait 5", "key 5", "focus 5 maybe",
                           "object before-any-state", " x = 5"}) {
    EXPECT_THAT(Fault(start + line + "\n"), HasSubstr("tour.sidecar.txt:3")) << line;
  }
  EXPECT_THROW(
      {
        StateSnapshot snapshot;
        ApplyChanges(snapshot, {" x = 5"});
      },
      FatalError);
}

TEST(Sidecar, ARecordingThatWasCutOffIsReadAsFarAsItGoes) {
  const std::string text = Text(Of({Hall(), Room()}, false));
  const Sidecar read = Read(text.substr(0, text.find("object room/cat")));
  EXPECT_EQ(read.states.size(), 2u);
  EXPECT_FALSE(read.ended);
}

}  // namespace
}  // namespace quendle
