#include "toolbelt/ToolBelt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "toolbelt/PngFile.h"
#include "toolbelt/TemporaryFolder.h"
#include "toolbelt/making/SmallestContent.h"

namespace quendle {
namespace {

struct Folder : TemporaryFolder {
  std::string File(const std::string& name) const { return Path() + "/" + name; }
};

TEST(ToolBelt, UnknownWordsAreAUsageError) {
  EXPECT_EQ(RunToolBelt({}), 2);
  EXPECT_EQ(RunToolBelt({"dance"}), 2);
  EXPECT_EQ(RunToolBelt({"picture", "one"}), 2);
  EXPECT_EQ(RunToolBelt({"drive", "--content", "/no/such/folder"}), 2);
  EXPECT_EQ(RunToolBelt({"--help"}), 0);
}

TEST(ToolBelt, AFolderThatCanNotBeMadeIsAUsageError) {
  const Folder content;
  EXPECT_EQ(RunToolBelt({"drive", "--content", content.Path(), "--user", "/dev/null/player"}), 2);
}

TEST(ToolBelt, AskingForHelpExcusesNoUnknownWord) {
  EXPECT_EQ(RunToolBelt({"dance", "--help"}), 2);
  EXPECT_EQ(RunToolBelt({"--help", "dance"}), 2);
  EXPECT_EQ(RunToolBelt({"new", "--dance", "--help"}), 2);
}

TEST(ToolBelt, AnUnknownWordIsToldWithTheNearestCommand) {
  testing::internal::CaptureStderr();
  RunToolBelt({"rendr"});
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              testing::HasSubstr("\"rendr\"; did you mean \"render\"?"));
}

std::string HelpOf(std::vector<std::string> words) {
  words.push_back("--help");
  testing::internal::CaptureStdout();
  EXPECT_EQ(RunToolBelt(words), 0);
  return testing::internal::GetCapturedStdout();
}

TEST(ToolBelt, EveryCommandTellsAnExampleAndItsExitCodes) {
  std::istringstream belt(HelpOf({}));
  int commands = 0;
  bool below_a_group = false;
  for (std::string line; std::getline(belt, line);) {
    if (line.empty() || line.front() != ' ') {
      below_a_group =
          testing::Matches(testing::AnyOf("Playing:", "Checking:", "Making:", "Measuring:"))(line);
    } else if (below_a_group && line[2] != ' ') {
      const std::string name = line.substr(2, line.find(' ', 2) - 2);
      const std::string help = HelpOf({name});
      EXPECT_THAT(help, testing::ContainsRegex("Examples?:\n  quendle " + name + "[ \n]")) << name;
      EXPECT_THAT(help, testing::ContainsRegex("Exit code:\n  0  .+\n  1  .+\n  2  ")) << name;
      ++commands;
    }
  }
  EXPECT_GE(commands, 5);
}

TEST(ToolBelt, AManPageIsAskedForByACommandsName) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(RunToolBelt({"--man"}), 0);
  EXPECT_EQ(RunToolBelt({"--man", "render"}), 0);
  const std::string pages = testing::internal::GetCapturedStdout();
  EXPECT_THAT(pages, testing::HasSubstr(".TH QUENDLE 1\n"));
  EXPECT_THAT(pages, testing::HasSubstr(".TH QUENDLE-RENDER 1\n"));
  EXPECT_THAT(pages, testing::HasSubstr("\\fB\\-\\-state\\fR \\fIOBJECT=STATE\\fR\n"));
  EXPECT_EQ(RunToolBelt({"--man", "dance"}), 2);
  EXPECT_EQ(RunToolBelt({"--man", "render", "dance"}), 2);
}

TEST(ToolBelt, TheHelpFitsATerminal) {
  std::istringstream help(HelpOf({}));
  for (std::string line; std::getline(help, line);) EXPECT_LE(line.size(), 80u) << line;
}

TEST(ToolBelt, ANewTreeIsMadeOnlyWhereNothingIs) {
  Folder folder;
  EXPECT_EQ(RunToolBelt({"new", folder.File("tree")}), 0);
  EXPECT_TRUE(std::filesystem::exists(folder.File("tree/Info/screens.txt")));
  EXPECT_EQ(RunToolBelt({"new", folder.File("tree")}), 1);
}

