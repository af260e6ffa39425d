// Animation states by themselves: sequences and their steps.
#include "object/AnimationState.h"

#include <gtest/gtest.h>

#include "support/ObjectBench.h"

namespace quendle {
namespace {

struct Animation : AnimationState {
  Animation(const std::string& loop, const std::vector<Lines>& sets) {
    SetLoopState(loop);
    for (const Lines& set : sets) AddFrameSet(set);
  }
};

TEST(AnimationStates, OnlyTheWordLoopLoops) {
  AnimationState animation;
  for (const char* word : {"loop", "LOOP"}) {
    animation.SetLoopState(word);
    EXPECT_TRUE(animation.GetLoopState());
  }
  for (const char* word : {"nonloop", "", "loops", " loop"}) {
    animation.SetLoopState(word);
    EXPECT_FALSE(animation.GetLoopState()) << word;
  }
}

TEST(AnimationStates, ASequenceCopiesTheLoopStateWhenItIsAdded) {
  AnimationState animation;
  animation.AddFrameSet({"a"});
  animation.SetLoopState("loop");
  animation.AddFrameSet({"b"});
  EXPECT_FALSE(animation.FrameSets()[0].loops);
  EXPECT_TRUE(animation.FrameSets()[1].loops);
}

TEST(AnimationStates, GiveTheLengthOfTheLongestSequence) {
  EXPECT_EQ(Animation("loop", {{"a"}, {"b", "c", "d"}, {"e", "f"}}).GetNumFrames(), 3);
  EXPECT_EQ(Animation("loop", {}).GetNumFrames(), 0);
}

TEST(AnimationStates, ListAllNamesSequenceBySequence) {
  Lines names = {"first"};
  Animation("loop", {{"a", "b"}, {"a"}}).EnumerateAllFrames(names);
  EXPECT_EQ(names, (Lines{"first", "a", "b", "a"}));
}

TEST(AnimationStates, SequencesGoRoundIndependently) {
  Animation animation("loop", {{"a", "b"}, {"x", "y", "z"}});
  std::vector<Lines> shown;
  for (int i = 0; i < 4; ++i) {
    shown.push_back(animation.GetCurrAnimationPos());
    animation.UpdateAnimationPos();
  }
  EXPECT_EQ(shown, (std::vector<Lines>{{"a", "x"}, {"b", "y"}, {"a", "z"}, {"b", "x"}}));
  EXPECT_FALSE(animation.IsLoopDone());
}

TEST(AnimationStates, TheShorterSequenceGoesRoundUntilAllAreDone) {
  Animation animation("nonloop", {{"a", "b"}, {"x", "y", "z"}});
  animation.UpdateAnimationPos();
  animation.UpdateAnimationPos();
  EXPECT_FALSE(animation.IsLoopDone());
  EXPECT_EQ(animation.GetCurrAnimationPos(), (Lines{"a", "z"}));
  animation.UpdateAnimationPos();
  EXPECT_TRUE(animation.IsLoopDone());
  EXPECT_EQ(animation.GetCurrAnimationPos(), (Lines{"b", "x"}));
  animation.UpdateAnimationPos();
  EXPECT_EQ(animation.GetCurrAnimationPos(), (Lines{"b", "x"})) << "done: nothing moves";
}

TEST(AnimationStates, ResetGoesToTheStart) {
  Animation animation("nonloop", {{"a", "b"}});
  animation.UpdateAnimationPos();
  animation.UpdateAnimationPos();
  animation.Reset();
  EXPECT_FALSE(animation.IsLoopDone());
  EXPECT_EQ(animation.GetCurrAnimationPos(), (Lines{"a"}));
}

TEST(AnimationStates, WithoutASequenceAreDoneAtOnce) {
  EXPECT_TRUE(Animation("loop", {}).IsLoopDone());
}

TEST(AnimationStates, AnEmptySequenceIsFatal) {
  Animation animation("loop", {{"a", "b"}, {}});
  animation.SetName("walk");
  EXPECT_EQ(FatalOf([&] { animation.UpdateAnimationPos(); }),
            "animation \"walk\" has an empty line of frame names");
}

}  // namespace
}  // namespace quendle
