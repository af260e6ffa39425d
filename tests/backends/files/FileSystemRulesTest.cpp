// The rules that every file system keeps, on the disk and in memory.
#include <gtest/gtest.h>

#include "backends/files/DiskFileSystem.h"
#include "backends/files/MemoryFileSystem.h"
#include "backends/files/TemporaryFolder.h"
#include "platform/Faults.h"

namespace quendle {
namespace {

using namespace std::string_literals;

enum class Kind { kDisk, kDiskWithPlayerFolder, kMemory };

class FileSystemRules : public testing::TestWithParam<Kind> {
 protected:
  FileSystemRules() {
    if (GetParam() == Kind::kMemory) {
      auto memory = std::make_unique<MemoryFileSystem>(Base(), &faults_);
      memory_ = memory.get();
      files_ = std::move(memory);
    } else {
      std::string user = GetParam() == Kind::kDisk ? "" : player_.Path();
      files_ = std::make_unique<DiskFileSystem>(DiskFolders{Base(), user, ""}, faults_);
    }
  }

  const std::string& Base() const { return content_.Path(); }
  // A file that the author made; `path` as content writes it, ASCII.
  void Put(const std::string& path, const std::string& text) {
    if (memory_ != nullptr) {
      ASSERT_TRUE(memory_->Put(path, text));
      return;
    }
    std::string native = path.substr(1);
    for (char& c : native) c = c == '\\' ? '/' : c;
    content_.Put(native, text);
  }
  std::string At(const std::string& path) const { return Base() + path; }
  FileAnswer Read(const std::string& path) { return files_->Read(At(path)); }
  FileChange Write(const std::string& path, const std::string& text) {
    return files_->Write(At(path), text);
  }
  bool Exists(const std::string& path) { return files_->Exists(At(path)); }

