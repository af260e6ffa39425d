#include "shell/SettingsFiles.h"

#include <gtest/gtest.h>

#include "base/FatalError.h"
#include "dialogs/FormBench.h"

namespace quendle {
namespace {

struct SettingsFilesTest : testing::Test, FormBench {
  SettingsFiles settings_files{content, settings};

  template <class Action>
  std::string FaultOf(Action action) {
    try {
      action();
    } catch (const FatalError& error) {
      return error.what();
    }
    return "(none)";
  }
};

TEST_F(SettingsFilesTest, WithoutFilesTheDefaultsHold) {
  settings.PersonalizeOn = true;
  settings.DifficultyLevel = "Hard";
  settings.GraphicsMode = 16;
  files.Record(true);
  settings_files.ReadOptions();
  EXPECT_FALSE(settings.PersonalizeOn);
  EXPECT_EQ(settings.DifficultyLevel, "normal");
  EXPECT_EQ(settings.GraphicsMode, 32);
  EXPECT_TRUE(files.Paths().empty()) << "reading makes no file";
}

TEST_F(SettingsFilesTest, WordsAndFileNamesAreReadWithoutRegardToCase) {
  Put("PERSONALIZE.TXT", "oN\r\n");
  Put("difficultylevel.txt", "EASY\n");
  Put("graphicsmode.TXT", "16");
  settings_files.ReadOptions();
  EXPECT_TRUE(settings.PersonalizeOn);
  EXPECT_EQ(settings.DifficultyLevel, "Easy");
  EXPECT_EQ(settings.GraphicsMode, 16);

  Put("difficultylevel.txt", "hard\r\nEasy\r\n");
  Put("PERSONALIZE.TXT", "off\r\n");
  Put("graphicsmode.TXT", "32\r\n");
  settings_files.ReadOptions();
  EXPECT_FALSE(settings.PersonalizeOn);
  EXPECT_EQ(settings.DifficultyLevel, "Hard") << "only line 1 counts";
  EXPECT_EQ(settings.GraphicsMode, 32);
}

TEST_F(SettingsFilesTest, AnotherWordIsTheDefault) {
  for (const char* word : {"Normal", "normal", "maybe", "\r\nEasy", "24", "on!", "Easy Hard"}) {
    settings.PersonalizeOn = true;
    settings.DifficultyLevel = "Hard";
    settings.GraphicsMode = 16;
    for (const char* name : {"Personalize.txt", "DifficultyLevel.txt", "GraphicsMode.txt"}) {
      Put(name, word);
    }
    settings_files.ReadOptions();
    EXPECT_FALSE(settings.PersonalizeOn) << word;
    EXPECT_EQ(settings.DifficultyLevel, "normal") << word;
    EXPECT_EQ(settings.GraphicsMode, 32) << word;
  }
}

TEST_F(SettingsFilesTest, AnEmptyOptionFileCountsAsMissing) {
  for (const char* name : {"Personalize.txt", "DifficultyLevel.txt", "GraphicsMode.txt"}) {
    Put(name, "");
  }
  settings.PersonalizeOn = true;
  settings.DifficultyLevel = "Hard";
  settings.GraphicsMode = 16;
  EXPECT_EQ(FaultOf([&] { settings_files.ReadOptions(); }), "(none)");
  EXPECT_FALSE(settings.PersonalizeOn);
  EXPECT_EQ(settings.DifficultyLevel, "normal");
  EXPECT_EQ(settings.GraphicsMode, 32);
}

TEST_F(SettingsFilesTest, OptionsAreWrittenWithTheirWords) {
  settings.PersonalizeOn = true;
  settings.DifficultyLevel = "easy";
  settings.GraphicsMode = 16;
  settings_files.SaveOptions();
  EXPECT_EQ(File("personalize.txt"), "On\r\n");
  EXPECT_EQ(File("DifficultyLevel.txt"), "Easy\r\n");
  EXPECT_EQ(File("GraphicsMode.txt"), "16\r\n");

  settings.PersonalizeOn = false;
  settings.DifficultyLevel = "HARD";
  settings.GraphicsMode = 32;
  settings_files.SaveOptions();
  EXPECT_EQ(File("personalize.txt"), "Off\r\n");
  EXPECT_EQ(File("DifficultyLevel.txt"), "Hard\r\n");
  EXPECT_EQ(File("GraphicsMode.txt"), "32\r\n");

  settings.GraphicsMode = 24;
  settings_files.SaveOptions();
  EXPECT_EQ(File("GraphicsMode.txt"), "16\r\n") << "whatever isn't 32 is 16";
}

TEST_F(SettingsFilesTest, NormalIsWrittenWithACapitalAndReadInSmallLetters) {
  for (const char* word : {"Normal", "normal", "anything", ""}) {
    settings.DifficultyLevel = word;
    settings_files.SaveOptions();
    EXPECT_EQ(File("DifficultyLevel.txt"), "Normal\r\n") << word;
    settings_files.ReadOptions();
    EXPECT_EQ(settings.DifficultyLevel, "normal") << word;
  }
}

TEST_F(SettingsFilesTest, TheTwoSpellingsOfPersonalizeAreOneFile) {
  Put("Personalize.txt", "Off\r\n");
  settings.PersonalizeOn = true;
  settings_files.SaveOptions();
  EXPECT_EQ(File("Personalize.txt"), "On\r\n");
  EXPECT_EQ(files.Paths().size(), 3u) << "no second file beside the old one";
}

TEST_F(SettingsFilesTest, AnOptionFileThatCantBeWrittenIsKeptAndTriedAgain) {
  settings.GraphicsMode = 16;
  faults.Plan("write", 1, 2, false);
  settings_files.SaveOptions();
  EXPECT_EQ(File("GraphicsMode.txt"), "(none)");
  EXPECT_TRUE(content.HasUnsaved());
  settings.GraphicsMode = 32;
  settings_files.ReadOptions();
  EXPECT_EQ(settings.GraphicsMode, 16) << "as if it stood on the disk";
  settings_files.WriteGameRunning(true);
  EXPECT_EQ(File("GraphicsMode.txt"), "16\r\n");
  EXPECT_FALSE(content.HasUnsaved());
}

TEST_F(SettingsFilesTest, AFileThatIsThereAndCantBeReadIsFatalAndStays) {
  const std::vector<std::pair<const char*, std::function<void()>>> readers = {
      {"Personalize.txt", [&] { settings_files.ReadOptions(); }},
      {"GameMode.txt", [&] { settings_files.ReadGameMode(); }},
      {"GameRunning.txt", [&] { settings_files.GameRunningIsOn(); }}};
  for (const auto& [name, read] : readers) {
    Put(name, "On");
    faults.Plan("read", 0, 1, false);
    EXPECT_THAT(FaultOf(read), testing::HasSubstr(std::string("The file ") + name)) << name;
    EXPECT_EQ(File(name), "On");
  }
}

TEST_F(SettingsFilesTest, AMissingGameModeIsMadeAndReadAsNormal) {
  settings_files.ReadGameMode();
  EXPECT_EQ(File("GameMode.txt"), "Normal\r\n");
  EXPECT_FALSE(settings.SafeMode);
}

TEST_F(SettingsFilesTest, OnlySafeSetsTheSafeMode) {
  for (const char* word : {"Safe\r\n", "SAFE", "safe\n"}) {
    settings.SafeMode = false;
    Put("gamemode.txt", word);
    settings_files.ReadGameMode();
    EXPECT_TRUE(settings.SafeMode) << word;
    EXPECT_EQ(File("GameMode.txt"), word) << "an existing file stays as it is";
  }
  for (const char* word : {"Normal", "Safety", "\r\nSafe"}) {
    settings.SafeMode = false;
    Put("gamemode.txt", word);
    settings_files.ReadGameMode();
    EXPECT_FALSE(settings.SafeMode) << word;
  }
}

TEST_F(SettingsFilesTest, AnEmptyGameModeIsFatal) {
  Put("GameMode.txt", "");
  EXPECT_EQ(FaultOf([&] { settings_files.ReadGameMode(); }),
            "GameMode.txt:1: the file ends where the game mode should stand");
}

TEST_F(SettingsFilesTest, OnInAnyCaseMeansThatTheLastRunDidNotEndInOrder) {
  for (const char* word : {"On\r\n", "ON", "on"}) {
    Put("gamerunning.txt", word);
    EXPECT_TRUE(settings_files.GameRunningIsOn()) << word;
  }
  for (const char* word : {"Off\r\n", "off", "onward", "\r\nOn"}) {
    Put("gamerunning.txt", word);
    EXPECT_FALSE(settings_files.GameRunningIsOn()) << word;
  }
}

TEST_F(SettingsFilesTest, AMissingGameRunningIsACleanEndAndIsNotMade) {
  EXPECT_FALSE(settings_files.GameRunningIsOn());
  EXPECT_EQ(File("GameRunning.txt"), "(none)");
}

TEST_F(SettingsFilesTest, AnEmptyGameRunningIsFatal) {
  Put("GameRunning.txt", "");
  EXPECT_EQ(FaultOf([&] { settings_files.GameRunningIsOn(); }),
            "GameRunning.txt:1: the file ends where the word On or Off should stand");
}

TEST_F(SettingsFilesTest, TheRunIsMarkedOnAndOff) {
  settings_files.WriteGameRunning(true);
  EXPECT_EQ(File("GameRunning.txt"), "On\r\n");
  settings_files.WriteGameRunning(false);
  EXPECT_EQ(File("GameRunning.txt"), "Off\r\n");
}

TEST_F(SettingsFilesTest, DialogModeCountsByItsExistenceAlone) {
  EXPECT_FALSE(settings_files.DialogModeExists());
  Put("dialogmode.TXT", "");
  EXPECT_TRUE(settings_files.DialogModeExists());
}

}  // namespace
}  // namespace quendle
