#include <gtest/gtest.h>

#include "script/ActionTable.h"
#include "script/ScriptBench.h"

namespace quendle {
namespace {

const char* const kLadder =
    "begin\n"
    "first\n"
    "if action = *click\n"
    "one\n"
    "elseif action = *over\n"
    "two\n"
    "elseif action = *over\n"
    "three\n"
    "else\n"
    "four\n"
    "endif\n"
    "last\n"
    "end\n";

TEST(ScriptRun, TakesTheFirstBranchThatHoldsAndNoOther) {
  EXPECT_EQ(RunOf(kLadder, "handclick"), (Lines{"first", "one", "last"}));
  EXPECT_EQ(RunOf(kLadder, "handover"), (Lines{"first", "two", "last"}));
  EXPECT_EQ(RunOf(kLadder, "neither"), (Lines{"first", "four", "last"}));
}

TEST(ScriptRun, GoesOnBehindAnIfWithoutAMatchingBranch) {
  EXPECT_EQ(RunOf("begin\nif action = a\nx\nelseif action = b\ny\nendif\nz\nend\n", "c"),
            (Lines{"z"}));
}

TEST(ScriptRun, RunsAllStatementsOfABranchInOrder) {
  EXPECT_EQ(RunOf("begin\nif action = a\nx\nif action = never\nno\nendif\ny\nz\nendif\nend\n", "a"),
            (Lines{"x", "y", "z"}));
}

TEST(ScriptRun, HandsWholeLinesToTheTargetAndNeverVerifies) {
  ScriptState script = Parsed("begin\n  mtp  toobj_a  rest\nend\n");
  NotedTarget target;
  const ActionText action("x");
  script.Execute(ScriptVariables(action), target);
  EXPECT_EQ(target.statements, (Lines{"  mtp  toobj_a  rest"}));
  EXPECT_FALSE(target.verified);
}

TEST(ScriptRun, AnswersTellWhatRan) {
  NotedTarget target;
  const ActionText a("a");
  const ActionText b("b");
  ScriptState script = Parsed("if action = a\nx\nendif\n");
  EXPECT_EQ(script.Execute(ScriptVariables(a), target), Answer::kTrue);
  EXPECT_EQ(script.Execute(ScriptVariables(b), target), Answer::kTrue)
      << "whether a branch ran or not";
  const Command& branch = script.Root().Children()[0];
  EXPECT_EQ(branch.Execute(ScriptVariables(a), target), Answer::kTrue);
  EXPECT_EQ(branch.Execute(ScriptVariables(b), target), Answer::kFalse);
  EXPECT_EQ(Parsed("begin\nx\nend\n").Execute(ScriptVariables(a), target), Answer::kEmpty);
  EXPECT_EQ(Parsed("x\n").Execute(ScriptVariables(a), target), Answer::kEmpty);
}

TEST(ScriptRun, AnElseIsTrueForAnyAction) {
  ScriptState script = Parsed("if action = a\nx\nelse\ny\nendif\n");
  NotedTarget target;
  const ActionText action("b");
  EXPECT_EQ(script.Root().Children()[1].Execute(ScriptVariables(action), target), Answer::kTrue);
  EXPECT_EQ(target.statements, (Lines{"y"}));
}

TEST(ScriptRun, APatternThatHoldsElseRunsForAnyAction) {
  EXPECT_EQ(RunOf("begin\nif action = *elsewhere\nx\nendif\nend\n", "handmouseclick"),
            (Lines{"x"}));
}

TEST(ScriptRun, TheStatementsOfAnIfThatHoldsEndRunForAnyAction) {
  EXPECT_EQ(RunOf("begin\nif action = *blender\nx\nendif\nnever\nend\n", "handmouseclick"),
            (Lines{"x"}));
}

TEST(ScriptRun, TheOperatorIsNeverLookedAtAndFurtherWordsAreNot) {
  EXPECT_EQ(RunOf("begin\nif action isnot a b c\nx\nendif\nend\n", "a"), (Lines{"x"}));
}

TEST(ScriptRun, TheVariableIsFoundInAnyCase) {
  EXPECT_EQ(RunOf("begin\nif ACTION = a\nx\nendif\nend\n", "a"), (Lines{"x"}));
}

TEST(ScriptRun, KeepsNothingBetweenRuns) {
  ScriptState script = Parsed(kLadder);
  NotedTarget target;
  for (const char* text : {"aclick", "aover", "aclick"}) {
    const ActionText action(text);
    target.statements.clear();
    script.Execute(ScriptVariables(action), target);
    EXPECT_EQ(target.statements[1], std::string(text) == "aover" ? "two" : "one");
  }
}

TEST(ScriptRun, AChoiceThatIsRememberedIsTheOneThatTheTextGets) {
  const std::string text =
      "begin\nif action = *one\nfirst\nelseif action = two\nsecond\nelse\nother\nendif\nend\n";
  ScriptState script = Parsed(text);
  ActionTable table;
  for (int round = 0; round < 3; ++round) {
    for (const char* action : {"aone", "two", "TWO", "three", "aone", "one", "four", "two"}) {
      NotedTarget target;
      script.Execute(ScriptVariables(table.Get(action)), target);
      EXPECT_EQ(target.statements, RunOf(text, action)) << action;
    }
  }
}

TEST(ScriptRun, AConditionThatIsFatalIsFatalEachTimeItIsAsked) {
  ScriptState script = Parsed("begin\nif mood = x\ny\nendif\nend\n");
  ActionTable table;
  NotedTarget target;
  for (int i = 0; i < 2; ++i) {
    EXPECT_THROW(script.Execute(ScriptVariables(table.Get("a")), target), FatalError);
  }
}

// Runs its own script once more, with another text, from inside a statement.
class ReentrantTarget : public ScriptTarget {
 public:
  ReentrantTarget(const ScriptState& script, ActionTable& table) : script_(script), table_(table) {}
  Lines statements;
  void Interpret(const Statement& statement, bool, bool&) override {
    statements.push_back(statement.Text());
    if (statements.size() == 1) script_.Execute(ScriptVariables(table_.Get("two")), *this);
  }

