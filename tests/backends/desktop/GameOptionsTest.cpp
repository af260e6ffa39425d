#include "backends/desktop/GameOptions.h"

#include <gtest/gtest.h>

#include "backends/desktop/GameFolders.h"
#include "support/TemporaryFolder.h"

namespace quendle {
namespace {

struct Parsed {
  GameOptions options;
  std::optional<int> exit_code;
};

Parsed Parse(std::vector<const char*> words) {
  words.insert(words.begin(), "wumbly");
  Parsed parsed;
  parsed.options =
      GameOptions::Parse("wumbly", static_cast<int>(words.size()), words.data(), parsed.exit_code);
  return parsed;
}

TEST(GameOptions, WithoutWordsTheGameIsFullScreenAndSharp) {
  Parsed parsed = Parse({});
  EXPECT_FALSE(parsed.exit_code);
  EXPECT_TRUE(parsed.options.window.full_screen);
  EXPECT_EQ(parsed.options.window.scale, ScaleMode::kSharp);
  EXPECT_FALSE(parsed.options.version);
}

TEST(GameOptions, WordsAreTaken) {
  Parsed parsed = Parse({"--window", "--scale", "whole", "--user", "/tmp/u", "--version"});
  EXPECT_FALSE(parsed.options.window.full_screen);
  EXPECT_EQ(parsed.options.window.scale, ScaleMode::kWhole);
  EXPECT_EQ(parsed.options.user, "/tmp/u");
  EXPECT_TRUE(parsed.options.version);
}

TEST(GameOptions, TheRecorderTakesAnIntervalOrItsOwn) {
  EXPECT_FALSE(Parse({}).options.tester);
  EXPECT_EQ(Parse({"--tester", "20"}).options.tester, 20);
  EXPECT_EQ(Parse({"--tester"}).options.tester, 50);
  EXPECT_EQ(Parse({"--tester", "--window"}).options.tester, 50);
}

TEST(GameOptions, CaptionsAreAsLastChosenUnlessAWordSaysOtherwise) {
  EXPECT_EQ(Parse({}).options.captions, std::nullopt);
  EXPECT_EQ(Parse({"--captions"}).options.captions, true);
  EXPECT_EQ(Parse({"--no-captions"}).options.captions, false);
}

TEST(GameOptions, DebuggingIsDoneInAWindow) {
  EXPECT_FALSE(Parse({}).options.debug);
  EXPECT_TRUE(Parse({"--debug"}).options.debug);
  EXPECT_FALSE(Parse({"--debug"}).options.window.full_screen);
}

TEST(GameOptions, AnUnknownWordIsAUsageError) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(Parse({"--nonsense"}).exit_code, 2);
  EXPECT_EQ(Parse({"--scale", "huge"}).exit_code, 2);
  EXPECT_EQ(Parse({"--content", "/no/such/folder"}).exit_code, 2);
  EXPECT_EQ(Parse({"--tester", "0"}).exit_code, 2);
  EXPECT_EQ(Parse({"--tester", "32768"}).exit_code, 2);
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST(GameOptions, HelpEndsTheProgramWell) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(Parse({"--help"}).exit_code, 0);
  EXPECT_NE(testing::internal::GetCapturedStdout().find("--window"), std::string::npos);
}

TEST(GameFolders, TheContentBesideTheExecutableIsFoundInAnyCaseOfLetters) {
  TemporaryFolder folder;
  folder.Make("INFO/Screens.TXT", "x");
  GameFolders folders = GameFolders::Find({}, "wumbly", folder.Path().string());
  EXPECT_EQ(folders.content, folder.Path().string());
}

TEST(GameFolders, TheFolderAskedForIsTheOnlyOneSearched) {
  TemporaryFolder beside;
  beside.Make("Info/screens.txt", "x");
  TemporaryFolder asked;
  GameOptions options;
  options.content = asked.Path().string();
  GameFolders folders = GameFolders::Find(options, "wumbly", beside.Path().string());
  EXPECT_EQ(folders.content, "");
  EXPECT_EQ(folders.searched, (std::vector<std::string>{asked.Path().string()}));
}

TEST(GameFolders, WithoutContentThePlayerIsToldWhereItWasLookedFor) {
  TemporaryFolder empty;
  GameFolders folders = GameFolders::Find({}, "nosuchgame", empty.Path().string());
  EXPECT_EQ(folders.content, "");
  std::string text = ContentMissingText(folders);
  EXPECT_NE(text.find(empty.Path().string()), std::string::npos);
  EXPECT_NE(text.find("/usr/share/nosuchgame"), std::string::npos);
}

}  // namespace
}  // namespace quendle
