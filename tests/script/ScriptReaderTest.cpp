#include "script/ScriptReader.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "base/ContentFiles.h"
#include "base/PathTokens.h"
#include "base/Settings.h"
#include "script/ScriptBench.h"

namespace quendle {
namespace {

const char* const kScript = "C:\\Game\\Info\\door\\main.txt";

class ScriptReaderTest : public ::testing::Test {
 protected:
  ScriptReaderTest() { settings_.BaseDirectory = "C:\\Game"; }

  Lines ReadLines() {
    Lines texts;
    for (const ScriptLine& line : ReadScriptLines(content_, kScript, paths_)) {
      texts.push_back(line.text);
    }
    return texts;
  }
  void Put(const std::string& path, const std::string& text) { files_.Put(path, text); }

  Settings settings_;
  MemoryFileSystem files_{"C:\\Game"};
  ContentFiles content_{files_, settings_};
  FolderPaths paths_{"\\Info\\door\\"};
  WorkDepth depth_;
};

TEST_F(ScriptReaderTest, ASubscriptLineIsReplacedByTheLinesOfItsFile) {
  Put("\\Info\\door\\main.txt", "begin\nsubscript <CurrentDirectory>\\sub.txt\nend\n");
  Put("\\Info\\door\\sub.txt", " change a\n\nchange b");
  EXPECT_EQ(ReadLines(), (Lines{"begin", " change a", "", "change b", "end"}));
}

TEST_F(ScriptReaderTest, TheWordIsFoundAnywhereInALineAndInAnyCase) {
  Put("\\Info\\door\\main.txt", "begin\n  mySubScripts <GlobalDirectory>\\sub.txt rest\nend\n");
  Put("\\Info\\GlobalReferences\\sub.txt", "change a\n");
  EXPECT_EQ(ReadLines(), (Lines{"begin", "change a", "end"}));
}

TEST_F(ScriptReaderTest, InclusionIsOneLevelDeep) {
  Put("\\Info\\door\\main.txt", "begin\nsubscript <CurrentDirectory>\\sub.txt\nend\n");
  Put("\\Info\\door\\sub.txt", "subscript <CurrentDirectory>\\deeper.txt\nchange a\n");
  EXPECT_EQ(ReadLines(),
            (Lines{"begin", "subscript <CurrentDirectory>\\deeper.txt", "change a", "end"}));
  auto script = LoadScript(content_, "main", kScript, paths_, depth_);
  EXPECT_EQ(Shape(script->Root()),
            "begin(action:subscript <CurrentDirectory>\\deeper.txt,action:change a)");
}

TEST_F(ScriptReaderTest, LinesKeepThePlaceWhereTheyStand) {
  Put("\\Info\\door\\main.txt", "begin\nsubscript <CurrentDirectory>\\sub.txt\nend\n");
  Put("\\Info\\door\\sub.txt", "change a\nchange b\n");
  std::vector<ScriptLine> lines = ReadScriptLines(content_, kScript, paths_);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[2].place.file, "Info\\door\\sub.txt");
  EXPECT_EQ(lines[2].place.line, 2);
  EXPECT_EQ(lines[3].place.file, "Info\\door\\main.txt");
  EXPECT_EQ(lines[3].place.line, 3) << "the subscript line uses up its number";
}

TEST_F(ScriptReaderTest, AFaultInASubscriptNamesItsFile) {
  Put("\\Info\\door\\main.txt", "begin\nsubscript <CurrentDirectory>\\sub.txt\nend\n");
  Put("\\Info\\door\\sub.txt", "change a\n\n");
  EXPECT_EQ(FatalOf([&] { LoadScript(content_, "main", kScript, paths_, depth_); }),
            "Info\\door\\sub.txt:2: a blank line stands where a statement is expected");
}

TEST_F(ScriptReaderTest, ASubscriptLineWithoutAFileIsFatal) {
  Put("\\Info\\door\\main.txt", "begin\nsubscript\nend\n");
  EXPECT_EQ(FatalOf([&] { ReadLines(); }),
            "Info\\door\\main.txt:2: a subscript line needs a file as its second word");
}

TEST_F(ScriptReaderTest, AMissingScriptOrSubscriptIsFatalWithTheBoxOfAMissingFile) {
  EXPECT_EQ(FatalBoxOf([&] { ReadLines(); }), "File C:\\Game\\Info\\door\\main.txt not found");
  Put("\\Info\\door\\main.txt", "begin\nsubscript <CurrentDirectory>\\sub.txt\nend\n");
  EXPECT_EQ(FatalBoxOf([&] { ReadLines(); }), "File C:\\Game\\Info\\door\\sub.txt not found");
}

TEST_F(ScriptReaderTest, AnUnknownTokenIsOrdinaryTextAndSoAMissingFile) {
  Put("\\Info\\door\\main.txt", "begin\nsubscript <HomeDirectory>\\sub.txt\nend\n");
  EXPECT_EQ(FatalBoxOf([&] { ReadLines(); }), "File C:\\Game<HomeDirectory>\\sub.txt not found");
}

TEST_F(ScriptReaderTest, AnEmptyScriptIsFatal) {
  Put("\\Info\\door\\main.txt", "");
  EXPECT_EQ(FatalOf([&] { LoadScript(content_, "main", kScript, paths_, depth_); }),
            "Info\\door\\main.txt: script \"main\" has no lines");
}

TEST_F(ScriptReaderTest, AScriptHasTheNameOfItsRecord) {
  Put("\\Info\\door\\main.txt", "begin\nx\nend\n");
  EXPECT_EQ(LoadScript(content_, "Main", kScript, paths_, depth_)->Name(), "Main");
}

TEST(ScriptLists, AreRecordsOfThreeLines) {
  TextReader reader("main\n\\a.txt\n---\nglobalscript_b\nunused\n\n", "list.txt");
  std::vector<ScriptListRecord> records = ReadScriptList(reader);
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].name, "main");
  EXPECT_EQ(records[0].path, "\\a.txt");
  EXPECT_EQ(records[1].name, "globalscript_b");
  EXPECT_EQ(records[1].place.line, 4);
}

TEST(ScriptLists, AnEmptyListHasNoRecords) {
  TextReader reader("", "list.txt");
  EXPECT_TRUE(ReadScriptList(reader).empty());
}

TEST(ScriptLists, TheLastRecordNeedsItsThirdLine) {
  TextReader two("main\n\\a.txt\n", "list.txt");
  EXPECT_EQ(FatalOf([&] { ReadScriptList(two); }),
            "list.txt:3: the file ends where the third line of the record of script \"main\" "
            "should stand");
  TextReader one("main\n", "list.txt");
  EXPECT_EQ(FatalOf([&] { ReadScriptList(one); }),
            "list.txt:2: the file ends where the path of script \"main\" should stand");
  TextReader blank("main\n\\a.txt\n\n\n", "list.txt");
  EXPECT_EQ(FatalOf([&] { ReadScriptList(blank); }),
            "list.txt:5: the file ends where the path of script \"\" should stand");
}

}  // namespace
}  // namespace quendle
