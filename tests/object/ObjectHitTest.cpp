// Is a point on an object, in which region, and what its script is told.
#include <gtest/gtest.h>

#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectHit : public ::testing::TestWithParam<DrawingPath> {
 protected:
  // The door notes every text that its script gets.
  TestObject& Door() { return bench_.Object("door").State("default", "nothing", "still", "note"); }
  TestedObject At(const std::string& name, int x, int y) {
    TestedObject object = bench_.LoadOn(name);
    object->Setxpos(static_cast<std::int16_t>(x));
    object->Setypos(static_cast<std::int16_t>(y));
    return object;
  }
  // The region that a point is in.
  static std::string Region(const TestedObject& object, int x, int y) {
    std::string text =
        object->PeekCurrentState(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), "!");
    EXPECT_TRUE(text.ends_with('!')) << text;
    return text.substr(0, text.size() - 1);
  }
  bool On(const TestedObject& object, int x, int y) {
    return object->AreWeOnTheObject(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
  }

  ObjectBench bench_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(BothPaths, ObjectHit,
                         ::testing::Values(DrawingPath::kDirectDraw, DrawingPath::kWindow),
                         [](const auto& test) {
                           return test.param == DrawingPath::kWindow ? "Window" : "DirectDraw";
                         });

TEST_P(ObjectHit, TheEdgesOfAFrameDoNotCount) {
  Door().Still(10, 20);
  TestedObject door = At("door", 100, 50);
  EXPECT_TRUE(On(door, 101, 51));
  EXPECT_TRUE(On(door, 109, 69));
  for (auto [x, y] : {std::pair{100, 60}, {110, 60}, {105, 50}, {105, 70}, {99, 60}, {111, 60}}) {
    EXPECT_FALSE(On(door, x, y)) << x << "," << y;
  }
}

TEST_P(ObjectHit, TheOuterBoxIsThatOfTheFirstFrameAndItsFarEdgesCount) {
  // The second frame reaches 30 pixels; the box cuts it behind 10.
  Door()
      .Frame("a", {0, 0, 10, 10})
      .Frame("b", {0, 0, 30, 30})
      .Animation("still", 9, "loop", {"a", "b"});
  TestedObject door = At("door", 100, 50);
  EXPECT_TRUE(On(door, 110, 60)) << "dx = width, dy = height";
  EXPECT_FALSE(On(door, 111, 55));
  EXPECT_FALSE(On(door, 105, 61));
  EXPECT_FALSE(On(door, 99, 55));
  EXPECT_FALSE(On(door, 105, 49));
}

TEST_P(ObjectHit, ADrawSizeIsTheOuterBox) {
  Door().Frame("a", {0, 0, 30, 30}, "stable/5", "stable/40").Animation("still", 9, "loop", {"a"});
  TestedObject door = At("door", 0, 0);
  EXPECT_TRUE(On(door, 5, 29));
  EXPECT_FALSE(On(door, 6, 29));
  EXPECT_FALSE(On(door, 5, 35)) << "inside the box, outside the frame";
}

TEST_P(ObjectHit, MinusOneAsksOnlyAboutTheHorizontal) {
  Door().Still(10, 20);
  TestedObject door = At("door", 100, 50);
  EXPECT_TRUE(On(door, 100, -1));
  EXPECT_TRUE(On(door, 109, -1));
  EXPECT_FALSE(On(door, 110, -1)) << "here the far edge is open";
  EXPECT_FALSE(On(door, 99, -1));
  door->Setypos(-10);
  EXPECT_TRUE(On(door, 100, -1)) << "also where the object really stands at that height";
}

TEST_P(ObjectHit, FramesPlacedElsewhereAreHitThere) {
  Door()
      .Frame("box", {0, 0, 60, 60})
      .Frame("far", {0, 0, 10, 10}, "40", "stable+30")
      .Animation("still", 9, "loop", {"far", "far"});
  // Only the first frame moves the object: it stands at 40,30 and shows a step further down.
  TestedObject door = bench_.LoadOn("door");
  ASSERT_EQ(door->xpos(), 40);
  ASSERT_EQ(door->ypos(), 30);
  EXPECT_FALSE(On(door, 45, 35)) << "one step ahead of its place";
  door->Setheight(100);
  EXPECT_TRUE(On(door, 45, 65)) << "placement 30 + 30";
}

TEST_P(ObjectHit, WithoutFramesNothingIsHitButTheHorizontal) {
  bench_.Object("door").Still(10, 20).State("default");
  TestedObject door = At("door", 100, 50);
  EXPECT_FALSE(On(door, 105, 55));
  EXPECT_TRUE(On(door, 105, -1));
}

TEST_P(ObjectHit, TransparentPixelsHitInThePathOfSurfacesOnly) {
  Door()
      .Picture(Drawn({"kkk", "krk", "kkk", "kgk"}))
      .Frame("a", {0, 0, 3, 4})
      .Animation("still", 9, "loop", {"a"});
  TestedObject door = At("door", 10, 10);
  EXPECT_TRUE(On(door, 11, 11));
  EXPECT_EQ(On(door, 12, 12), GetParam() == DrawingPath::kDirectDraw);
}

TEST_P(ObjectHit, ALaterFrameIsAskedWhereAnEarlierIsTransparent) {
  Door()
      .Picture(Drawn({"kkkrrr", "kkkrrr", "kkkrrr"}))
      .Frame("clear", {0, 0, 3, 3})
      .Frame("red", {3, 0, 3, 3})
      .Animation("still", 9, "loop", {"clear", "red"});
  EXPECT_TRUE(On(At("door", 10, 10), 11, 11));
}

TEST_P(ObjectHit, OutsideThePictureEveryPointHits) {
  Door()
      .Picture(Drawn({"kk", "kk"}))
      .Frame("a", {0, 0, 10, 10})
      .Animation("still", 9, "loop", {"a"});
  EXPECT_TRUE(On(At("door", 0, 0), 5, 5));
}

TEST_P(ObjectHit, ForARegionThePixelIsLookedUpInTheFramesOwnPartOfThePicture) {
  const bool surfaces = GetParam() == DrawingPath::kDirectDraw;
  Door()
      .Picture(Drawn({"kkkkrrrr", "kkkkrrrr", "kkkkrrrr", "kkkkrrrr"}))
      .Frame("clear", {0, 0, 4, 4})
      .Frame("red", {4, 0, 4, 4})
      .Region("clear", "left", 0, 0, 4, 4)
      .Region("red", "right", 0, 0, 4, 4)
      .Animation("still", 9, "loop", {"red", "clear"});
  TestedObject door = At("door", 10, 10);
  ASSERT_TRUE(On(door, 12, 12));
  EXPECT_EQ(Region(door, 12, 12), surfaces ? "left" : "right");
}

TEST_P(ObjectHit, RegionsCountTheirEdgesAndThoseOfTheFrame) {
  Door().Still(10, 20).Region("all", "whole", 0, 0, 10, 20).Region("all", "head", 2, 2, 4, 4);
  TestedObject door = At("door", 100, 50);
  GameObject& inner = door->Inner();
  door->Setwidth(50);
  EXPECT_EQ(Region(door, 102, 52), "head");
  EXPECT_EQ(Region(door, 104, 54), "head");
  EXPECT_EQ(Region(door, 105, 54), "whole");
  EXPECT_EQ(inner.CurrentRegion(), "whole");
}

TEST_P(ObjectHit, APointOnTheEdgeOfAFrameIsNotOnItButCanBeInItsRegions) {
  Door()
      .Frame("ground", {0, 0, 40, 40})
      .Frame("part", {0, 0, 10, 10}, "5", "6")
      .Region("part", "arm", 0, 0, 10, 10)
      .Animation("still", 9, "loop", {"ground", "part"});
  TestedObject door = At("door", 0, 0);
  for (auto [x, y] : {std::pair{5, 10}, {15, 10}, {10, 6}, {10, 16}, {5, 6}, {15, 16}}) {
    EXPECT_EQ(Region(door, x, y), "arm") << x << "," << y;
  }
  for (auto [x, y] : {std::pair{4, 10}, {16, 10}, {10, 5}, {10, 17}}) {
    EXPECT_EQ(Region(door, x, y), "") << x << "," << y;
  }
}

TEST_P(ObjectHit, TheLastRegionAndTheLastFrameWin) {
  Door()
      .Frame("a", {0, 0, 20, 20})
      .Frame("b", {0, 0, 20, 20})
      .Region("a", "under", 0, 0, 20, 20)
      .Region("b", "one", 0, 0, 9, 20)
      .Region("b", "two", 5, 0, 9, 20)
      .Animation("still", 9, "loop", {"a", "b"});
  TestedObject door = At("door", 0, 0);
  EXPECT_EQ(Region(door, 3, 3), "one");
  EXPECT_EQ(Region(door, 5, 3), "two");
  EXPECT_EQ(Region(door, 12, 3), "") << "the frame under it isn't asked";
}

TEST_P(ObjectHit, ATransparentPixelLeavesTheRegionToTheFrameBelowInTheWindowPathOnly) {
  Door()
      .Picture(Drawn({"rrrkkk", "rrrkrk", "rrrkkk"}))
      .Frame("under", {0, 0, 3, 3})
      .Frame("over", {3, 0, 3, 3})
      .Region("under", "coat", 0, 0, 3, 3)
      .Region("over", "badge", 0, 0, 3, 3)
      .Animation("still", 9, "loop", {"under", "over"});
  TestedObject door = At("door", 10, 10);
  EXPECT_EQ(Region(door, 11, 11), "badge") << "a red pixel of it";
  EXPECT_EQ(Region(door, 12, 12), GetParam() == DrawingPath::kWindow ? "coat" : "badge");
}

TEST_P(ObjectHit, TheRegionIsKeptWhenTheFrameHasRegionsAndNoneMatches) {
  Door().Still(20, 20).Region("all", "head", 0, 0, 5, 5);
  TestedObject door = At("door", 0, 0);
  ASSERT_EQ(Region(door, 3, 3), "head");
  EXPECT_EQ(Region(door, 10, 10), "");
  EXPECT_EQ(door->Inner().CurrentRegion(), "head");
}

TEST_P(ObjectHit, TheRegionIsClearedByAFrameWithoutRegions) {
  Door()
      .Frame("a", {0, 0, 20, 20})
      .Frame("b", {0, 0, 20, 20})
      .Region("a", "head", 0, 0, 20, 20)
      .Animation("still", 9, "loop", {"a"})
      .Animation("other", 9, "loop", {"b"})
      .State("other", "nothing", "other");
  TestedObject door = At("door", 0, 0);
  ASSERT_EQ(Region(door, 3, 3), "head");
  door->ProcessState("other");
  EXPECT_EQ(Region(door, 3, 3), "");
  EXPECT_EQ(door->Inner().CurrentRegion(), "");
}

TEST_P(ObjectHit, TheRegionIsClearedWithoutAHitFrame) {
  Door().Still(20, 20).Region("all", "head", 0, 0, 20, 20);
  TestedObject door = At("door", 100, 100);
  ASSERT_EQ(Region(door, 103, 103), "head");
  // The horizontal alone is asked: on the object, and on no frame.
  EXPECT_EQ(Region(door, 103, -1), "");
  EXPECT_EQ(door->Inner().CurrentRegion(), "");
}

TEST_P(ObjectHit, RegionsFollowAMovingObject) {
  Door().Still(20, 20).Region("all", "head", 2, 2, 4, 4);
  TestedObject door = At("door", 0, 0);
  EXPECT_EQ(Region(door, 3, 3), "head");
  door->Setxpos(100);
  EXPECT_EQ(Region(door, 103, 3), "head");
}

TEST_P(ObjectHit, PeekGivesRegionAndActionOrNothingAndRunsNoScript) {
  Door().Still(20, 20).Region("all", "Head", 2, 2, 4, 4).Script("note", "begin\nmtp no\nend\n");
  TestedObject door = At("door", 0, 0);
  EXPECT_EQ(door->PeekCurrentState(3, 3, "Click"), "HeadClick");
  EXPECT_EQ(door->PeekCurrentState(10, 10, "Click"), "Click");
  EXPECT_EQ(door->PeekCurrentState(30, 30, "Click"), "nothing");
  door->SetVisible(false);
  EXPECT_EQ(door->PeekCurrentState(3, 3, "Click"), "HeadClick") << "visibility isn't asked";
  EXPECT_TRUE(bench_.top->messages.empty());
}

// Events: each object of a tree notes the pattern that its script matched.

class ObjectEvents : public ::testing::Test {
 protected:
  // An object whose script sends "NAME-WORD" upward for the text that it gets.
  TestObject& Noter(const std::string& name, int width = 20, int height = 20) {
    const std::string text =
        "begin\n"
        "if action = headclick\nmtp <objectname>-region\n"
        "elseif action = click\nmtp <objectname>-hit\n"
        "elseif action = clicknot\nmtp <objectname>-not\n"
        "else\nmtp <objectname>-other\n"
        "endif\nend\n";
    return bench_.Object(name)
        .Still(width, height)
        .State("default", "nothing", "still", "note")
        .Script("note", text);
  }
  Lines Event(const TestedObject& object, int x, int y) {
    bench_.top->messages.clear();
    object->UpdateGameObject(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                             ActionText("click"));
    return bench_.top->messages;
  }
  ObjectBench bench_;
};

TEST_F(ObjectEvents, TheTextHasTheRegionInFrontOrNotBehind) {
  Noter("door").Region("all", "head", 2, 2, 4, 4);
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(Event(door, 3, 3), (Lines{"door-region"}));
  EXPECT_EQ(Event(door, 10, 10), (Lines{"door-hit"}));
  EXPECT_EQ(Event(door, 30, 30), (Lines{"door-not"}));
}

TEST_F(ObjectEvents, AnInvisibleObjectOnWhichTheWalkStartsRunsTheNotForm) {
  Noter("door");
  TestedObject door = bench_.LoadOn("door");
  door->SetVisible(false);
  EXPECT_EQ(Event(door, 10, 10), (Lines{"door-not"}));
  EXPECT_EQ(Event(door, -1, -1), (Lines{"door-not"}));
}

TEST_F(ObjectEvents, WithoutAPositionAVisibleObjectGetsTheBareText) {
  Noter("door").Region("all", "head", 0, 0, 20, 20);
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(Event(door, -1, -1), (Lines{"door-hit"}));
}

TEST_F(ObjectEvents, ChildrenGetTheUnchangedActionAtTheirOwnCoordinates) {
  Noter("a");
  Noter("b");
  Noter("hall", 100, 100).Child("a", "xpos_10 ypos_10").Child("b", "xpos_40 ypos_10");
  TestedObject hall = bench_.LoadOn("hall");
  hall->Setxpos(100);
  hall->Setypos(200);
  EXPECT_EQ(Event(hall, 115, 215), (Lines{"hall-hit", "a-hit", "b-not"}));
  EXPECT_EQ(Event(hall, 145, 215), (Lines{"hall-hit", "a-not", "b-hit"}));
  EXPECT_EQ(Event(hall, 15, 15), (Lines{"hall-not", "a-not", "b-not"}));
}

TEST_F(ObjectEvents, InvisibleChildrenAndWhatHangsBelowThemAreNotReached) {
  Noter("leaf");
  Noter("branch").Child("leaf");
  Noter("hall").Child("branch", "visible_off");
  TestedObject hall = bench_.LoadOn("hall");
  EXPECT_EQ(Event(hall, 10, 10), (Lines{"hall-hit"}));
}

TEST_F(ObjectEvents, ChildrenOfAnInvisibleStartAreReached) {
  Noter("leaf");
  Noter("hall").Child("leaf");
  TestedObject hall = bench_.LoadOn("hall");
  hall->SetVisible(false);
  EXPECT_EQ(Event(hall, 10, 10), (Lines{"hall-not", "leaf-hit"}));
}

TEST_F(ObjectEvents, ASumOfPositionsIsAskedOfGrandchildren) {
  Noter("leaf");
  Noter("branch", 100, 100).Child("leaf", "xpos_10");
  Noter("hall", 200, 200).Child("branch", "xpos_50");
  TestedObject hall = bench_.LoadOn("hall");
  hall->Setxpos(100);
  EXPECT_EQ(Event(hall, 165, 5), (Lines{"hall-hit", "branch-hit", "leaf-hit"}));
}

TEST_F(ObjectEvents, BelowAnObjectThatIsNotAtTheOriginNoPositionBecomesOne) {
  Noter("leaf", 200, 20);
  Noter("hall").Child("leaf");
  TestedObject hall = bench_.LoadOn("hall");
  EXPECT_EQ(Event(hall, -1, -1), (Lines{"hall-hit", "leaf-hit"})) << "at the origin";
  hall->Setxpos(5);
  hall->Setypos(5);
  EXPECT_EQ(Event(hall, -1, -1), (Lines{"hall-hit", "leaf-not"})) << "asked at -6, -6";
  hall->Setypos(0);
  hall->Setxpos(-50);
  EXPECT_EQ(Event(hall, -1, -1), (Lines{"hall-hit", "leaf-hit"}))
      << "asked at 49, -1: the horizontal only";
  hall->Setxpos(5);
  EXPECT_EQ(Event(hall, -1, -1), (Lines{"hall-hit", "leaf-not"}));
}

TEST_F(ObjectEvents, AChildMovedByItsParentsScriptIsAskedAtItsNewPlace) {
  Noter("leaf");
  Noter("hall").Child("leaf");
  TestedObject hall = bench_.LoadOn("hall");
  bench_.top->on_message = [&](const std::string&) { hall->Setxpos(-10); };
  EXPECT_EQ(Event(hall, 15, 5), (Lines{"hall-hit", "leaf-not"}));
}

TEST_F(ObjectEvents, OnlyTheMessageOfTheScriptsTargetClimbs) {
  Noter("leaf");
  Noter("hall").Child("leaf");
  TestedObject hall = bench_.LoadOn("hall");
  Event(hall, 10, 10);
  EXPECT_EQ(bench_.top->senders, (Lines{"hall", "hall"})) << "the hall passes the leaf's on";
}

}  // namespace
}  // namespace quendle
