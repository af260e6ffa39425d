#include "base/ContentFiles.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "base/EventSink.h"
#include "base/Settings.h"
#include "platform/Faults.h"

namespace quendle {
namespace {

struct Fault {
  std::string what = "no fault";
  std::string box;
};

template <class Work>
Fault FaultOf(Work work) {
  try {
    work();
  } catch (const FatalError& error) {
    return {error.what(), error.BoxText()};
  }
  return {};
}

class ContentFilesTest : public testing::Test {
 protected:
  ContentFilesTest() { settings_.BaseDirectory = "C:\\Clinic"; }

  const std::string door_ = "C:\\Clinic\\Info\\door.txt";
  Faults faults_;
  MemoryFileSystem disk_{"C:\\Clinic", &faults_};
  Settings settings_;
  ContentFiles files_{disk_, settings_};
};

TEST_F(ContentFilesTest, FileExistsAtIgnoresCase) {
  disk_.Put("\\Info\\Door.txt", "");
  EXPECT_TRUE(files_.FileExistsAt(door_));
  EXPECT_FALSE(files_.FileExistsAt("C:\\Clinic\\Info\\window.txt"));
}

TEST_F(ContentFilesTest, AFileIsReadLineByLine) {
  disk_.Put("\\info\\DOOR.txt",
            "\xEF\xBB\xBF"
            "one\r\ntwo\nthree");
  auto stream = files_.OpenTextFileChecked(door_, OpenMode::kRead, false);
  EXPECT_EQ(stream->ReadLine("a line"), "one");
  EXPECT_EQ(stream->ReadLine("a line"), "two");
  EXPECT_FALSE(stream->AtEndOfStream());
  EXPECT_EQ(stream->ReadLine("a line"), "three");
  EXPECT_TRUE(stream->AtEndOfStream());
  EXPECT_EQ(stream->Place().file, "Info\\door.txt");
  EXPECT_EQ(stream->Place().line, 3);
}

TEST_F(ContentFilesTest, ATextOfMoreThanFourMillionBytesIsFatal) {
  disk_.Put("\\Info\\door.txt", std::string(4'000'000, '0'));
  EXPECT_NO_THROW(files_.OpenTextFileChecked(door_, OpenMode::kRead, false));
  disk_.Put("\\Info\\door.txt", std::string(4'000'001, '0'));
  EXPECT_EQ(
      FaultOf([&] { files_.OpenTextFileChecked(door_, OpenMode::kRead, false); }).what,
      "Info\\door.txt: the file has more than 4 million bytes: no text of a game is that long");
}

TEST_F(ContentFilesTest, AMissingFileIsFatalWithExactlyTheBoxThatNamesIt) {
  for (OpenMode mode : {OpenMode::kRead, OpenMode::kWrite}) {
    Fault fault = FaultOf([&] { files_.OpenTextFileChecked(door_, mode, false); });
    EXPECT_EQ(fault.box, "File C:\\Clinic\\Info\\door.txt not found");
    EXPECT_EQ(fault.what, "Info\\door.txt: File C:\\Clinic\\Info\\door.txt not found");
  }
  EXPECT_TRUE(disk_.Paths().empty());
}

TEST_F(ContentFilesTest, AFileThatCannotBeReadIsFatalWithTheReason) {
  disk_.Put("\\Info\\door.txt", "one");
  faults_.Plan("read", 0, 1, false);
  EXPECT_EQ(FaultOf([&] { files_.OpenTextFileChecked(door_, OpenMode::kRead, false); }).box,
            "Info\\door.txt: the file can't be read: Input/output error");
}

TEST_F(ContentFilesTest, AFileOfThePlayerThatCannotBeReadIsNotTakenForAMissingOne) {
  EXPECT_EQ(files_.OpenPlayerFile(door_), nullptr);
  EXPECT_EQ(files_.ReadPlayerFile(door_), std::nullopt);
  disk_.Put("\\Info\\door.txt", "one");
  EXPECT_EQ(files_.ReadPlayerFile(door_), "one");
  faults_.Plan("read", 0, 1, false);
  EXPECT_EQ(FaultOf([&] { files_.OpenPlayerFile(door_); }).box,
            "The file Info\\door.txt can't be opened at the moment (Input/output error).\n"
            "Nothing was changed. Please start the game again later.");
}

TEST_F(ContentFilesTest, AnUnknownTokenIsOrdinaryTextAndFailsAsAMissingFile) {
  EXPECT_EQ(FaultOf([&] {
              files_.OpenTextFileChecked("C:\\Clinic<Elsewhere>\\x.txt", OpenMode::kRead, false);
            }).box,
            "File C:\\Clinic<Elsewhere>\\x.txt not found");
}

TEST_F(ContentFilesTest, ANewFileIsMadeWithTheCreateFlagAndNoMessage) {
  auto written = files_.OpenTextFileChecked(door_, OpenMode::kWrite, true);
  written->Close();
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "");
  auto read = files_.OpenTextFileChecked("C:\\Clinic\\Info\\new.txt", OpenMode::kRead, true);
  EXPECT_TRUE(read->AtEndOfStream());
  EXPECT_EQ(disk_.Get("\\Info\\new.txt"), "");
}

TEST_F(ContentFilesTest, TheCreateFlagLeavesAFileThatIsReadAsItIs) {
  disk_.Put("\\Info\\door.txt", "one\r\n");
  auto stream = files_.OpenTextFileChecked(door_, OpenMode::kRead, true);
  EXPECT_EQ(stream->ReadLine("a line"), "one");
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "one\r\n");
}

