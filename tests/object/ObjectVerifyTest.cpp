// The answers of the content check.
#include <gtest/gtest.h>

#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectVerify : public ::testing::Test {
 protected:
  GameObject& Load(const std::string& name) {
    loaded_.push_back(bench_.Load(name));
    return loaded_.back()->Inner();
  }
  // A door with one frame of those numbers.
  bool FrameIsValid(FrameSource source, const std::string& x, const std::string& y) {
    const std::string name = "door" + std::to_string(++doors_);
    bench_.Object(name).Frame("a", source, x, y);
    return Load(name).VerifyFrame("A");
  }
  // Does that script of a patient pass?
  bool ScriptIsValid(const std::string& text) {
    const std::string name = "door" + std::to_string(++doors_);
    bench_.Object(name).State("default").State("open").Sound("click").Script("main", text);
    return Load(name).VerifyScript("MAIN");
  }

  ObjectBench bench_;
  std::vector<TestedObject> loaded_;
  int doors_ = 0;
};

TEST_F(ObjectVerify, ASoundMustBeThereWithItsFile) {
  bench_.Object("door").Sound("click").MissingSound("gone");
  GameObject& door = Load("door");
  EXPECT_TRUE(door.VerifySoundState("nothing"));
  EXPECT_TRUE(door.VerifySoundState("CLICK"));
  EXPECT_FALSE(door.VerifySoundState("gone"));
  EXPECT_FALSE(door.VerifySoundState("nosuch"));
  EXPECT_FALSE(door.VerifySoundState("unchanged")) << "only nothing is valid beside names";
}

TEST_F(ObjectVerify, AnAnimationMustBeThereWithAllItsFrames) {
  bench_.Object("door")
      .Frame("a")
      .Frame("wide", {0, 0, 801, 5})
      .Animation("good", 9, "loop", {"a a", "a"})
      .Animation("missing", 9, "loop", {"a", "a b"})
      .Animation("bad", 9, "loop", {"wide a"})
      .Animation("none", 9, "loop", {});
  GameObject& door = Load("door");
  EXPECT_TRUE(door.VerifyAnimationState("nothing"));
  EXPECT_TRUE(door.VerifyAnimationState("GOOD"));
  EXPECT_TRUE(door.VerifyAnimationState("none"));
  EXPECT_FALSE(door.VerifyAnimationState("missing"));
  EXPECT_FALSE(door.VerifyAnimationState("bad"));
  for (const char* word : {"nosuch", "unchanged", "terminate"}) {
    EXPECT_FALSE(door.VerifyAnimationState(word)) << word;
  }
}

TEST_F(ObjectVerify, AFrameMustFitTheScreen) {
  EXPECT_TRUE(FrameIsValid({9999, -9999, 800, 600}, "800/800", "600/600"));
  EXPECT_TRUE(FrameIsValid({0, 0, 0, 0}, "-800", "-600/-600"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, 10}, "801", "0"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, 10}, "stable+900", "0"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, 10}, "0", "601"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, 10}, "0", "-601"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, 10}, "0/801", "0"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, 10}, "0", "0/-601"));
  EXPECT_FALSE(FrameIsValid({0, 0, 801, 10}, "0", "0"));
  EXPECT_FALSE(FrameIsValid({0, 0, -1, 10}, "0", "0"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, 601}, "0", "0"));
  EXPECT_FALSE(FrameIsValid({0, 0, 10, -1}, "0", "0"));
  EXPECT_FALSE(loaded_[0]->Inner().VerifyFrame("nosuch"));
}

TEST_F(ObjectVerify, AStateAnswersForItsSoundAndAnimationOnly) {
  bench_.Object("door")
      .Sound("click")
      .Still(5, 5)
      .State("good", "click", "still", "nosuchscript")
      .State("deaf", "nosuch", "still")
      .State("stiff", "click", "nosuch")
      .State("same", "unchanged", "nothing");
  GameObject& door = Load("door");
  EXPECT_TRUE(door.VerifyState("GOOD"));
  EXPECT_FALSE(door.VerifyState("deaf"));
  EXPECT_FALSE(door.VerifyState("stiff"));
  EXPECT_FALSE(door.VerifyState("same"));
  EXPECT_FALSE(door.VerifyState("nosuch"));
}

