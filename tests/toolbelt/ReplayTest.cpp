#include "toolbelt/play/Replay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "backends/files/ContentHash.h"
#include "backends/files/DiskFileSystem.h"
#include "toolbelt/TemporaryFolder.h"
#include "toolbelt/drive/Drive.h"
#include "toolbelt/making/SmallestContent.h"

namespace quendle {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct ReplayTest : testing::Test {
  ReplayTest() { MakeNewContent(content); }

  // Records a session of the smallest content by commands; "play" and its answers come first.
  void Record(const std::string& commands, DriveOptions options = {}) {
    Faults faults;
    DiskFileSystem files({content, user, ""}, faults);
    options.tester = 50;
    options.content_hash = [this] { return HashOfContent(content); };
    DriveSession session(files, faults, content, options);
    // The window path begins with a warning.
    const std::string first = options.window_path ? "answer ok\n" : "";
    std::istringstream in(first + "answer record\nanswer tour.txt\nplay\n" + commands);
    std::ostringstream answers;
    exit_code = RunDriveSession(session, in, answers);
  }
  // Gives what is told; the exit code is kept.
  std::string Replay(bool update = false) {
    std::ostringstream out;
    testing::internal::CaptureStderr();
    try {
      exit_code = RunReplay({content, Path("tour.txt"), update}, out);
    } catch (...) {
      testing::internal::GetCapturedStderr();
      throw;
    }
    notes = testing::internal::GetCapturedStderr();
    return out.str();
  }
  std::string Path(const std::string& name) const { return user + "/" + name; }
  std::string Bytes(const std::string& path) const {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void Put(const std::string& path, const std::string& bytes) const {
    std::ofstream(path, std::ios::binary) << bytes;
  }
  void Change(const std::string& name, const std::string& from, const std::string& to) const {
    std::string bytes = Bytes(Path(name));
    const std::size_t at = bytes.find(from);
    ASSERT_NE(at, std::string::npos) << from << " in " << bytes;
    Put(Path(name), bytes.replace(at, from.size(), to));
  }

  static constexpr const char* kTour =
      "tick 523\nmove 400 500\ntick 7\nclick 400 470\ntick 1970\nfocus off\ntick 700\nfocus on\n"
      "tick 900\nmove 20 30\nkey 27\ntick 960\n";

  TemporaryFolder folder;
  std::string content = folder.Path() + "/content";
  std::string user = folder.Path() + "/user";
  int exit_code = -1;
  std::string notes;
};

TEST_F(ReplayTest, ASessionIsTheSameWhenItIsPlayedAnew) {
  Record(std::string(kTour) + "close\n");
  EXPECT_THAT(Replay(), StartsWith("the same: "));
  EXPECT_EQ(exit_code, 0);
  EXPECT_EQ(notes, "");
}

TEST_F(ReplayTest, ASessionThatWasBrokenOffIsReplayedAsFarAsItGoes) {
  Record(std::string(kTour) + "quit\n");
  EXPECT_THAT(Replay(), StartsWith("the same: "));
}

TEST_F(ReplayTest, AnotherCoordinateIsTheFirstDifferenceWithItsSecondObjectAndField) {
  Record(kTour);
  Change("tour.txt", "\r\n20\r\n30\r\n", "\r\n25\r\n30\r\n");
  EXPECT_EQ(Replay(), "second 5: cursors/handcursor: x: expected \"4\", found \"9\"\n");
  EXPECT_EQ(exit_code, 1);
}

TEST_F(ReplayTest, AnotherMomentThanTheRecordedIsFound) {
  Record(kTour);
  // The click comes two seconds late.
  Change("tour.sidecar.txt", "action 530", "action 2480");
  EXPECT_THAT(Replay(), StartsWith("second 1: (game): screen: expected "));
  EXPECT_EQ(exit_code, 1);
}

TEST_F(ReplayTest, AKeyThatIsMissingIsFound) {
  Record(kTour);
  Change("tour.sidecar.txt", "key 4100 27\r\n", "");
  EXPECT_THAT(Replay(), HasSubstr("dialogActive: expected \"on\", found \"off\""));
}

TEST_F(ReplayTest, UpdateWritesTheSidecarThatIsFound) {
  Record(kTour);
  Change("tour.txt", "\r\n20\r\n30\r\n", "\r\n25\r\n30\r\n");
  EXPECT_THAT(Replay(true), HasSubstr("tour.sidecar.txt: written"));
  EXPECT_EQ(exit_code, 0);
  EXPECT_THAT(Replay(), StartsWith("the same: "));
}

TEST_F(ReplayTest, AnUpdateWithoutAChangeChangesNothing) {
  Record(std::string(kTour) + "close\n");
  const std::string before = Bytes(Path("tour.sidecar.txt"));
  Replay(true);
  EXPECT_EQ(Bytes(Path("tour.sidecar.txt")), before);
}

TEST_F(ReplayTest, ASessionWithoutASidecarIsRefusedAndUpdateMakesOneFromItsTicks) {
  std::filesystem::create_directories(user);
  Put(Path("tour.txt"), "B\nmc\nmc\n10\n400\n470\nE\nB\nmm\nmm\n30\n7\n8\nE\n");
  EXPECT_THROW(Replay(), std::runtime_error);
  Replay(true);
  EXPECT_THAT(Bytes(Path("tour.sidecar.txt")), HasSubstr("action 500\r\n"));
  EXPECT_THAT(Bytes(Path("tour.sidecar.txt")), HasSubstr("action 2000\r\n"));
  EXPECT_THAT(Replay(), StartsWith("the same: "));
}

TEST_F(ReplayTest, WhatWasSavedBeforeTheRecordingIsThereAgain) {
  Record("tick 100\nclick 400 470\ntick 2000\nclose\n");
  Record("tick 2000\nclose\n");
  EXPECT_THAT(Bytes(Path("tour.sidecar.txt")), HasSubstr("file userdata.txt\r\n|"));
  EXPECT_THAT(Replay(), StartsWith("the same: "));
}

TEST_F(ReplayTest, SeedEditionPathAndClockAreThoseOfTheRecording) {
  DriveOptions options;
  options.edition = 1;
  options.seed = 99;
  options.window_path = true;
  Record("clock 86399.5\ntick 3000\nclose\n", options);
  const std::string sidecar = Bytes(Path("tour.sidecar.txt"));
  for (const char* line : {"edition 1\r\n", "seed 99\r\n", "path window\r\n"}) {
    EXPECT_THAT(sidecar, HasSubstr(line));
  }
  EXPECT_THAT(Replay(), StartsWith("the same: "));
}

TEST_F(ReplayTest, ChangedContentIsANoteAndOnlyAChangedStateADifference) {
  Record(kTour);
  Put(content + "/Info/unused.txt", "more");
  EXPECT_THAT(Replay(), StartsWith("the same: "));
  EXPECT_THAT(notes, HasSubstr("the content is not the one of the recording"));
}

TEST_F(ReplayTest, AGameThatEndsFatallyIsToldWithItsOwnCode) {
  Record(kTour);
  std::filesystem::remove(content + "/Info/screens.txt");
  EXPECT_THAT(Replay(), HasSubstr("the game ended fatally: "));
  EXPECT_EQ(exit_code, 3);
}

TEST_F(ReplayTest, AFileThatIsNoSessionIsFatal) {
  Record(kTour);
  Put(Path("tour.txt"), "B\nmc\nmc\nsoon\n");
  EXPECT_THROW(Replay(), FatalError);
}

TEST_F(ReplayTest, PlayedBackByTheRecorderASessionOnTheTicksGivesTheSameStates) {
  // Presses that come on a tick of the recorder are played on that very tick.
  Record("tick 500\nmove 30 40\ntick 50\nclick 400 470\ntick 1450\nquit\n");
  const std::string recorded = Bytes(Path("tour.sidecar.txt"));
  Faults faults;
  DiskFileSystem files({content, user, ""}, faults);
  DriveOptions options;
  options.tester = 50;
  DriveSession session(files, faults, content, options);
  std::istringstream in(
      "answer play\nanswer tour.txt\nplay\ntick 2000\nobject cursors/handcursor\n");
  std::ostringstream answers;
  EXPECT_EQ(RunDriveSession(session, in, answers), 0);
  EXPECT_THAT(answers.str(), HasSubstr("\"x\":384"));
  EXPECT_THAT(recorded, HasSubstr(" x = 384\r\n"));
}

TEST(ContentHash, ItDependsOnNamesAndBytesBelowTheFolderOnly) {
  const TemporaryFolder folder;
  namespace fs = std::filesystem;
  fs::create_directories(folder.Path() + "/Info/hall");
  const auto put = [&](const std::string& name, const std::string& bytes) {
    std::ofstream(folder.Path() + "/" + name, std::ios::binary) << bytes;
  };
  put("Info/hall/dog.txt", "dog");
  const std::string first = HashOfContent(folder.Path());
  EXPECT_EQ(first.size(), 16u);
  put("userdata.txt", "saved");
  EXPECT_EQ(HashOfContent(folder.Path()), first);
  put("Info/hall/dog.txt", "cat");
  EXPECT_NE(HashOfContent(folder.Path()), first);
  put("Info/hall/dog.txt", "dog");
  EXPECT_EQ(HashOfContent(folder.Path()), first);
  fs::rename(folder.Path() + "/Info/hall/dog.txt", folder.Path() + "/Info/hall/cat.txt");
  EXPECT_NE(HashOfContent(folder.Path()), first);
}

}  // namespace
}  // namespace quendle