  TemporaryFolder content_;
  TemporaryFolder player_;
  Faults faults_;
  std::unique_ptr<FileSystem> files_;
  MemoryFileSystem* memory_ = nullptr;
};

INSTANTIATE_TEST_SUITE_P(Everywhere, FileSystemRules,
                         testing::Values(Kind::kDisk, Kind::kDiskWithPlayerFolder, Kind::kMemory),
                         [](const auto& test) {
                           switch (test.param) {
                             case Kind::kDisk:
                               return "Disk"s;
                             case Kind::kDiskWithPlayerFolder:
                               return "DiskWithPlayerFolder"s;
                             default:
                               return "Memory"s;
                           }
                         });

TEST_P(FileSystemRules, AFileIsReadWithAllItsBytes) {
  const std::string bytes = "\xEF\xBB\xBF one\r\ntwo\nthree\0\xFF last"s;
  Put("\\Info\\x.txt", bytes);
  EXPECT_EQ(Read("\\Info\\x.txt"), bytes);
  Put("\\Info\\empty.txt", "");
  EXPECT_EQ(Read("\\Info\\empty.txt"), "");
  const std::string large(200'000, 'x');
  Put("\\Info\\large.txt", large);
  EXPECT_EQ(Read("\\Info\\large.txt"), large);
}

TEST_P(FileSystemRules, LookupsIgnoreCaseInEveryComponent) {
  Put("\\Info\\Rooms\\Hall.txt", "hall");
  EXPECT_EQ(Read("\\info\\ROOMS\\hALL.TXT"), "hall");
  EXPECT_TRUE(Exists("\\INFO\\rooms\\hall.txt"));
  EXPECT_FALSE(Exists("\\INFO\\rooms\\hal.txt"));
}

TEST_P(FileSystemRules, AnExactNameComesBeforeOneOfOtherCase) {
  Put("\\Info\\Door.txt", "large");
  Put("\\Info\\door.txt", "small");
  EXPECT_EQ(Read("\\Info\\Door.txt"), "large");
  EXPECT_EQ(Read("\\Info\\door.txt"), "small");
  EXPECT_EQ(Read("\\Info\\DOOR.TXT"), "large") << "the first in the order of the letters";
}

TEST_P(FileSystemRules, AnExactFolderComesFirstAndOneOfOtherCaseAfterIt) {
  Put("\\Info\\a.txt", "Info a");
  Put("\\info\\a.txt", "info a");
  Put("\\info\\b.txt", "info b");
  EXPECT_EQ(Read("\\info\\a.txt"), "info a");
  EXPECT_EQ(Read("\\Info\\a.txt"), "Info a");
  EXPECT_EQ(Read("\\Info\\b.txt"), "info b");
}

TEST_P(FileSystemRules, AMissingFileIsNeitherThereNorRead) {
  Put("\\Info\\x.txt", "x");
  for (const char* path : {"\\y.txt", "\\Info\\y.txt", "\\Other\\x.txt", "\\Info\\x.txt\\y.txt"}) {
    EXPECT_FALSE(Exists(path)) << path;
    EXPECT_EQ(Read(path), std::nullopt) << path;
  }
}

TEST_P(FileSystemRules, AFolderIsAMissingFile) {
  Put("\\Info\\Rooms\\x.txt", "x");
  EXPECT_FALSE(Exists("\\Info"));
  EXPECT_FALSE(Exists("\\Info\\"));
  EXPECT_EQ(Read("\\Info\\Rooms"), std::nullopt);
}

TEST_P(FileSystemRules, RefusedPathsAreMissingAndTakeNoWrite) {
  Put("\\Info\\x.txt", "x");
  for (const std::string& path : {"\\..\\x.txt"s, "\\Info\\..\\Info\\x.txt"s, "\\C:\\x.txt"s,
                                  "\\C:x.txt"s, "\\Info\\x.txt\0"s, "\\Info\\x.txt\\"s, "x.txt"s}) {
    EXPECT_FALSE(Exists(path)) << path;
    EXPECT_EQ(Read(path), std::nullopt) << path;
    EXPECT_FALSE(Write(path, "new")) << path;
    EXPECT_TRUE(files_->Remove(At(path))) << path;
    EXPECT_EQ(files_->CreateLineFile(At(path)), nullptr) << path;
  }
  EXPECT_FALSE(files_->Exists("/etc/passwd"));
  EXPECT_EQ(files_->Read("C:\\x.txt"), std::nullopt);
  EXPECT_EQ(Read("\\Info\\x.txt"), "x");
}

TEST_P(FileSystemRules, AWrittenFileIsReadBackUnderAnyCase) {
  ASSERT_TRUE(Write("\\userdata.txt", "saved"));
  EXPECT_EQ(Read("\\UserData.txt"), "saved");
  ASSERT_TRUE(Write("\\USERDATA.TXT", "saved again"));
  EXPECT_EQ(Read("\\userdata.txt"), "saved again");
}

TEST_P(FileSystemRules, AWriteReplacesTheAuthorsFileForReaders) {
  Put("\\Info\\Mode.txt", "a long old text");
  ASSERT_TRUE(Write("\\info\\mode.txt", "new"));
  EXPECT_EQ(Read("\\Info\\Mode.txt"), "new");
}

TEST_P(FileSystemRules, AWriteMakesTheFoldersItNeeds) {
  ASSERT_TRUE(Write("\\Info\\images\\person\\face.bmp", "face"));
  EXPECT_EQ(Read("\\info\\Images\\Person\\face.bmp"), "face");
}

TEST_P(FileSystemRules, NoFileIsWrittenWhereAFolderStandsOrBelowAFile) {
  ASSERT_TRUE(Write("\\Info\\x.txt", "x"));
  EXPECT_FALSE(Write("\\Info", "file"));
  EXPECT_FALSE(Write("\\INFO", "file"));
  EXPECT_FALSE(Write("\\Info\\x.txt\\y.txt", "file"));
  EXPECT_FALSE(Write("\\Info\\X.TXT\\y.txt", "file"));
  EXPECT_EQ(Read("\\Info\\x.txt"), "x");
}

TEST_P(FileSystemRules, LargeAndEmptyFilesAreWrittenWhole) {
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) bytes += static_cast<char>(i * 7);
  ASSERT_TRUE(Write("\\large.bin", bytes));
  EXPECT_EQ(Read("\\large.bin"), bytes);
  ASSERT_TRUE(Write("\\large.bin", ""));
  EXPECT_EQ(Read("\\large.bin"), "");
}

TEST_P(FileSystemRules, ARemovedFileIsGoneForReadersAndCanComeBack) {
  Put("\\Info\\x.txt", "author");
  ASSERT_TRUE(Write("\\autosave.txt", "mine"));
  EXPECT_TRUE(files_->Remove(At("\\INFO\\X.txt")));
  EXPECT_TRUE(files_->Remove(At("\\autosave.txt")));
  EXPECT_FALSE(Exists("\\Info\\x.txt"));
  EXPECT_EQ(Read("\\Info\\x.txt"), std::nullopt);
  EXPECT_FALSE(Exists("\\autosave.txt"));
  ASSERT_TRUE(Write("\\Info\\x.txt", "back"));
  EXPECT_EQ(Read("\\Info\\x.txt"), "back");
  EXPECT_TRUE(files_->Remove(At("\\Info\\x.txt")));
  EXPECT_FALSE(Exists("\\Info\\x.txt"));
}

TEST_P(FileSystemRules, AFileThatIsWrittenOverAndRemovedVanishesAsAWhole) {
  Put("\\Info\\x.txt", "author");
  ASSERT_TRUE(Write("\\Info\\x.txt", "player"));
  EXPECT_TRUE(files_->Remove(At("\\Info\\x.txt")));
  EXPECT_FALSE(Exists("\\Info\\x.txt"));
  EXPECT_EQ(Read("\\Info\\x.txt"), std::nullopt);
}

TEST_P(FileSystemRules, RemovingAMissingFileIsWell) {
  faults_.Plan("remove", 0, 0, false);
  EXPECT_TRUE(files_->Remove(At("\\Info\\none.txt")));
}

TEST_P(FileSystemRules, AFileThatCannotBeRemovedStaysAndSaysSo) {
  Put("\\Info\\x.txt", "author");
  ASSERT_TRUE(Write("\\mine.txt", "player"));
  faults_.Plan("remove", 0, 0, false);
  EXPECT_FALSE(files_->Remove(At("\\Info\\x.txt")));
  EXPECT_FALSE(files_->Remove(At("\\mine.txt")));
  EXPECT_EQ(Read("\\Info\\x.txt"), "author");
  EXPECT_EQ(Read("\\mine.txt"), "player");
}

TEST_P(FileSystemRules, AFileThatCannotBeReadStillExists) {
  Put("\\x.txt", "x");
  faults_.Plan("read", 0, 1, false);
  EXPECT_EQ(Read("\\x.txt"), std::nullopt);
  EXPECT_TRUE(Exists("\\x.txt"));
  EXPECT_EQ(Read("\\x.txt"), "x");
}

TEST_P(FileSystemRules, AFailureBeforeTheRenameLeavesTheOldFile) {
  ASSERT_TRUE(Write("\\userdata.txt", "old"));
  for (const char* operation : {"open", "write", "writepart", "flush", "rename"}) {
    faults_.Plan(operation, 0, 1, false);
    EXPECT_FALSE(Write("\\userdata.txt", "new")) << operation;
    EXPECT_EQ(Read("\\userdata.txt"), "old") << operation;
    EXPECT_EQ(Read("\\USERDATA.txt"), "old") << operation;
    faults_.Plan(operation, 0, 1, false);
    EXPECT_FALSE(Write("\\other.txt", "new")) << operation;
    EXPECT_FALSE(Exists("\\other.txt")) << operation;
  }
  ASSERT_TRUE(Write("\\userdata.txt", "new"));
  EXPECT_EQ(Read("\\userdata.txt"), "new");
}

TEST_P(FileSystemRules, AFailureBehindTheRenameIsToldAndLeavesTheNewFile) {
  ASSERT_TRUE(Write("\\userdata.txt", "old"));
  faults_.Plan("flushfolder", 0, 1, false);
  EXPECT_FALSE(Write("\\userdata.txt", "new"));
  EXPECT_EQ(Read("\\userdata.txt"), "new");
}

TEST_P(FileSystemRules, ALineFileBeginsEmptyAndHoldsEachLineAtOnce) {
  Put("\\general.txt", "old run\r\n");
  auto lines = files_->CreateLineFile(At("\\General.txt"));
  ASSERT_NE(lines, nullptr);
  EXPECT_EQ(Read("\\general.txt"), "");
  EXPECT_TRUE(lines->WriteLine("one"));
  EXPECT_EQ(Read("\\general.txt"), "one\r\n");
  EXPECT_TRUE(lines->WriteLine(""));
  EXPECT_TRUE(lines->WriteLine("three"));
  EXPECT_EQ(Read("\\general.txt"), "one\r\n\r\nthree\r\n");
}

TEST_P(FileSystemRules, AFailedLineIsToldAndTheNextOneIsTried) {
  auto lines = files_->CreateLineFile(At("\\general.txt"));
  ASSERT_NE(lines, nullptr);
  faults_.Plan("writeline", 1, 1, false);
  EXPECT_TRUE(lines->WriteLine("one"));
  EXPECT_FALSE(lines->WriteLine("two"));
  EXPECT_TRUE(lines->WriteLine("three"));
  EXPECT_EQ(Read("\\general.txt"), "one\r\nthree\r\n");
}

TEST_P(FileSystemRules, ALineFileThatCannotBeMadeLeavesTheOldOne) {
  ASSERT_TRUE(Write("\\general.txt", "old"));
  for (const char* operation : {"open", "rename"}) {
    faults_.Plan(operation, 0, 1, false);
    EXPECT_EQ(files_->CreateLineFile(At("\\general.txt")), nullptr) << operation;
    EXPECT_EQ(Read("\\general.txt"), "old") << operation;
  }
}

TEST_P(FileSystemRules, LinesOfAReplacedFileDoNotReachTheNewOne) {
  auto lines = files_->CreateLineFile(At("\\general.txt"));
  ASSERT_NE(lines, nullptr);
  ASSERT_TRUE(Write("\\general.txt", "new"));
  lines->WriteLine("late");
  EXPECT_EQ(Read("\\general.txt"), "new");
}

TEST_P(FileSystemRules, NamesOutsideAsciiFoldTheirCaseToo) {
  ASSERT_TRUE(Write("\\Info\\K\xC4TZCHEN.txt", "cat"));  // capital A umlaut in Windows-1252
  EXPECT_EQ(Read("\\info\\k\xE4tzchen.txt"), "cat");
  ASSERT_TRUE(Write("\\\x8Akoda.txt", "car"));
  EXPECT_EQ(Read("\\\x9AKODA.txt"), "car");
  EXPECT_FALSE(Exists("\\Info\\katzchen.txt"));
}

}  // namespace
}  // namespace quendle