TEST_F(ObjectVerify, ThePairOfAPatientDoesNotEnterTheAnswerOfAState) {
  bench_.Object("boy", "patient").State("default");
  GameObject& boy = Load("boy");
  EXPECT_TRUE(boy.VerifyState("default"));
  EXPECT_FALSE(boy.VerifyOwwwPair("default"));
}

TEST_F(ObjectVerify, AHealingStateNeedsATwinThatEndsAndListensToNothing) {
  bench_.Object("boy", "patient")
      .Frame("a")
      .Animation("once", 9, "nonloop", {"a"})
      .Animation("round", 9, "loop", {"a"})
      .Script("main", "begin\nx\nend\n")
      .State("default")
      .State("default-owww", "nothing", "once")
      .State("better1")
      .State("better1-owww", "nothing", "round")
      .State("better2")
      .State("better2-owww", "nothing", "once", "main")
      .State("mybetter3")
      .State("idle");
  GameObject& boy = Load("boy");
  EXPECT_TRUE(boy.VerifyOwwwPair("default"));
  EXPECT_TRUE(boy.VerifyOwwwPair("Default"));
  EXPECT_FALSE(boy.VerifyOwwwPair("better1")) << "the twin loops";
  EXPECT_FALSE(boy.VerifyOwwwPair("better2")) << "the twin has a script";
  EXPECT_FALSE(boy.VerifyOwwwPair("mybetter3")) << "no twin";
  EXPECT_TRUE(boy.VerifyOwwwPair("default-owww")) << "not tested";
  EXPECT_TRUE(boy.VerifyOwwwPair("idle")) << "not tested";
}

TEST_F(ObjectVerify, TwoQuestionsAnswerTheOtherWayRound) {
  bench_.Object("door")
      .Frame("a")
      .Animation("once", 9, "nonloop", {"a"})
      .Animation("round", 9, "loop", {"a"})
      .Script("main", "begin\nx\nend\n")
      .State("quiet", "nothing", "once", "Nothing")
      .State("busy", "nothing", "round", "main");
  GameObject& door = Load("door");
  EXPECT_TRUE(door.StateHasScript("QUIET")) << "true means none";
  EXPECT_FALSE(door.StateHasScript("busy"));
  EXPECT_TRUE(door.StateAnimationLoops("quiet")) << "true means that it doesn't";
  EXPECT_FALSE(door.StateAnimationLoops("busy"));
  EXPECT_TRUE(door.StateExists("BUSY"));
  EXPECT_FALSE(door.StateExists("nosuch"));
}

TEST_F(ObjectVerify, AnInfoStateIsAStateOfThatName) {
  bench_.Object("doctor", "doctor").State("handinfo");
  GameObject& doctor = Load("doctor");
  EXPECT_TRUE(doctor.VerifyInfoState("HAND"));
  EXPECT_FALSE(doctor.VerifyInfoState("foot"));
}

TEST_F(ObjectVerify, AScriptOfGoodLinesPasses) {
  EXPECT_TRUE(
      ScriptIsValid("begin\n"
                    "if action = *mouseclick\nchange open\n"
                    "elseif action = x\nrunsound click\nrunsound nothing\n"
                    "endif\n"
                    "runstate open\nend\n"));
  EXPECT_TRUE(Load("door1").VerifyScript("nothing"));
  EXPECT_FALSE(Load("door1").VerifyScript("nosuch"));
}

TEST_F(ObjectVerify, OneBadLineFailsTheScriptWhereverItStands) {
  EXPECT_FALSE(ScriptIsValid("begin\nchange nowhere\nchange open\nend\n"));
  EXPECT_FALSE(ScriptIsValid("begin\nchange open\nrunsound nosuch\nend\n"));
  EXPECT_FALSE(ScriptIsValid("begin\nmessage x\nend\n"));
}

TEST_F(ObjectVerify, AnElseCountsAsAnInvalidLine) {
  EXPECT_FALSE(ScriptIsValid("begin\nif action = a\nchange open\nelse\nchange open\nendif\nend\n"));
}

