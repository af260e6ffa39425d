// The statements of scripts and their tokens.
#include <gtest/gtest.h>

#include "script/Statement.h"
#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectStatements : public ::testing::Test {
 protected:
  ObjectStatements() {
    TestObject& object = bench_.Object("handtool", "tool");
    for (const char* state : {"default", "better1", "better2", "hurt", "better2-highlight",
                              "highlightopen", "better", "better7x9"}) {
      object.State(state);
    }
    object.Still(20, 20)
        .State("shown", "nothing", "still")
        .Region("all", "Head", 0, 0, 20, 20)
        .Sound("click")
        .MissingSound("gone");
    object_ = bench_.LoadOn("handtool");
  }

  void Do(const std::string& line) {
    bool result = false;
    object_->Interpret(Statement(line), false, result);
  }
  bool Ask(const std::string& line, bool result) {
    object_->Interpret(Statement(line), true, result);
    return result;
  }
  // What "mtp WORD" sends in a state.
  std::string Sent(const std::string& word, const std::string& state = "default") {
    object_->ProcessState(state);
    bench_.top->messages.clear();
    Do("mtp " + word);
    return bench_.top->messages.empty() ? "" : bench_.top->messages[0];
  }
  std::string IncrementOf(const std::string& state) { return Sent("<incrementstate>", state); }

  ObjectBench bench_;
  TestedObject object_;
};

TEST_F(ObjectStatements, MtpSendsTheSecondWordToTheParent) {
  Do("mtp toobj_x_y rest of the line");
  EXPECT_EQ(bench_.top->messages, (Lines{"toobj_x_y"}));
  EXPECT_EQ(bench_.top->senders, (Lines{"handtool"}));
}

TEST_F(ObjectStatements, VerbsAreReadInAnyCase) {
  Do("  MTP   hello");
  EXPECT_EQ(bench_.top->messages, (Lines{"hello"}));
  Do("CHANGE HURT");
  EXPECT_EQ(object_->CurrentState(), "hurt");
  Do("RunState Better1");
  EXPECT_EQ(object_->CurrentState(), "better1");
  Do("RUNSOUND Click");
  EXPECT_TRUE(bench_.sounds.Playing("click.wma"));
}

TEST_F(ObjectStatements, ChangeHasNoReturnAndRunStateHas) {
  Do("change hurt");
  EXPECT_TRUE(object_->Inner().StateHistory().empty());
  Do("runstate better1");
  EXPECT_EQ(object_->Inner().StateHistory(), (Lines{"hurt"}));
}

TEST_F(ObjectStatements, AnyOtherLineDoesNothing) {
  for (const char* line : {"If action = x", "message x", "true", "", "   ", "changed hurt"}) {
    Do(line);
    EXPECT_EQ(object_->CurrentState(), "default") << line;
  }
  EXPECT_TRUE(bench_.top->messages.empty());
}

TEST_F(ObjectStatements, AVerbAloneIsFatalAndNamesItsLine) {
  bool result = false;
  for (const char* verb : {"mtp", "change", "runsound", "runstate"}) {
    for (bool verifying : {false, true}) {
      EXPECT_EQ(FatalOf([&] {
                  object_->Interpret(Statement(verb, {"Info\\s.txt", 3}), verifying, result);
                }),
                "Info\\s.txt:3: the statement \"" + std::string(verb) + "\" needs a second word");
    }
  }
}

TEST_F(ObjectStatements, VerifyingChangesNothingAndAnswers) {
  EXPECT_TRUE(Ask("change hurt", false));
  EXPECT_FALSE(Ask("change nowhere", true));
  EXPECT_TRUE(Ask("runstate hurt", false));
  EXPECT_FALSE(Ask("runstate nowhere", true));
  EXPECT_TRUE(Ask("runsound click", false));
  EXPECT_TRUE(Ask("runsound nothing", false));
  EXPECT_FALSE(Ask("runsound gone", true));
  EXPECT_FALSE(Ask("runsound nosuch", true));
  EXPECT_FALSE(Ask("else", true));
  EXPECT_FALSE(Ask("If action = x", true));
  EXPECT_EQ(object_->CurrentState(), "default");
  EXPECT_TRUE(object_->Inner().StateHistory().empty());
  EXPECT_FALSE(bench_.sounds.Playing("click.wma"));
}

