#include "diagnostics/TestingObject.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "base/Watch.h"
#include "diagnostics/Debomb_Window.h"
#include "platform/Faults.h"

namespace quendle {
namespace {

struct LogBench : testing::Test {
  Faults faults;
  MemoryFileSystem files{"C:\\game", &faults};
  TestingObject log{files, "C:\\game"};
  std::string File(const std::string& name) { return files.Get("\\" + name).value_or("(none)"); }
};

using TestingObjectTest = LogBench;

TEST_F(TestingObjectTest, AMessageAtTheThresholdIsWrittenAndOneAboveItIsNot) {
  log.Initialize("general", "general.txt", nullptr, 10);
  log.LogEvent("ten", 10, "general");
  log.LogEvent("eleven", 11, "general");
  log.LogEvent("one", 1, "general");
  EXPECT_EQ(File("general.txt"), "ten\r\none\r\n");
}

TEST_F(TestingObjectTest, WhatIsLoggedIsTraced) {
  struct Lines : Tracer {
    void Trace(const TraceEvent& event) override {
      lines += std::string(event.to) + ": " + std::string(event.text) + "\n";
      EXPECT_EQ(event.kind, TraceKind::kLog);
    }
    std::string lines;
  } lines;
  Watch watch;
  watch.tracer = &lines;
  TestingObject traced(files, "C:\\game", &watch);
  traced.Initialize("general", "general.txt", nullptr, 10);
  traced.LogEvent("told", 10, "general");
  traced.LogEvent("too slight", 11, "general");
  EXPECT_EQ(lines.lines, "general: told\n");
}

TEST_F(TestingObjectTest, CategoriesIgnoreCase) {
  log.Initialize("general", "general.txt", nullptr, 10);
  log.LogEvent("a line", 10, "GENERAL");
  EXPECT_EQ(File("general.txt"), "a line\r\n");
}

TEST_F(TestingObjectTest, TheFileIsNewOnEachRun) {
  files.Put("\\general.txt", "of the last run\r\n");
  log.Initialize("general", "general.txt", nullptr, 10);
  EXPECT_EQ(File("general.txt"), "");
}

TEST_F(TestingObjectTest, EachLineIsInTheFileAtOnce) {
  log.Initialize("general", "general.txt", nullptr, 10);
  log.LogEvent("first", 1, "general");
  EXPECT_EQ(File("general.txt"), "first\r\n");
  log.LogEvent("second", 1, "general");
  EXPECT_EQ(File("general.txt"), "first\r\nsecond\r\n");
}

TEST_F(TestingObjectTest, ARegisteredFileBeginsWithALineOfItsOwn) {
  log.RegisterNewEventFile("sound", "sound.txt", 5);
  log.LogEvent("five", 5, "Sound");
  log.LogEvent("six", 6, "Sound");
  EXPECT_EQ(File("sound.txt"), "Initializing the Event Log\r\nfive\r\n");
}

TEST_F(TestingObjectTest, CategoriesHaveFilesAndThresholdsOfTheirOwn) {
  log.Initialize("general", "general.txt", nullptr, 10);
  log.Initialize("draw", "draw.txt", nullptr, 2);
  log.LogEvent("a", 5, "general");
  log.LogEvent("b", 5, "draw");
  log.LogEvent("c", 2, "draw");
  EXPECT_EQ(File("general.txt"), "a\r\n");
  EXPECT_EQ(File("draw.txt"), "c\r\n");
}

TEST_F(TestingObjectTest, ASecondInitializeOfACategoryIsFatal) {
  log.Initialize("general", "general.txt", nullptr, 10);
  EXPECT_THROW(log.Initialize("GENERAL", "other.txt", nullptr, 10), FatalError);
}

TEST_F(TestingObjectTest, AnUnknownCategoryIsFatalAndNamesTheNearest) {
  log.Initialize("general", "general.txt", nullptr, 10);
  try {
    log.LogEvent("x", 1, "genral");
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_NE(error.Text().find("genral"), std::string::npos) << error.Text();
    EXPECT_NE(error.Text().find("did you mean \"general\""), std::string::npos) << error.Text();
  }
}

TEST_F(TestingObjectTest, AFileThatCannotBeMadeIsFatalAndNamed) {
  faults.Plan("open", 0, 0, false);
  try {
    log.Initialize("general", "general.txt", nullptr, 10);
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_EQ(error.Place().file, "general.txt");
  }
}

TEST_F(TestingObjectTest, ALineThatCannotBeWrittenEndsNothing) {
  log.Initialize("general", "general.txt", nullptr, 10);
  faults.Plan("writeline", 0, 1, false);
  log.LogEvent("lost", 1, "general");
  log.LogEvent("kept", 1, "general");
  EXPECT_NE(File("general.txt").find("kept"), std::string::npos);
}

TEST_F(TestingObjectTest, TheWindowShowsTheNewestLineOnTop) {
  log.Initialize("general", "general.txt", nullptr, 10);
  Debomb_Window window;
  log.SetWriteToFile(false);
  log.SetWriteToWindow(&window);
  log.LogEvent("one", 1, "general");
  log.LogEvent("two", 1, "general");
  log.LogEvent("not accepted", 11, "general");
  EXPECT_EQ(window.txt_diffuse, "two\r\none\r\n");
  EXPECT_EQ(window.caption, "Quendle -- Debomber");
  EXPECT_EQ(File("general.txt"), "");
}

TEST_F(TestingObjectTest, TheFileComesBeforeTheWindow) {
  log.Initialize("general", "general.txt", nullptr, 10);
  Debomb_Window window;
  log.SetWriteToWindow(&window);
  log.LogEvent("one", 1, "general");
  EXPECT_EQ(window.txt_diffuse, "");
  EXPECT_EQ(File("general.txt"), "one\r\n");
}

TEST_F(TestingObjectTest, AMirrorShowsWhatTheFileTakes) {
  log.Initialize("general", "general.txt", nullptr, 10);
  Debomb_Window mirror;
  log.SetMirror(&mirror);
  log.LogEvent("one", 1, "general");
  log.LogEvent("two", 10, "general");
  log.LogEvent("not accepted", 11, "general");
  EXPECT_EQ(mirror.txt_diffuse, "two\r\none\r\n");
  EXPECT_EQ(File("general.txt"), "one\r\ntwo\r\n") << "the file misses none";
}

}  // namespace
}  // namespace quendle