 private:
  const ScriptState& script_;
  ActionTable& table_;
};

TEST(ScriptRun, AScriptMayRunInTheMiddleOfItself) {
  ScriptState script =
      Parsed("begin\nif action = one\na\nb\nelseif action = two\nc\nendif\nd\nend\n");
  ActionTable table;
  for (int round = 0; round < 2; ++round) {
    ReentrantTarget target(script, table);
    script.Execute(ScriptVariables(table.Get("one")), target);
    EXPECT_EQ(target.statements, (Lines{"a", "c", "d", "b", "d"}));
  }
}

TEST(ScriptRun, AnotherVariableThanActionIsFatalWhenItIsAskedFor) {
  const std::string script = "begin\nif action = a\nx\nelseif state = b\ny\nendif\nend\n";
  EXPECT_EQ(RunOf(script, "a"), (Lines{"x"}));
  EXPECT_EQ(RunFault(script, "b"),
            "s.txt:4: a condition can only test the variable \"action\": \" state = b\"");
}

TEST(ScriptRun, AConditionOfFewerThanThreeWordsIsFatalWhenItIsAskedFor) {
  EXPECT_EQ(RunFault("begin\nif action =\nx\nendif\nend\n", "a"),
            "s.txt:2: a condition needs three words, as in \"if action = *mouseclick\", and "
            "\" action =\" has 2");
  EXPECT_EQ(RunFault("begin\nif\nx\nendif\nend\n", "a"),
            "s.txt:2: a condition needs three words, as in \"if action = *mouseclick\", and "
            "\"\" has 0");
}

TEST(Statements, TheVerbSaysWhatTheSecondWordIs) {
  EXPECT_EQ(Statement("mtp a").Meaning(), StatementMeaning::kMessage);
  EXPECT_EQ(Statement("change a").Meaning(), StatementMeaning::kState);
  EXPECT_EQ(Statement("runstate a").Meaning(), StatementMeaning::kPassingState);
  EXPECT_EQ(Statement("runsound a").Meaning(), StatementMeaning::kSound);
  EXPECT_EQ(Statement("message a").Meaning(), StatementMeaning::kNothing);
  EXPECT_TRUE(Statement("mtp a").HasArgument());
  EXPECT_FALSE(Statement("mtp ").HasArgument());
  EXPECT_EQ(StatementWords().size(), 4U);
}

TEST(Statements, VerbsAreReadInAnyCaseAndOtherWordsAreNone) {
  EXPECT_EQ(Statement("mtp a").Verb(), StatementVerb::kMtp);
  EXPECT_EQ(Statement("MTP a").Verb(), StatementVerb::kMtp);
  EXPECT_EQ(Statement("  Change a").Verb(), StatementVerb::kChange);
  EXPECT_EQ(Statement("RunSound a").Verb(), StatementVerb::kRunSound);
  EXPECT_EQ(Statement("runSTATE a").Verb(), StatementVerb::kRunState);
  for (const char* other : {"message a", "true", "changes a", "If action = x", "", "   "}) {
    EXPECT_EQ(Statement(other).Verb(), StatementVerb::kOther) << other;
  }
}

TEST(Statements, TheArgumentIsTheSecondWord) {
  EXPECT_EQ(Statement("  change   Better1  more").Argument(), "Better1");
}

TEST(Statements, AMissingArgumentIsFatalAndNamesTheLine) {
  EXPECT_EQ(FatalOf([] {
              Statement("change", {"Info\\s.txt", 7}).Argument();
            }),
            "Info\\s.txt:7: the statement \"change\" needs a second word");
}

// Notes the branches that a script takes.
class NotedBranches : public BranchListener {
 public:
  void Chosen(const Command* condition, bool matched) override {
    lines.push_back(!matched               ? "none"
                    : condition == nullptr ? "else"
                                           : std::to_string(condition->Place().line));
  }
  Lines lines;
};

TEST(ScriptRun, AListenerHearsWhichBranchIsTaken) {
  ScriptState script = Parsed(std::string(kLadder));
  NotedTarget target;
  ActionTable table;
  NotedBranches branches;
  for (const char* text : {"handclick", "handover", "neither", "handclick"}) {
    script.Execute(ScriptVariables(table.Get(text), &branches), target);
  }
  EXPECT_EQ(branches.lines, (Lines{"3", "5", "else", "3"})) << "also where it is remembered";
}

TEST(ScriptRun, AListenerHearsThatNoBranchMatches) {
  ScriptState script = Parsed("begin\nif action = a\nx\nendif\nend\n");
  NotedTarget target;
  NotedBranches branches;
  const ActionText other("b");
  script.Execute(ScriptVariables(other, &branches), target);
  EXPECT_EQ(branches.lines, (Lines{"none"}));
}

}  // namespace
}  // namespace quendle
