// Animations of objects: start, steps, end and timers.
#include <gtest/gtest.h>

#include "media/SplineState.h"
#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectAnimation : public ::testing::Test {
 protected:
  // A door with frames a, b, c, and the states "go" and "stay" of those animations.
  TestObject& Door() {
    return bench_.Object("door")
        .Frame("a", {1, 2, 11, 12})
        .Frame("b", {3, 4, 13, 14})
        .Frame("c", {5, 6, 15, 16})
        .Sound("talk")
        .State("default");
  }
  TestedObject Go(const std::string& state = "go") {
    TestedObject door = bench_.LoadOn("door");
    door->ProcessState(state);
    return door;
  }
  Lines Frames(const TestedObject& object) { return ObjectBench::FramesOf(*object); }

  ObjectBench bench_;
};

using RunAnimation = ObjectAnimation;
using AnimationEnd = ObjectAnimation;
using SoundsAndAnimation = ObjectAnimation;
using FirstFrame = ObjectAnimation;
using ObjectTimer = ObjectAnimation;
using ObjectSpline = ObjectAnimation;

TEST_F(RunAnimation, ShowsTheFirstFrameAtOnceAndTheNextAfterOneInterval) {
  Door().Animation("walk", 100, "loop", {"a b c"}).State("go", "nothing", "walk");
  TestedObject door = Go();
  EXPECT_EQ(Frames(door), (Lines{"a"}));
  bench_.Tick(99);
  EXPECT_EQ(Frames(door), (Lines{"a"}));
  bench_.Tick(1);
  EXPECT_EQ(Frames(door), (Lines{"b"}));
  bench_.Tick(200);
  EXPECT_EQ(Frames(door), (Lines{"a"}));
}

TEST_F(RunAnimation, OfASingleFrameDoesNotTick) {
  Door().Animation("one", 100, "loop", {"a", "b"}).State("go", "nothing", "one");
  TestedObject door = Go();
  EXPECT_EQ(door->TimerID(), 0);
  EXPECT_EQ(bench_.RunningTimers(), 0U);
  EXPECT_EQ(Frames(door), (Lines{"a", "b"})) << "all sequences show at once";
}

TEST_F(FirstFrame, GivesItsSourceSizeOnlyWhereBothDrawSizesAreNothing) {
  bench_.Object("door")
      .Frame("first", {0, 0, 1, 1})
      .Frame("high", {0, 0, 11, 12}, "stable", "stable/40")
      .Frame("wide", {0, 0, 13, 14}, "stable/50", "stable")
      .Frame("none", {0, 0, 15, 16}, "stable/0", "stable/0")
      .Frame("both", {0, 0, 17, 18}, "stable/60", "stable/70");
  for (const char* frame : {"first", "high", "wide", "none", "both"}) {
    bench_.Object("door").Animation(frame, 50, "loop", {frame}).State(frame, "nothing", frame);
  }
  bench_.Object("door").Directives("state_first");
  TestedObject door = bench_.LoadOn("door");
  const auto size_in = [&door](const char* state) {
    door->ProcessState(state);
    return Size{door->width(), door->height()};
  };
  EXPECT_EQ(size_in("high"), (Size{0, 40}));
  EXPECT_EQ(size_in("wide"), (Size{50, 0}));
  EXPECT_EQ(size_in("none"), (Size{15, 16}));
  EXPECT_EQ(size_in("both"), (Size{60, 70}));
}

TEST_F(RunAnimation, TheSameNameIsNotStartedAgainEvenLongAfterItsEnd) {
  Door()
      .Animation("wave", 100, "nonloop", {"a b"})
      .State("go", "nothing", "wave")
      .State("again", "nothing", "WAVE");
  TestedObject door = Go();
  bench_.Tick(100);
  EXPECT_EQ(door->TimerID(), 0);
  door->ProcessState("again");
  EXPECT_EQ(door->TimerID(), 0);
  EXPECT_EQ(Frames(door), (Lines{"b"}));
}

TEST_F(RunAnimation, NothingStopsTheTimerAndKeepsFramesAndName) {
  Door()
      .Animation("walk", 100, "loop", {"a b"})
      .State("go", "nothing", "walk")
      .State("stop", "nothing", "Nothing");
  TestedObject door = Go();
  door->ProcessState("stop");
  EXPECT_EQ(bench_.RunningTimers(), 0U);
  EXPECT_TRUE(bench_.objects.TimedObjects.Empty());
  EXPECT_EQ(Frames(door), (Lines{"a"}));
  EXPECT_EQ(door->Inner().CurrentAnimationName(), "walk");
  door->ProcessState("go");
  EXPECT_EQ(door->TimerID(), 0) << "the name is that of the last animation";
}