TEST_F(ObjectStatements, MtpIsVerifiedUpTheTree) {
  bench_.top->answer = [](bool& result) { result = false; };
  EXPECT_FALSE(Ask("mtp hello", true));
  EXPECT_TRUE(bench_.top->verified);
  EXPECT_EQ(bench_.top->messages, (Lines{"hello"}));
}

TEST_F(ObjectStatements, TokensOfTheObject) {
  EXPECT_EQ(Sent("a_<ObjectName>_b"), "a_handtool_b");
  EXPECT_EQ(Sent("<RootObjectName>"), "hand");
  EXPECT_EQ(Sent("<ObjectType>"), "tool");
  EXPECT_EQ(Sent("<rootobjectname><objectname>"), "hand<objectname>")
      << "the name only where the root name is absent";
  EXPECT_EQ(Sent("<objecttype><objecttype>"), "tool<objecttype>") << "first occurrences only";
  EXPECT_EQ(Sent("<whatever>"), "<whatever>");
}

TEST_F(ObjectStatements, TokensAreReplacedInTheSecondWordOnly) {
  EXPECT_EQ(Sent("x <objectname>"), "x");
}

TEST_F(ObjectStatements, TheRegionHitLast) {
  object_->ProcessState("shown");
  object_->PeekCurrentState(5, 5, "x");
  EXPECT_EQ(Sent("<CurrentRegion>!", "shown"), "Head!");
}

TEST_F(ObjectStatements, TheStateAndItsRoot) {
  EXPECT_EQ(Sent("<CurrentState>", "better2-highlight"), "better2-highlight");
  EXPECT_EQ(Sent("<CurrentRootState>", "better2-highlight"), "better2");
  EXPECT_EQ(Sent("<currentrootstate>", "highlightopen"), "open");
  EXPECT_EQ(Sent("<currentstate><currentrootstate>", "hurt"), "hurt<currentrootstate>")
      << "the root only where the state is absent";
}

TEST_F(ObjectStatements, TheNextState) {
  EXPECT_EQ(IncrementOf("default"), "better1");
  EXPECT_EQ(IncrementOf("better1"), "better2");
  EXPECT_EQ(IncrementOf("hurt"), "hurt");
  EXPECT_EQ(IncrementOf("better2-highlight"), "better3") << "the leading number";
  EXPECT_EQ(IncrementOf("better"), "better1");
  EXPECT_EQ(IncrementOf("better7x9"), "better8");
}

TEST_F(ObjectStatements, RunStateOfTheNextStateStaysWhereThereIsNone) {
  Do("runstate <incrementstate>");
  EXPECT_EQ(object_->CurrentState(), "better1");
  Do("runstate <incrementstate>");
  EXPECT_EQ(object_->CurrentState(), "better2");
  Do("change hurt");
  Do("runstate <incrementstate>");
  EXPECT_EQ(object_->CurrentState(), "hurt");
  EXPECT_EQ(object_->Inner().StateHistory(), (Lines{"default"}));
}

TEST_F(ObjectStatements, AFaultOfAScriptTellsItsLine) {
  bench_.Object("door")
      .State("default", "nothing", "nothing", "main")
      .Script("main", "begin\nmtp ok\nrunsound nosuch\nend\n");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(FatalOf([&] { door->UpdateGameObject(-1, -1, ActionText("x")); }),
            "Info\\door\\states.txt:1: object \"door\" has no sound \"nosuch\"");
  EXPECT_EQ(bench_.watch.depth.FailedText(), "runsound nosuch");
  EXPECT_EQ(bench_.watch.depth.FailedPlace().file, "Info\\door\\script_main.txt");
  EXPECT_EQ(bench_.watch.depth.FailedPlace().line, 3);
  EXPECT_EQ(bench_.watch.depth.FailedObject(), "door");
}

}  // namespace
}  // namespace quendle
