#include <gtest/gtest.h>

#include "script/ScriptBench.h"

namespace quendle {
namespace {

TEST(ScriptNodes, EachFormHasItsType) {
  EXPECT_EQ(ShapeOf("begin\n"
                    "if action = a\n"
                    "change x\n"
                    "elseif action = b\n"
                    "runsound y\n"
                    "else\n"
                    "mtp z\n"
                    "endif\n"
                    "end\n"),
            "begin(if(boolif1: action = a(action:change x),"
            "boolelseif1: action = b(action:runsound y),boolelse1(action:mtp z)))");
}

TEST(ScriptNodes, TheWordsOfTypesAreFixed) {
  EXPECT_EQ(NodeTypeName(NodeType::kBegin), "begin");
  EXPECT_EQ(NodeTypeName(NodeType::kIf), "if");
  EXPECT_EQ(NodeTypeName(NodeType::kBoolIf), "boolif1");
  EXPECT_EQ(NodeTypeName(NodeType::kBoolElseIf), "boolelseif1");
  EXPECT_EQ(NodeTypeName(NodeType::kBoolElse), "boolelse1");
  EXPECT_EQ(NodeTypeName(NodeType::kAction), "action");
  EXPECT_EQ(NodeTypeName(Command().Type()), "");
}

TEST(ScriptNodes, AConditionKeepsTheBlanksOfItsLine) {
  EXPECT_EQ(ShapeOf("begin\n  if  action  =  a\n change x\nendif\nend\n"),
            "begin(if(boolif1:    action  =  a(action: change x)))");
}

TEST(ScriptNodes, AnActionKeepsTheWholeLine) {
  EXPECT_EQ(ShapeOf("begin\n   what ever  this is \nend\n"),
            "begin(action:   what ever  this is )");
}

TEST(ScriptNodes, EveryNodeKnowsItsLine) {
  ScriptState script = Parsed("begin\nchange a\nif action = b\nchange c\nendif\nend\n");
  const Command& block = script.Root();
  EXPECT_EQ(block.Place().line, 1);
  EXPECT_EQ(block.Children()[0].Place().line, 2);
  const Command& branch = block.Children()[1].Children()[0];
  EXPECT_EQ(branch.Place().line, 3);
  EXPECT_EQ(branch.Children()[0].Place().line, 4);
  EXPECT_EQ(branch.Children()[0].Place().file, "s.txt");
}

TEST(ScriptNodes, LeadingBlanksAndRunsOfBlanksDoNotMatterForBlockWords) {
  EXPECT_EQ(ShapeOf("   begin   \n   if   action = a\nx\n  endif\n  end\n"),
            "begin(if(boolif1:      action = a(action:x)))");
}

TEST(ScriptBlocks, BeginIsReadInAnyCase) {
  EXPECT_EQ(ShapeOf("BEGIN\nx\nEND\n"), "begin(action:x)");
  EXPECT_EQ(ShapeOf("Begin with this\nx\nEnd\n"), "begin(action:x)");
}

TEST(ScriptBlocks, IfIsReadInSmallLettersOnly) {
  EXPECT_EQ(ShapeOf("begin\nIf action = x\nchange a\nend\n"),
            "begin(action:If action = x,action:change a)");
  EXPECT_EQ(ShapeOf("begin\nIF action = x\nchange a\nend\n"),
            "begin(action:IF action = x,action:change a)");
  EXPECT_EQ(ShapeOf("begin\niffy action = x\nend\n"), "begin(action:iffy action = x)");
}

TEST(ScriptBlocks, ElseIfElseAndEndIfAreReadInAnyCase) {
  EXPECT_EQ(ShapeOf("begin\nif action = a\nx\nELSEIF action = b\ny\nElse\nz\nENDIF\nend\n"),
            "begin(if(boolif1: action = a(action:x),boolelseif1: action = b(action:y),"
            "boolelse1(action:z)))");
}

TEST(ScriptBlocks, OnlyTheStatementAtLineOneIsParsed) {
  EXPECT_EQ(ShapeOf("begin\nx\nend\nchange never\nbegin\nend\n"), "begin(action:x)");
  EXPECT_EQ(ShapeOf("change a\nchange b\n"), "action:change a");
}

TEST(ScriptBlocks, BlocksStandInsideBlocks) {
  EXPECT_EQ(ShapeOf("begin\nbegin\nx\nend\ny\nend\n"), "begin(begin(action:x),action:y)");
}

TEST(ScriptBlocks, TheInnerEndIfBelongsToTheInnerIf) {
  EXPECT_EQ(ShapeOf("begin\n"
                    "if action = a\n"
                    "if action = b\n"
                    "x\n"
                    "endif\n"
                    "y\n"
                    "else\n"
                    "z\n"
                    "endif\n"
                    "w\n"
                    "end\n"),
            "begin(if(boolif1: action = a(if(boolif1: action = b(action:x)),action:y),"
            "boolelse1(action:z)),action:w)");
}

TEST(ScriptBlocks, ABlockInABranchClosesBeforeTheBranchGoesOn) {
  EXPECT_EQ(ShapeOf("begin\nif action = a\nbegin\nx\nend\ny\nendif\nend\n"),
            "begin(if(boolif1: action = a(begin(action:x),action:y)))");
}

TEST(ScriptBlocks, ABranchMayBeEmpty) {
  EXPECT_EQ(ShapeOf("begin\nif action = a\nelseif action = b\nelse\nendif\nend\n"),
            "begin(if(boolif1: action = a,boolelseif1: action = b,boolelse1))");
}

// The word "end" anywhere in a line closes a block.

TEST(ScriptContainment, TheLineBehindBeginIsAlwaysAStatement) {
  EXPECT_EQ(ShapeOf("begin\nrunsound blender\nchange x\nend\n"),
            "begin(action:runsound blender,action:change x)");
}

TEST(ScriptContainment, AnyLaterLineThatHoldsEndClosesTheBlock) {
  EXPECT_EQ(ShapeOf("begin\nchange x\nrunsound blender\nchange never\nend\n"),
            "begin(action:change x)");
  EXPECT_EQ(ShapeOf("begin\nchange x\nrunsound BLENDER\nchange never\nend\n"),
            "begin(action:change x)");
}

TEST(ScriptContainment, ABlockOfNothingReadsEndAsItsStatement) {
  EXPECT_EQ(ShapeOf("begin\nend\nend\n"), "begin(action:end)");
  EXPECT_EQ(ParseFault("begin\nend\n"),
            "s.txt:2: the script ends inside a block that isn't closed (a block needs one "
            "statement and a line \"end\" or \"endif\")");
}

TEST(ScriptContainment, ABeginLineThatHoldsEndIsAnEmptyBlock) {
  EXPECT_EQ(ShapeOf("begin friend\nchange x\n"), "begin");
}

TEST(ScriptContainment, AnIfLineThatHoldsEndHasNoBranches) {
  // What would be its branch falls into the block, which the "endif" closes.
  EXPECT_EQ(ShapeOf("begin\n"
                    "if action = *blendermouseclick\n"
                    "change x\n"
                    "endif\n"
                    "change never\n"
                    "end\n"),
            "begin(if,action:change x)");
}

TEST(ScriptContainment, AnElseIfLineThatHoldsEndClosesTheIf) {
  EXPECT_EQ(ShapeOf("begin\n"
                    "if action = a\n"
                    "x\n"
                    "elseif action = *friend\n"
                    "y\n"
                    "endif\n"
                    "never\n"
                    "end\n"),
            "begin(if(boolif1: action = a(action:x)),action:y)");
}

TEST(ScriptContainment, APatternThatHoldsElseMakesAnUnconditionalBranch) {
  EXPECT_EQ(ShapeOf("begin\nif action = *elsewhere\nx\nendif\nend\n"),
            "begin(if(boolelse1:if action = *where(action:x)))");
  EXPECT_EQ(ShapeOf("begin\nif action = *elseif\nx\nendif\nend\n"),
            "begin(if(boolelseif1:if action = *(action:x)))");
}

TEST(ScriptContainment, AStatementThatHoldsElseEndsTheBranch) {
  EXPECT_EQ(ShapeOf("begin\nif action = a\nx\nchange elsewhere\ny\nendif\nend\n"),
            "begin(if(boolif1: action = a(action:x),boolelse1:change where(action:y)))");
}

TEST(ScriptContainment, AStatementThatHoldsEndIfClosesTheIf) {
  EXPECT_EQ(ShapeOf("begin\nif action = a\nx\nchange bendif\ny\nend\n"),
            "begin(if(boolif1: action = a(action:x)),action:y)");
}

TEST(ScriptContainment, InABranchAPlainEndIsAnAction) {
  EXPECT_EQ(ShapeOf("begin\nif action = a\nend\nrunsound blender\nendif\nx\nend\n"),
            "begin(if(boolif1: action = a(action:end,action:runsound blender)),action:x)");
}

TEST(ScriptContainment, OnlyTheFirstBlockWordIsTakenOutOfACondition) {
  EXPECT_EQ(ShapeOf("begin\nif action = iffy\nx\nendif\nend\n"),
            "begin(if(boolif1: action = iffy(action:x)))");
}

TEST(ScriptFaults, ABlankLineWhereAStatementStandsIsFatal) {
  const std::string text = "a blank line stands where a statement is expected";
  EXPECT_EQ(ParseFault("begin\nchange a\n\nend\n"), "s.txt:3: " + text);
  EXPECT_EQ(ParseFault("begin\n   \nend\n"), "s.txt:2: " + text);
  EXPECT_EQ(ParseFault("\nbegin\nx\nend\n"), "s.txt:1: " + text);
  EXPECT_EQ(ParseFault("begin\nif action = a\n\nendif\nend\n"), "s.txt:3: " + text);
}

TEST(ScriptFaults, BlankLinesBehindTheLastEndAreNeverRead) {
  EXPECT_EQ(ShapeOf("begin\nx\nend\n\n\n"), "begin(action:x)");
}

TEST(ScriptFaults, ABlockThatIsNotClosedIsFatal) {
  const std::string text =
      "the script ends inside a block that isn't closed (a block needs one statement and a line "
      "\"end\" or \"endif\")";
  EXPECT_EQ(ParseFault("begin\nchange a\n"), "s.txt:2: " + text);
  EXPECT_EQ(ParseFault("begin\n"), "s.txt:1: " + text);
  EXPECT_EQ(ParseFault("begin\nif action = a\nchange b\n"), "s.txt:3: " + text);
  EXPECT_EQ(ParseFault("begin\nif action = a\nchange b\nelse\n"), "s.txt:4: " + text);
}

TEST(ScriptFaults, TooManyNestedBlocksAreFatalAndNotTheEndOfTheStack) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "begin\n";
  EXPECT_EQ(ParseFault(text),
            "s.txt:61: more than 60 blocks inside one another: the content is nested too deep at "
            "script line \"begin\"");
}

TEST(ScriptPrinting, AScriptPrintsBackAsItsSource) {
  const Lines source = {"begin",
                        "if action = *handmouseclick",
                        "runsound click",
                        "mtp toobj_doctor_runstate_tryagain",
                        "elseif action = *mouseover",
                        "runstate <incrementstate>",
                        "else",
                        "change default",
                        "endif",
                        "end"};
  std::string text;
  for (const std::string& line : source) text += line + "\n";
  EXPECT_EQ(Printed(text), source);
  EXPECT_TRUE(Parsed(text).VerifyParse(source));
}

TEST(ScriptPrinting, BlanksInFrontOfABlockWordMoveBehindIt) {
  EXPECT_EQ(Printed("  begin\n  if action = a\n  x\n  else \n y\n  endif\n  end\n"),
            (Lines{"begin", "if   action = a", "  x", "else   ", " y", "endif", "end"}));
}

TEST(ScriptPrinting, AnIfWithoutBranchesPrintsItsEnd) {
  EXPECT_EQ(Printed("begin\nif action = *end\nx\nendif\n"), (Lines{"begin", "endif", "x", "end"}));
}

TEST(ScriptPrinting, VerifyParseComparesUpToTheCountOfLinesAndIgnoresCase) {
  const ScriptState script = Parsed("begin\nchange A\nend\n");
  EXPECT_TRUE(script.VerifyParse({"BEGIN", "Change a", "End"}));
  EXPECT_TRUE(script.VerifyParse({"begin", "change a"}));
  EXPECT_TRUE(script.VerifyParse({}));
  EXPECT_FALSE(script.VerifyParse({"begin", "change b", "end"}));
  EXPECT_FALSE(script.VerifyParse({"begin", "change a", "end", ""}));
  EXPECT_FALSE(script.VerifyParse({"begin ", "change a", "end"}));
}

TEST(ScriptPrinting, AppendsToTheList) {
  Lines lines = {"first"};
  Parsed("begin\nx\nend\n").PrintScript(lines);
  EXPECT_EQ(lines, (Lines{"first", "begin", "x", "end"}));
}

}  // namespace
}  // namespace quendle