TEST(ToolBelt, ANewTreeNeedsAFolder) {
  Folder folder;
  std::ofstream(folder.File("file")) << "x";
  for (const std::string& name : {std::string(), folder.File("file"), folder.File("file/tree")}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunToolBelt({"new", name}), 1) << name;
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::Not(testing::HasSubstr("filesystem error")));
  }
  EXPECT_FALSE(std::filesystem::exists("Info"));
}

TEST(ToolBelt, AFolderWithoutContentIsToldAsThat) {
  Folder folder;
  const std::string picture = folder.File("hall.png");
  for (const std::vector<std::string>& words : {std::vector<std::string>{"walk", folder.Path()},
                                                {"tree", folder.Path()},
                                                {"random", folder.Path()},
                                                {"render", folder.Path(), "hall", picture},
                                                {"bench", "--content", folder.Path()}}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunToolBelt(words), 1) << words.front();
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::HasSubstr(": there is no content: a tree has a folder \"Info\"\n"));
  }
}

TEST(ToolBelt, ABenchOfABrokenGameEndsWithThree) {
  Folder folder;
  MakeNewContent(folder.File("tree"));
  std::filesystem::remove(folder.File("tree/Info/screens.txt"));
  EXPECT_EQ(RunToolBelt({"bench", "--content", folder.File("tree")}), 3);
}

TEST(ToolBelt, AStateIsGivenAsOneOfAnObject) {
  Folder folder;
  MakeNewContent(folder.File("tree"));
  for (const char* state : {"backdoor", "=default", "backdoor="}) {
    EXPECT_EQ(RunToolBelt({"render", folder.File("tree"), "hall", folder.File("hall.png"),
                           "--state", state}),
              2)
        << state;
  }
}

TEST(ToolBelt, NamesOfContentAreReadAndToldAsTheTerminalWritesThem) {
  Folder folder;
  const std::string tree = folder.File("tree");
  MakeNewContent(tree);
  std::ofstream(tree + "/Info/hall/hall.txt")
      << "hall\ns\xE4le\n0\n0\n0\n0\n<CurrentDirectory>\\halldata.txt\nnothing\nstate_default\n";
  const std::string hall = "s\xC3\xA4le";
  EXPECT_EQ(RunToolBelt({"render", tree, hall, folder.File("hall.png")}), 0);
  testing::internal::CaptureStdout();
  EXPECT_EQ(RunToolBelt({"tree", tree, hall}), 0);
  EXPECT_THAT(testing::internal::GetCapturedStdout(),
              testing::StartsWith(hall + std::string(28, ' ') + "hall "))
      << "in its column";
  EXPECT_EQ(RunToolBelt({"random", tree, "--events", "1", "--from", hall}), 0);
  testing::internal::CaptureStderr();
  EXPECT_EQ(RunToolBelt({"tree", tree, hall + "x"}), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "quendle: there is no screen \"" + hall + "x\"; did you mean \"" + hall + "\"?\n");
}

TEST(ToolBelt, AScreenIsRenderedAndTheTreeStaysAsItWas) {
  Folder folder;
  MakeNewContent(folder.File("tree"));
  const std::string picture = folder.File("hall.png");
  EXPECT_EQ(RunToolBelt({"render", folder.File("tree"), "hall", picture}), 0);
  const SheerPicture hall = ReadPng(picture);
  EXPECT_EQ(hall.width, 800);
  EXPECT_EQ(hall.height, 600);
  EXPECT_EQ(hall.pixels[799] & 0xFFFFFF, 0xF2E2BFu);
  EXPECT_FALSE(std::filesystem::exists(folder.File("tree/GameRunning.txt")));
  EXPECT_EQ(RunToolBelt({"render", folder.File("tree"), "hell", picture}), 1);
  std::filesystem::remove(folder.File("tree/Info/screens.txt"));
  EXPECT_EQ(RunToolBelt({"render", folder.File("tree"), "hall", picture}), 3);
}

TEST(ToolBelt, ABenchWithoutItsInputsFails) {
  Folder folder;
  EXPECT_EQ(RunToolBelt({"bench", "W1", "--data", folder.File("")}), 1);
  EXPECT_EQ(RunToolBelt({"bench", "W3", "--data", folder.File("")}), 1);
  EXPECT_EQ(RunToolBelt({"bench", "W2", "--data", folder.File("")}), 0);
}

}  // namespace
}  // namespace quendle