TEST_F(RunAnimation, TerminateStopsTheTimerAndKeepsFramesAndName) {
  Door()
      .Animation("walk", 100, "loop", {"a b"})
      .State("go", "nothing", "walk")
      .State("stop", "nothing", "Terminate");
  TestedObject door = Go();
  bench_.Tick(100);
  door->ProcessState("stop");
  EXPECT_EQ(bench_.RunningTimers(), 0U);
  EXPECT_EQ(Frames(door), (Lines{"b"}));
  EXPECT_EQ(door->Inner().CurrentAnimationName(), "walk");
}

TEST_F(RunAnimation, UnchangedLetsItGoOn) {
  Door()
      .Animation("walk", 100, "loop", {"a b"})
      .State("go", "nothing", "walk")
      .State("on", "nothing", "Unchanged");
  TestedObject door = Go();
  door->ProcessState("on");
  bench_.Tick(100);
  EXPECT_EQ(Frames(door), (Lines{"b"}));
}

TEST_F(RunAnimation, AnotherOneTakesOverTheTimer) {
  Door()
      .Animation("walk", 100, "loop", {"a b"})
      .Animation("run", 30, "loop", {"b c"})
      .State("go", "nothing", "walk")
      .State("hurry", "nothing", "run");
  TestedObject door = Go();
  door->ProcessState("hurry");
  ASSERT_EQ(bench_.RunningTimers(), 1U);
  EXPECT_EQ(bench_.platform.backend.timers.Running()[0].interval, Milliseconds(30));
  EXPECT_EQ(bench_.objects.TimedObjects.Keys(), (Lines{std::to_string(door->TimerID())}));
}

TEST_F(RunAnimation, StartsAtTheBeginningOfItsSequences) {
  Door()
      .Animation("walk", 100, "loop", {"a b c"})
      .Animation("rest", 100, "loop", {"c"})
      .State("go", "nothing", "walk")
      .State("rest", "nothing", "rest");
  TestedObject door = Go();
  bench_.Tick(100);
  door->ProcessState("rest");
  door->ProcessState("go");
  EXPECT_EQ(Frames(door), (Lines{"a"}));
}

TEST_F(RunAnimation, AnUnknownNameIsFatal) {
  Door().Still(5, 5).State("go", "nothing", "stil");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(FatalOf([&] { door->ProcessState("go"); }),
            "Info\\door\\states.txt:7: object \"door\" has no animation \"stil\"; did you mean "
            "\"still\"?");
}

TEST_F(RunAnimation, AnEmptyNameIsFatalAlsoBeforeAnyAnimationRan) {
  Door().State("go", "nothing", "");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_NE(FatalOf([&] { door->ProcessState("go"); }).find("has no animation \"\""),
            std::string::npos);
}

TEST_F(RunAnimation, AFrameThatIsNotThereIsFatalWhenItIsShown) {
  Door().Animation("walk", 100, "loop", {"a bb"}).State("go", "nothing", "walk");
  TestedObject door = Go();
  EXPECT_EQ(FatalOf([&] { bench_.Tick(100); }),
            "Info\\door\\states.txt:7: animation \"walk\" of object \"door\" shows the frame "
            "\"bb\", which isn't there; did you mean \"b\"?");
}

TEST_F(RunAnimation, AnEmptySequenceBesideOthersIsFatal) {
  Door().Animation("walk", 100, "loop", {"a b", ""}).State("go", "nothing", "walk");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(FatalOf([&] { door->ProcessState("go"); }),
            "animation \"walk\" has an empty line of frame names");
}

TEST_F(AnimationEnd, ANonLoopingOneEndsAtItsLastFrameWhichStays) {
  Door().Animation("wave", 100, "nonloop", {"a b"}).State("go", "nothing", "wave");
  TestedObject door = Go();
  EXPECT_EQ(bench_.RunningTimers(), 1U);
  bench_.Tick(100);
  EXPECT_EQ(bench_.RunningTimers(), 0U);
  EXPECT_TRUE(bench_.objects.TimedObjects.Empty());
  bench_.Tick(1000);
  EXPECT_EQ(Frames(door), (Lines{"b"}));
}

TEST_F(AnimationEnd, GoesBackToTheStateRemembered) {
  Door().Animation("wave", 100, "nonloop", {"a b"}).State("go", "nothing", "wave");
  TestedObject door = bench_.LoadOn("door");
  door->Inner().RunState("go");
  EXPECT_EQ(door->CurrentState(), "go");
  bench_.Tick(100);
  EXPECT_EQ(door->CurrentState(), "default");
}