TEST_F(ContentFilesTest, AWrittenFileTakesThePlaceOfTheOldOneWhenItIsClosed) {
  disk_.Put("\\Info\\door.txt", "a long old text\r\n");
  auto stream = files_.OpenTextFileChecked(door_, OpenMode::kWrite, false);
  stream->WriteLine("one");
  stream->WriteLine("");
  EXPECT_EQ(stream->Place().line, 2);
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "a long old text\r\n");
  stream->Close();
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "one\r\n\r\n");
}

TEST_F(ContentFilesTest, AStreamThatIsDroppedBeforeCloseLeavesTheOldFile) {
  disk_.Put("\\Info\\door.txt", "old");
  files_.OpenTextFileChecked(door_, OpenMode::kWrite, true)->WriteLine("new");
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "old");
}

TEST_F(ContentFilesTest, AFileIsWrittenOnceHoweverOftenItIsClosed) {
  auto stream = files_.OpenTextFileChecked(door_, OpenMode::kWrite, true);
  stream->WriteLine("one");
  stream->Close();
  disk_.Put("\\Info\\door.txt", "later");
  stream->Close();
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "later");
}

TEST_F(ContentFilesTest, AFileThatIsWrittenCannotBeRead) {
  auto stream = files_.OpenTextFileChecked(door_, OpenMode::kWrite, true);
  EXPECT_TRUE(stream->AtEndOfStream());
  EXPECT_EQ(FaultOf([&] { stream->ReadLine("a line"); }).what,
            "Info\\door.txt: the file is open for writing and can't be read");
}

TEST_F(ContentFilesTest, AFailedWriteIsFatalAndLeavesTheOldFile) {
  disk_.Put("\\Info\\door.txt", "old");
  disk_.Put("\\Info\\from.txt", "from");
  const std::string wanted = "Info\\door.txt: the file can't be written";
  faults_.Plan("write", 0, 0, false);
  auto stream = files_.OpenTextFileChecked(door_, OpenMode::kWrite, true);
  stream->WriteLine("new");
  EXPECT_EQ(FaultOf([&] { stream->Close(); }).what, wanted);
  EXPECT_EQ(FaultOf([&] { files_.CopyFile("C:\\Clinic\\Info\\from.txt", door_); }).what, wanted);
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "old");
}

TEST_F(ContentFilesTest, AFileIsDeletedIfItIsThere) {
  disk_.Put("\\Info\\Door.txt", "");
  files_.DeleteFileIfPresent(door_);
  EXPECT_TRUE(disk_.Paths().empty());
  files_.DeleteFileIfPresent(door_);
}

TEST_F(ContentFilesTest, AFileThatCannotBeDeletedIsFatal) {
  disk_.Put("\\Info\\door.txt", "");
  faults_.Plan("remove", 0, 1, false);
  EXPECT_EQ(FaultOf([&] { files_.DeleteFileIfPresent(door_); }).what,
            "Info\\door.txt: the file can't be deleted");
}