TEST_F(ObjectVerify, AConditionMustHoldOneOfItsWords) {
  EXPECT_TRUE(ScriptIsValid("begin\nif action = a\nchange open\nendif\nend\n"));
  EXPECT_TRUE(ScriptIsValid("begin\nif x = mouseover\nchange open\nendif\nend\n"));
  EXPECT_TRUE(ScriptIsValid("begin\nif x = MouseClick\nchange open\nendif\nend\n"));
  EXPECT_TRUE(ScriptIsValid("begin\nif x = incrementstate\nchange open\nendif\nend\n"));
  EXPECT_FALSE(ScriptIsValid("begin\nif state = open\nchange open\nendif\nend\n"));
}

TEST_F(ObjectVerify, LinesThatHoldBeginOrEndAreNotTested) {
  EXPECT_TRUE(ScriptIsValid("begin\nchange beginning\nchange open\nend\n"));
}

TEST_F(ObjectVerify, MessagesOfAScriptAreVerifiedUpTheTree) {
  bench_.top->answer = [](bool& result) { result = false; };
  EXPECT_FALSE(ScriptIsValid("begin\nmtp cs_hall\nend\n"));
  EXPECT_TRUE(bench_.top->verified);
  bench_.top->answer = nullptr;
  EXPECT_TRUE(ScriptIsValid("begin\nmtp cs_hall\nend\n"));
}

// What a check looks at shows in the messages that its scripts verify.

TEST_F(ObjectVerify, AnObjectChecksTheScriptsOfItsStatesAndThenItsChildren) {
  bench_.Object("lamp")
      .State("default", "nothing", "nothing", "main")
      .Script("main", "begin\nmtp lamp\nend\n");
  bench_.Object("hall", "hall")
      .State("default", "nothing", "nothing", "one")
      .State("other", "nothing", "nothing", "two")
      .Script("one", "begin\nmtp one\nend\n")
      .Script("two", "begin\nmtp two\nend\n")
      .Script("unused", "begin\nmtp unused\nend\n")
      .Child("lamp");
  TestedObject hall = bench_.Load("hall");
  hall->Verify();
  EXPECT_EQ(bench_.top->messages, (Lines{"one", "two", "lamp"}));
  bench_.top->messages.clear();
  hall->Inner().VerifyObject();
  EXPECT_EQ(bench_.top->messages, (Lines{"one", "two"}));
  EXPECT_TRUE(bench_.top->verified);
}

TEST_F(ObjectVerify, ChangesNothing) {
  bench_.Object("boy", "patient")
      .Sound("click")
      .Still(5, 5)
      .State("default", "click", "still", "main")
      .State("open", "nosuch", "nosuch", "nosuch")
      .Script("main", "begin\nchange open\nrunstate open\nrunsound click\nend\n");
  TestedObject boy = bench_.Load("boy");
  boy->Verify();
  boy->Inner().VerifyAllAnimationStates();
  boy->Inner().VerifyAllSoundStates();
  EXPECT_EQ(boy->CurrentState(), "default");
  EXPECT_TRUE(boy->Inner().StateHistory().empty());
  EXPECT_TRUE(bench_.sounds.made.empty());
  EXPECT_TRUE(bench_.log.lines.empty()) << "the routines report nothing of their own";
}

TEST_F(ObjectVerify, TheDoctorIsCheckedForEveryTool) {
  // Each look at the state "handinfo" looks for the file of its sound.
  const auto looks = [&](const std::string& name) {
    TestedObject object = bench_.Load(name);
    bench_.platform.files.Record(true);
    bench_.platform.files.ForgetOperations();
    object->Verify();
    bench_.platform.files.Record(false);
    return bench_.platform.files.Operations().size();
  };
  for (const char* name : {"doctor", "nurse"}) {
    bench_.Object(name, "doctor").Sound("hi").State("default").State("handinfo", "hi");
  }
  EXPECT_EQ(looks("doctor"), 1U) << "as a state of its own";
  bench_.Object("handtool", "TOOL");
  bench_.Object("hand");
  bench_.LoadGlobal("handtool");
  bench_.LoadGlobal("hand");
  EXPECT_EQ(looks("doctor"), 2U);
  EXPECT_EQ(looks("nurse"), 1U);
}

}  // namespace
}  // namespace quendle