TEST_F(AnimationEnd, ASingleFrameThatDoesNotLoopEndsAtOnce) {
  Door().Animation("one", 100, "nonloop", {"c"}).State("go", "talk", "one");
  TestedObject door = bench_.LoadOn("door");
  door->Inner().RunState("go");
  EXPECT_EQ(door->CurrentState(), "default");
  EXPECT_EQ(Frames(door), (Lines{"c"}));
  EXPECT_FALSE(bench_.sounds.Playing("talk.wma")) << "cut before it is heard";
}

TEST_F(AnimationEnd, ASingleLoopingFrameNeverComesBackEvenWhenItsSoundIsOver) {
  Door().Animation("one", 100, "loop", {"c"}).State("go", "talk", "one");
  TestedObject door = bench_.LoadOn("door");
  door->Inner().RunState("go");
  bench_.sounds.Finish("talk.wma");
  bench_.Tick(1000);
  EXPECT_EQ(door->CurrentState(), "go");
  EXPECT_EQ(door->Inner().StateHistory(), (Lines{"default"}));
}

TEST_F(AnimationEnd, WithoutASequenceItEndsAtOnceAndChangesNothingElse) {
  Door().Animation("none", 100, "loop", {}).State("go", "nothing", "none");
  TestedObject door = bench_.LoadOn("door");
  door->Inner().RunState("go");
  EXPECT_EQ(door->CurrentState(), "default");
  EXPECT_TRUE(Frames(door).empty());
  EXPECT_EQ(door->width(), 11);
}

TEST_F(AnimationEnd, AStateThatIsGoneBackToMayStartAnotherAnimation) {
  Door()
      .Animation("walk", 70, "loop", {"b c"})
      .Animation("wave", 100, "nonloop", {"a b"})
      .State("walking", "nothing", "walk")
      .State("go", "nothing", "wave");
  TestedObject door = Go("walking");
  door->Inner().RunState("go");
  bench_.Tick(100);
  EXPECT_EQ(door->CurrentState(), "walking");
  EXPECT_EQ(Frames(door), (Lines{"b"})) << "nothing of the step that ended runs on";
  EXPECT_EQ(bench_.RunningTimers(), 1U);
  bench_.Tick(70);
  EXPECT_EQ(Frames(door), (Lines{"c"}));
}

TEST_F(AnimationEnd, ChainsOfStatesThatEndAtOnceComeToRest) {
  Door()
      .Animation("one", 100, "nonloop", {"c"})
      .Animation("wave", 100, "nonloop", {"a b"})
      .State("short", "nothing", "one")
      .State("go", "nothing", "wave");
  TestedObject door = Go("short");
  door->Inner().RunState("go");
  bench_.Tick(100);
  EXPECT_EQ(door->CurrentState(), "short");
  EXPECT_EQ(bench_.RunningTimers(), 0U);
}

TEST_F(SoundsAndAnimation, ALoopingAnimationEndsWhenTheSoundIsOver) {
  Door().Animation("mouth", 100, "loop", {"a b"}).State("go", "talk", "mouth");
  TestedObject door = bench_.LoadOn("door");
  door->Inner().RunState("go");
  bench_.Tick(500);
  EXPECT_EQ(door->CurrentState(), "go");
  bench_.sounds.Finish("talk.wma");
  bench_.Tick(100);
  EXPECT_EQ(door->CurrentState(), "default");
  EXPECT_EQ(bench_.RunningTimers(), 0U);
}

TEST_F(SoundsAndAnimation, TheStepThatStartsItCounts) {
  // The sound of an earlier state is silent: the timer is gone directly after the change.
  Door()
      .Animation("walk", 100, "loop", {"a b"})
      .State("speak", "talk")
      .State("go", "nothing", "walk");
  TestedObject door = Go("speak");
  door->ProcessState("go");
  EXPECT_EQ(door->TimerID(), 0);
  EXPECT_EQ(Frames(door), (Lines{"a"}));
}

TEST_F(SoundsAndAnimation, OnceItMadeASoundEveryLoopStopsAfterItsFirstFrame) {
  Door()
      .Animation("walk", 100, "loop", {"a b"})
      .Animation("run", 100, "loop", {"b c"})
      .State("speak", "talk")
      .State("walk", "nothing", "walk")
      .State("run", "nothing", "run");
  TestedObject door = Go("speak");
  bench_.sounds.Finish("talk.wma");
  door->ProcessState("walk");
  EXPECT_EQ(door->TimerID(), 0);
  door->TurnOff();
  door->TurnOn();
  EXPECT_EQ(door->TimerID(), 0) << "turning off doesn't clear the name";
  door->ProcessState("run");
  EXPECT_EQ(door->TimerID(), 0);
}