TEST_F(ContentFilesTest, WhatTheDiskRefusesIsKeptReadAndTriedAgain) {
  disk_.Put("\\Info\\door.txt", "old");
  faults_.Plan("write", 0, 0, false);
  files_.WriteOneLine(door_, "new");
  EXPECT_TRUE(files_.HasUnsaved());
  EXPECT_EQ(*files_.Read(door_), "new\r\n");
  EXPECT_EQ(files_.OpenTextFileChecked(door_, OpenMode::kRead, false)->ReadLine("a line"), "new");
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "old");
  EXPECT_FALSE(files_.TryWrite("C:\\Clinic\\other.txt", "other"));
  faults_.Plan("write", 0, 1, false);
  faults_.Fails("write");
  EXPECT_TRUE(files_.TryWrite("C:\\Clinic\\other.txt", "other"));
  EXPECT_EQ(disk_.Get("\\Info\\door.txt"), "new\r\n");
  EXPECT_FALSE(files_.HasUnsaved());
}

TEST_F(ContentFilesTest, WhatIsKeptCanBeDeletedAndReplaced) {
  faults_.Plan("write", 0, 0, false);
  files_.WriteOneLine(door_, "one");
  files_.WriteOneLine("c:\\clinic\\INFO\\Door.txt", "two");
  EXPECT_EQ(*files_.Read(door_), "two\r\n");
  files_.DeleteFileIfPresent(door_);
  EXPECT_FALSE(files_.HasUnsaved());
  EXPECT_FALSE(files_.FileExistsAt(door_));
}

class KeptLines : public EventSink {
 public:
  void LogEvent(std::string_view message, int, std::string_view) override {
    lines.emplace_back(message);
  }
  std::vector<std::string> lines;
};

TEST_F(ContentFilesTest, TheLogIsToldTheReasonAlsoOfWhatWentWrongBeforeIt) {
  KeptLines log;
  disk_.Put("\\Info\\door.txt", "old");
  faults_.Plan("write", 0, 0, false);
  faults_.Plan("remove", 0, 0, false);
  files_.WriteOneLine("C:\\Clinic\\a.txt", "a");
  files_.SetLog(&log);
  files_.TryDelete(door_);
  faults_.Plan("read", 0, 1, false);
  files_.Read(door_);
  EXPECT_EQ(log.lines,
            (std::vector<std::string>{"a.txt can't be written: Input/output error",
                                      "Info\\door.txt can't be deleted: Input/output error",
                                      "Info\\door.txt can't be read: Input/output error"}));
}

TEST_F(ContentFilesTest, WriteOneLineReplacesTheFile) {
  disk_.Put("\\GameMode.txt", "a\r\nb\r\n");
  files_.WriteOneLine("C:\\Clinic\\GameMode.txt", "On");
  EXPECT_EQ(disk_.Get("\\GameMode.txt"), "On\r\n");
}

TEST_F(ContentFilesTest, CopyFileCopiesEveryByte) {
  disk_.Put("\\from.txt", std::string("a\0\r\n\xFF", 5));
  disk_.Put("\\to.txt", "a longer old text");
  files_.CopyFile("C:\\Clinic\\FROM.txt", "C:\\Clinic\\to.txt");
  EXPECT_EQ(disk_.Get("\\to.txt"), std::string("a\0\r\n\xFF", 5));
}

TEST_F(ContentFilesTest, CopyingAMissingFileIsFatal) {
  EXPECT_EQ(FaultOf([&] { files_.CopyFile("C:\\Clinic\\from.txt", door_); }).box,
            "File C:\\Clinic\\from.txt not found");
}

TEST_F(ContentFilesTest, MessagesNameAFileRelativeToTheBaseDirectory) {
  EXPECT_EQ(files_.DisplayName(door_), "Info\\door.txt");
  EXPECT_EQ(files_.DisplayName("c:\\clinic\\x.txt"), "x.txt");
  EXPECT_EQ(files_.BaseDirectory(), "C:\\Clinic");
}

}  // namespace
}  // namespace quendle