TEST_F(SoundsAndAnimation, ASoundWithoutItsFileEndsAnimationsAtOnce) {
  Door().MissingSound("gone").Animation("walk", 100, "loop", {"a b"}).State("go", "gone", "walk");
  TestedObject door = Go();
  EXPECT_EQ(door->TimerID(), 0);
  EXPECT_EQ(Frames(door), (Lines{"a"}));
}

TEST_F(SoundsAndAnimation, AnObjectThatNeverMadeASoundLoopsOn) {
  Door().Animation("walk", 100, "loop", {"a b"}).State("go", "nothing", "walk");
  TestedObject door = Go();
  bench_.Tick(5000);
  EXPECT_NE(door->TimerID(), 0);
}

TEST_F(FirstFrame, GivesTexturePlaceAndSize) {
  Door()
      .Frame("placed", {7, 8, 9, 10}, "30/100", "40/50")
      .Animation("one", 100, "loop", {"placed b"})
      .State("go", "nothing", "one");
  TestedObject door = Go();
  EXPECT_EQ(door->CurrentTextureXCoord(), 7);
  EXPECT_EQ(door->CurrentTextureYCoord(), 8);
  EXPECT_EQ(door->xpos(), 30);
  EXPECT_EQ(door->ypos(), 40);
  EXPECT_EQ(door->width(), 100);
  EXPECT_EQ(door->height(), 50);
  bench_.Tick(100);
  EXPECT_EQ(door->width(), 13) << "the source size of the next frame";
  EXPECT_EQ(door->xpos(), 30) << "stable stays";
}

TEST_F(FirstFrame, OnlyTheFirstOfTheParallelFramesMovesTheObject) {
  Door()
      .Frame("far", {}, "300", "200")
      .Animation("one", 100, "loop", {"a", "far"})
      .State("go", "nothing", "one");
  TestedObject door = Go();
  EXPECT_EQ(door->xpos(), 0);
  EXPECT_EQ(door->ypos(), 0);
}

TEST_F(FirstFrame, AStepWalksTheObjectEachTimeItIsShown) {
  Door()
      .Frame("step", {}, "stable+5", "-3")
      .Animation("walk", 100, "loop", {"step a"})
      .State("go", "nothing", "walk");
  TestedObject door = Go();
  EXPECT_EQ(door->xpos(), 5);
  EXPECT_EQ(door->ypos(), 3) << "a plain -3 has the same meaning";
  bench_.Tick(200);
  EXPECT_EQ(door->xpos(), 10);
  EXPECT_EQ(door->ypos(), 6);
}

TEST_F(FirstFrame, StablePlusOneStandsStill) {
  Door()
      .Frame("step", {}, "stable+1", "-1")
      .Animation("walk", 100, "loop", {"step a"})
      .State("go", "nothing", "walk");
  bench_.Object("hall", "hall").Child("door", "xpos_40 ypos_50 state_go");
  TestedObject hall = bench_.LoadOn("hall");
  bench_.Tick(1000);
  EXPECT_EQ(ObjectBench::Child(*hall, "door")->xpos(), 40);
  EXPECT_EQ(ObjectBench::Child(*hall, "door")->ypos(), 50);
}

TEST_F(FirstFrame, APlacementOfZeroOrMoreOverwritesADirectiveWhenTurnedOn) {
  Door()
      .Frame("fixed", {}, "0", "stable")
      .Animation("one", 1, "loop", {"fixed"})
      .State("go", "nothing", "one");
  bench_.Object("hall", "hall").Child("door", "xpos_40 ypos_50 state_go");
  TestedObject hall = bench_.Load("hall");
  TestedObject door = ObjectBench::Child(*hall, "door");
  EXPECT_EQ(door->xpos(), 40);
  hall->TurnOn();
  EXPECT_EQ(door->xpos(), 0);
  EXPECT_EQ(door->ypos(), 50);
}

TEST_F(FirstFrame, WalkingOutOfTheNumbersIsFatal) {
  Door()
      .Frame("step", {}, "stable+30000")
      .Animation("walk", 100, "loop", {"step a"})
      .State("go", "nothing", "walk");
  TestedObject door = Go();
  EXPECT_EQ(FatalOf([&] { bench_.Tick(1000); }), "xpos is out of range for 16 bits");
}

TEST_F(ObjectTimer, AnIntervalBelowTenMillisecondsRunsAtTen) {
  Door().Animation("walk", 1, "loop", {"a b"}).State("go", "nothing", "walk");
  TestedObject door = Go();
  bench_.Tick(9);
  EXPECT_EQ(Frames(door), (Lines{"a"}));
  bench_.Tick(1);
  EXPECT_EQ(Frames(door), (Lines{"b"}));
}

TEST_F(ObjectTimer, DoesNothingWithoutTheFocus) {
  Door().Animation("walk", 100, "loop", {"a b"}).State("go", "nothing", "walk");
  TestedObject door = Go();
  bench_.objects.GameActive = false;
  bench_.Tick(300);
  EXPECT_EQ(Frames(door), (Lines{"a"}));
  EXPECT_EQ(bench_.objects.gated_ticks, 3);
  bench_.objects.GameActive = true;
  bench_.Tick(100);
  EXPECT_EQ(Frames(door), (Lines{"b"}));
}

TEST_F(ObjectTimer, IsKnownUnderItsIdInDecimalText) {
  Door().Animation("walk", 100, "loop", {"a b"}).State("go", "nothing", "walk");
  TestedObject door = Go();
  auto* entry = bench_.objects.TimedObjects.Find(std::to_string(door->TimerID()));
  ASSERT_NE(entry, nullptr);
  EXPECT_EQ(entry->lock(), door);
  EXPECT_EQ(bench_.platform.backend.timers.Running()[0].callback, "OnObjectTimer");
}

TEST_F(ObjectTimer, ATickOfAnUnknownTimerDoesNothing) { OnObjectTimer(bench_.objects, 77); }

TEST_F(ObjectTimer, ATickOfAnotherIdThanItsOwnDoesNothing) {
  Door().Animation("walk", 100, "loop", {"a b"}).State("go", "nothing", "walk");
  TestedObject door = Go();
  bench_.objects.TimedObjects.Add(door, "77");
  OnObjectTimer(bench_.objects, 77);
  EXPECT_EQ(Frames(door), (Lines{"a"}));
}

TEST_F(ObjectTimer, AStepWithoutAnimationDoesNothing) {
  Door();
  TestedObject door = bench_.LoadOn("door");
  door->UpdateAnimationState();
  EXPECT_TRUE(Frames(door).empty());
}

TEST_F(ObjectSpline, MovesTheFirstFrameAndWithItTheObject) {
  bench_.platform.files.Put("\\Info\\path.txt",
                            Text({"spline", "", "", "once", "p", "5", "10 20", "40 40", "", ""}));
  Door()
      .Animation("fly", 100, "loop", {"a b", "c"}, "\\Info\\path.txt")
      .State("go", "nothing", "fly");
  TestedObject door = Go();
  EXPECT_EQ(door->xpos(), 15);
  EXPECT_EQ(door->ypos(), 40);
  EXPECT_EQ(door->QueryFrameState("a")->PlaceX, 15) << "the stored frame is changed";
  EXPECT_EQ(door->QueryFrameState("a")->PlaceY, 40);
  EXPECT_EQ(door->QueryFrameState("c")->PlaceX, -1);
  bench_.Tick(100);
  EXPECT_EQ(door->xpos(), 20);
  EXPECT_EQ(door->QueryFrameState("b")->PlaceX, 20);
}

TEST_F(ObjectSpline, TheAnimationIsDoneWhenSequenceAndPathAre) {
  bench_.platform.files.Put("\\Info\\path.txt",
                            Text({"spline", "", "", "once", "p", "5", "10 30", "40 40", "", ""}));
  Door()
      .Animation("fly", 100, "nonloop", {"a b"}, "\\Info\\path.txt")
      .State("go", "nothing", "fly");
  TestedObject door = Go();
  bench_.Tick(100);
  EXPECT_NE(door->TimerID(), 0) << "the path goes on";
  bench_.Tick(1000);
  EXPECT_EQ(door->TimerID(), 0);
  EXPECT_GE(door->xpos(), 30);
}

TEST_F(ObjectSpline, RunsOnceALoad) {
  bench_.platform.files.Put("\\Info\\path.txt",
                            Text({"spline", "", "", "once", "p", "50", "0 50", "0 0", "", ""}));
  Door()
      .Animation("fly", 100, "nonloop", {"a b"}, "\\Info\\path.txt")
      .Animation("rest", 100, "loop", {"c"})
      .State("go", "nothing", "fly")
      .State("rest", "nothing", "rest");
  TestedObject door = Go();
  bench_.Tick(1000);
  ASSERT_EQ(door->TimerID(), 0);
  const auto end = door->xpos();
  door->ProcessState("rest");
  door->ProcessState("go");
  EXPECT_EQ(door->xpos(), end) << "a path that is done stays where it is";
}

}  // namespace
}  // namespace quendle
