#include "backends/files/DiskFileSystem.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

#include "backends/files/TemporaryFolder.h"

namespace quendle {
namespace {

using Names = std::set<std::string>;

class DiskFileSystemTest : public testing::Test {
 protected:
  std::string At(const std::string& path) const { return content_.Path() + path; }
  DiskFileSystem Open() { return DiskFileSystem({content_.Path(), "", ""}, faults_); }
  DiskFileSystem OpenWithPlayer() {
    return DiskFileSystem({content_.Path(), player_.Path(), ""}, faults_);
  }

  TemporaryFolder content_;
  TemporaryFolder player_;
  Faults faults_;
};

TEST_F(DiskFileSystemTest, FilesMadeMeanwhileAreFound) {
  content_.Put("Info/a.txt", "a");
  DiskFileSystem files = Open();
  EXPECT_FALSE(files.Exists(At("\\Info\\b.txt")));
  content_.Put("Info/b.txt", "b");
  EXPECT_EQ(files.Read(At("\\info\\B.txt")), "b");
  EXPECT_FALSE(files.Exists(At("\\New\\c.txt")));
  content_.Put("New/c.txt", "c");
  EXPECT_EQ(files.Read(At("\\new\\c.txt")), "c");
}

TEST_F(DiskFileSystemTest, FilesMadeInAFolderThatWasQuietForLongAreFound) {
  content_.Put("a.txt", "a");
  timespec long_ago[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, content_.Path().c_str(), long_ago, 0), 0);
  DiskFileSystem files = Open();
  EXPECT_FALSE(files.Exists(At("\\b.txt")));
  content_.Put("b.txt", "b");
  EXPECT_TRUE(files.Exists(At("\\B.TXT")));
}

TEST_F(DiskFileSystemTest, TwoChangesWithinOneTickOfTheSystemsClockAreBothSeen) {
  content_.Put("a.txt", "a");
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  timespec tick[2] = {now, now};
  ASSERT_EQ(utimensat(AT_FDCWD, content_.Path().c_str(), tick, 0), 0);
  DiskFileSystem files = Open();
  EXPECT_FALSE(files.Exists(At("\\b.txt")));
  content_.Put("b.txt", "b");
  ASSERT_EQ(utimensat(AT_FDCWD, content_.Path().c_str(), tick, 0), 0);
  EXPECT_TRUE(files.Exists(At("\\b.txt")));
}

TEST_F(DiskFileSystemTest, FilesDeletedOrRenamedMeanwhileAreMissed) {
  content_.Put("Info/a.txt", "a");
  content_.Put("Info/Old.txt", "old");
  DiskFileSystem files = Open();
  EXPECT_TRUE(files.Exists(At("\\Info\\a.txt")));
  std::filesystem::remove(content_ / "Info/a.txt");
  std::filesystem::rename(content_ / "Info/Old.txt", content_ / "Info/old.TXT");
  EXPECT_FALSE(files.Exists(At("\\Info\\a.txt")));
  EXPECT_EQ(files.Read(At("\\Info\\a.txt")), std::nullopt);
  EXPECT_EQ(files.Read(At("\\Info\\Old.txt")), "old");
  std::filesystem::remove_all(content_ / "Info");
  EXPECT_FALSE(files.Exists(At("\\Info\\old.txt")));
}

TEST_F(DiskFileSystemTest, ALinkThatLeadsOutOfTheTreeIsAMissingFile) {
  TemporaryFolder outside;
  outside.Put("secret.txt", "secret");
  content_.Put("Info/a.txt", "a");
  std::filesystem::create_symlink(outside / "secret.txt", content_ / "Info/file.txt");
  std::filesystem::create_symlink(outside.Path(), content_ / "Info/folder");
  std::filesystem::create_symlink("../../..", content_ / "Info/up");
  std::filesystem::create_symlink("nowhere", content_ / "Info/broken.txt");
  std::filesystem::create_symlink("loop.txt", content_ / "Info/loop.txt");
  DiskFileSystem files = Open();
  for (const char* path : {"\\Info\\file.txt", "\\Info\\folder\\secret.txt", "\\Info\\broken.txt",
                           "\\Info\\loop.txt"}) {
    EXPECT_FALSE(files.Exists(At(path))) << path;
    EXPECT_EQ(files.Read(At(path)), std::nullopt) << path;
  }
  EXPECT_FALSE(files.Exists(At("\\Info\\up" + outside.Path() + "/secret.txt")));
  EXPECT_FALSE(files.Write(At("\\Info\\folder\\new.txt"), "new"));
  EXPECT_EQ(outside.Names(), (Names{"secret.txt"}));
}

TEST_F(DiskFileSystemTest, AWriteToALinkThatLeadsOutReplacesTheLinkOnly) {
  TemporaryFolder outside;
  outside.Put("secret.txt", "secret");
  std::filesystem::create_symlink(outside / "secret.txt", content_ / "file.txt");
  DiskFileSystem files = Open();
  EXPECT_TRUE(files.Remove(At("\\file.txt"))) << "a missing file is gone already";
  EXPECT_TRUE(files.Write(At("\\file.txt"), "mine"));
  EXPECT_EQ(files.Read(At("\\file.txt")), "mine");
  EXPECT_EQ(outside.Get("secret.txt"), "secret");
}

TEST_F(DiskFileSystemTest, AFileOrFolderThatTurnsIntoALinkOutwardsIsMissing) {
  TemporaryFolder outside;
  outside.Put("a.txt", "secret");
  content_.Put("Info/Rooms/a.txt", "a");
  content_.Put("Info/b.txt", "b");
  DiskFileSystem files = Open();
  EXPECT_EQ(files.Read(At("\\Info\\Rooms\\a.txt")), "a");
  EXPECT_EQ(files.Read(At("\\Info\\b.txt")), "b");
  std::filesystem::remove_all(content_ / "Info/Rooms");
  std::filesystem::create_symlink(outside.Path(), content_ / "Info/Rooms");
  std::filesystem::remove(content_ / "Info/b.txt");
  std::filesystem::create_symlink(outside / "a.txt", content_ / "Info/b.txt");
  for (const char* path : {"\\Info\\Rooms\\a.txt", "\\Info\\b.txt"}) {
    EXPECT_EQ(files.Read(At(path)), std::nullopt) << path;
    EXPECT_FALSE(files.Exists(At(path))) << path;
  }
}

TEST_F(DiskFileSystemTest, ALinkInsideTheTreeIsFollowed) {
  content_.Put("Info/Real/a.txt", "a");
  std::filesystem::create_symlink("Real", content_ / "Info/Short");
  std::filesystem::create_symlink("Real/a.txt", content_ / "Info/b.txt");
  std::filesystem::create_symlink("..", content_ / "Info/Real/Back");
  DiskFileSystem files = Open();
  EXPECT_EQ(files.Read(At("\\info\\SHORT\\a.txt")), "a");
  EXPECT_EQ(files.Read(At("\\info\\b.txt")), "a");
  EXPECT_EQ(files.Read(At("\\info\\real\\back\\real\\back\\real\\a.txt")), "a");
  EXPECT_FALSE(files.Exists(At("\\info\\real\\back\\real\\back\\real\\c.txt")));
}

TEST_F(DiskFileSystemTest, TheBaseDirectoryItselfMayBeReachedThroughALink) {
  content_.Put("Info/a.txt", "a");
  std::filesystem::create_symlink("Info/a.txt", content_ / "b.txt");
  std::string link = player_ / "clinic";
  std::filesystem::create_symlink(content_.Path(), link);
  DiskFileSystem files({link, "", ""}, faults_);
  EXPECT_EQ(files.Read(link + "\\info\\a.txt"), "a");
  EXPECT_EQ(files.Read(link + "\\B.txt"), "a");
  EXPECT_TRUE(files.Write(link + "\\c.txt", "c"));
  EXPECT_EQ(content_.Get("c.txt"), "c");
}

TEST_F(DiskFileSystemTest, APipeIsAMissingFileAndNobodyWaitsForIt) {
  ASSERT_EQ(mkfifo((content_ / "pipe.txt").c_str(), 0600), 0);
  content_.Put("turned.txt", "a file");
  DiskFileSystem files = Open();
  EXPECT_FALSE(files.Exists(At("\\pipe.txt")));
  EXPECT_EQ(files.Read(At("\\pipe.txt")), std::nullopt);
  EXPECT_TRUE(files.Exists(At("\\turned.txt")));
  std::filesystem::remove(content_ / "turned.txt");
  ASSERT_EQ(mkfifo((content_ / "turned.txt").c_str(), 0600), 0);
  EXPECT_EQ(files.Read(At("\\turned.txt")), std::nullopt);
}

TEST_F(DiskFileSystemTest, ADeviceIsAMissingFile) {
  DiskFileSystem files({"/dev", "", ""}, faults_);
  EXPECT_FALSE(files.Exists("/dev\\zero"));
  EXPECT_EQ(files.Read("/dev\\zero"), std::nullopt);
}

TEST_F(DiskFileSystemTest, AFileOfMoreThan256MegabytesIsNotRead) {
  content_.Put("huge.bin", "");
  std::filesystem::resize_file(content_ / "huge.bin", (std::uintmax_t{256} << 20) + 1);
  DiskFileSystem files = Open();
  EXPECT_TRUE(files.Exists(At("\\huge.bin")));
  EXPECT_EQ(files.Read(At("\\huge.bin")), std::nullopt);
}

TEST_F(DiskFileSystemTest, NamesOnTheDiskAreUtf8AndNamesInContentAre8Bit) {
  content_.Put("Info/K\xC3\xA4tzchen \xE2\x82\xAC.txt", "cat");
  content_.Put("Info/raw\xE4.txt", "raw");
  content_.Put("Info/\xE7\x8C\xAB.txt", "no such letter in content");
  DiskFileSystem files = Open();
  EXPECT_EQ(files.Read(At("\\info\\K\xC4TZCHEN \x80.txt")), "cat");
  EXPECT_EQ(files.Read(At("\\info\\RAW\xC4.TXT")), "raw");
  EXPECT_EQ(files.Read(At("\\info\\\xE7\x8C\xAB.txt")), "no such letter in content");
  ASSERT_TRUE(files.Write(At("\\Info\\M\xFCtze.txt"), "cap"));
  EXPECT_EQ(content_.Get("Info/M\xC3\xBCtze.txt"), "cap");
  ASSERT_TRUE(files.Write(At("\\Info\\raw\xE4.txt"), "written over"));
  EXPECT_EQ(content_.Get("Info/raw\xE4.txt"), "written over");
}

TEST_F(DiskFileSystemTest, AWriteKeepsTheNameThatStandsOnTheDisk) {
  content_.Put("Info/Mode.txt", "old");
  DiskFileSystem files = Open();
  ASSERT_TRUE(files.Write(At("\\INFO\\MODE.TXT"), "new"));
  EXPECT_EQ(content_.Names(), (Names{"Info"}));
  EXPECT_EQ(content_.Names("Info"), (Names{"Mode.txt"}));
  EXPECT_EQ(content_.Get("Info/Mode.txt"), "new");
}

TEST_F(DiskFileSystemTest, OwnWritesAreFoundBesideTheFilesThatWereThere) {
  content_.Put("Info/a.txt", "a");
  DiskFileSystem files = Open();
  EXPECT_TRUE(files.Exists(At("\\Info\\a.txt")));
  ASSERT_TRUE(files.Write(At("\\Info\\b.txt"), "b"));
  EXPECT_EQ(files.Read(At("\\Info\\B.txt")), "b");
  EXPECT_EQ(files.Read(At("\\Info\\A.txt")), "a");
  ASSERT_TRUE(files.Remove(At("\\Info\\a.txt")));
  EXPECT_FALSE(files.Exists(At("\\Info\\a.txt")));
  EXPECT_FALSE(content_.Has("Info/a.txt"));
}

TEST_F(DiskFileSystemTest, AFailedWriteLeavesNoTemporaryFile) {
  content_.Put("a.txt", "old");
  DiskFileSystem files = Open();
  for (const char* operation : {"open", "write", "writepart", "flush", "rename"}) {
    faults_.Plan(operation, 0, 1, false);
    EXPECT_FALSE(files.Write(At("\\a.txt"), std::string(50'000, 'n'))) << operation;
    EXPECT_EQ(content_.Names(), (Names{"a.txt"})) << operation;
    EXPECT_EQ(content_.Get("a.txt"), "old") << operation;
  }
}

TEST_F(DiskFileSystemTest, AFailureInALaterPieceLeavesTheOldFile) {
  content_.Put("a.txt", "old");
  DiskFileSystem files = Open();
  for (const char* operation : {"write", "writepart"}) {
    faults_.Plan(operation, 2, 1, false);
    EXPECT_FALSE(files.Write(At("\\a.txt"), std::string(50'000, 'n'))) << operation;
    EXPECT_EQ(content_.Names(), (Names{"a.txt"})) << operation;
    EXPECT_EQ(content_.Get("a.txt"), "old") << operation;
  }
}

TEST_F(DiskFileSystemTest, AFolderThatCannotBeMadeFailsTheWrite) {
  DiskFileSystem files = OpenWithPlayer();
  faults_.Plan("makefolder", 0, 1, false);
  EXPECT_FALSE(files.Write(At("\\Info\\x.txt"), "x"));
  EXPECT_FALSE(files.Exists(At("\\Info\\x.txt")));
  EXPECT_TRUE(files.Write(At("\\Info\\x.txt"), "x"));
}

TEST_F(DiskFileSystemTest, LeftoversOfAKilledWriterAreUnseenAndClearedWhenOld) {
  content_.Put(".unfinished-1-0", "half");
  content_.Put(".unfinished-2-0", "half");
  timespec long_ago[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, (content_ / ".unfinished-1-0").c_str(), long_ago, 0), 0);
  DiskFileSystem files = Open();
  EXPECT_FALSE(files.Exists(At("\\.unfinished-1-0")));
  ASSERT_TRUE(files.Write(At("\\a.txt"), "a"));
  EXPECT_EQ(content_.Names(), (Names{"a.txt", ".unfinished-2-0"}))
      << "the young one may be at work";
}

TEST_F(DiskFileSystemTest, LeftoversWithADateInTheFutureAreClearedAsWell) {
  content_.Put(".unfinished-1-0", "half");
  timespec tomorrow[2] = {{std::time(nullptr) + 86'400, 0}, {std::time(nullptr) + 86'400, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, (content_ / ".unfinished-1-0").c_str(), tomorrow, 0), 0);
  ASSERT_TRUE(Open().Write(At("\\a.txt"), "a"));
  EXPECT_EQ(content_.Names(), (Names{"a.txt"}));
}

// Takes away all descriptors, as a program does that leaks them.
class NoDescriptors {
 public:
  NoDescriptors() {
    getrlimit(RLIMIT_NOFILE, &old_);
    const rlimit none{0, old_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &old_); }
  NoDescriptors(const NoDescriptors&) = delete;
  NoDescriptors& operator=(const NoDescriptors&) = delete;

 private:
  rlimit old_{};
};

TEST_F(DiskFileSystemTest, WhatCannotBeOpenedIsNotTakenForMissing) {
  content_.Put("userdata.txt", "saved");
  for (const bool known : {false, true}) {
    for (const bool layered : {false, true}) {
      DiskFileSystem files = layered ? OpenWithPlayer() : Open();
      if (known) files.Exists(At("\\userdata.txt"));
      FileAnswer answer;
      FileChange written;
      FileChange removed;
      bool exists = false;
      {
        const NoDescriptors none;
        answer = files.Read(At("\\userdata.txt"));
        exists = files.Exists(At("\\userdata.txt"));
        written = files.Write(At("\\userdata.txt"), "new");
        removed = files.Remove(At("\\userdata.txt"));
      }
      EXPECT_FALSE(answer.IsMissing());
      EXPECT_EQ(answer.reason, "Too many open files");
      EXPECT_TRUE(exists);
      EXPECT_FALSE(written);
      EXPECT_EQ(written.reason, "Too many open files");
      EXPECT_FALSE(removed);
      EXPECT_EQ(files.Read(At("\\userdata.txt")), "saved") << "once it can be opened again";
      EXPECT_EQ(content_.Get("userdata.txt"), "saved");
    }
  }
}

TEST_F(DiskFileSystemTest, AnErrorOfThePlayersFolderDoesNotShowTheFileBelow) {
  content_.Put("userdata.txt", "of the author");
  player_.Put("userdata.txt", "of the player");
  DiskFileSystem files = OpenWithPlayer();
  content_.Get("userdata.txt");
  EXPECT_EQ(files.Read(At("\\userdata.txt")), "of the player");
  const NoDescriptors none;
  EXPECT_FALSE(files.Read(At("\\userdata.txt")).has_value());
}

TEST_F(DiskFileSystemTest, WhatIsNotThereIsMissing) {
  content_.Put("file.txt", "");
  std::filesystem::create_symlink("loop.txt", content_ / "loop.txt");
  std::filesystem::create_symlink("nowhere", content_ / "dangling.txt");
  for (const bool layered : {false, true}) {
    DiskFileSystem files = layered ? OpenWithPlayer() : Open();
    for (const char* path :
         {"\\none.txt", "\\none\\a.txt", "\\file.txt\\a.txt", "\\loop.txt", "\\dangling.txt"}) {
      EXPECT_TRUE(files.Read(At(path)).IsMissing()) << path;
      EXPECT_FALSE(files.Exists(At(path))) << path;
    }
  }
}

TEST_F(DiskFileSystemTest, ThePlayersFolderIsReadFirstAndTakesAllWrites) {
  content_.Put("Info/a.txt", "author");
  content_.Put("Info/b.txt", "author b");
  player_.Put("info/A.txt", "player");
  DiskFileSystem files = OpenWithPlayer();
  EXPECT_EQ(files.WriteFolder(), player_.Path());
  EXPECT_EQ(files.Read(At("\\Info\\a.txt")), "player");
  EXPECT_EQ(files.Read(At("\\Info\\b.txt")), "author b");
  ASSERT_TRUE(files.Write(At("\\Info\\b.txt"), "player b"));
  ASSERT_TRUE(files.Write(At("\\userdata.txt"), "saved"));
  auto lines = files.CreateLineFile(At("\\general.txt"));
  ASSERT_NE(lines, nullptr);
  lines->WriteLine("started");
  EXPECT_EQ(files.Read(At("\\Info\\b.txt")), "player b");
  EXPECT_EQ(player_.Get("general.txt"), "started\r\n");
  EXPECT_EQ(player_.Get("info/b.txt"), "player b") << "the player's own folder is used";
  EXPECT_EQ(content_.Names(), (Names{"Info"}));
  EXPECT_EQ(content_.Get("Info/b.txt"), "author b");
}

TEST_F(DiskFileSystemTest, ThePlayersFolderIsMadeByTheFirstWrite) {
  std::string folder = player_ / "share/clinic";
  DiskFileSystem files({content_.Path(), folder, ""}, faults_);
  EXPECT_FALSE(files.Exists(At("\\a.txt")));
  EXPECT_FALSE(player_.Has("share"));
  ASSERT_TRUE(files.Write(At("\\Info\\Rooms\\a.txt"), "a"));
  EXPECT_EQ(player_.Get("share/clinic/Info/Rooms/a.txt"), "a");
  EXPECT_EQ(files.Read(At("\\info\\rooms\\a.txt")), "a");
}

TEST_F(DiskFileSystemTest, ARemovedFileOfTheTreeStaysThereAndIsGoneForTheNextRunToo) {
  content_.Put("Info/a.txt", "author");
  {
    DiskFileSystem files = OpenWithPlayer();
    ASSERT_TRUE(files.Write(At("\\Info\\a.txt"), "player"));
    ASSERT_TRUE(files.Remove(At("\\INFO\\A.TXT")));
    EXPECT_FALSE(files.Exists(At("\\Info\\a.txt")));
  }
  DiskFileSystem files = OpenWithPlayer();
  EXPECT_FALSE(files.Exists(At("\\Info\\a.txt")));
  EXPECT_EQ(files.Read(At("\\Info\\a.txt")), std::nullopt);
  EXPECT_FALSE(files.Exists(At("\\.removed\\Info\\a.txt"))) << "the marker is no file of the game";
  EXPECT_FALSE(files.Write(At("\\.REMOVED\\Info\\b.txt"), ""));
  EXPECT_EQ(content_.Get("Info/a.txt"), "author");
  ASSERT_TRUE(files.Write(At("\\Info\\a.txt"), "back"));
  EXPECT_EQ(OpenWithPlayer().Read(At("\\Info\\a.txt")), "back");
}

TEST_F(DiskFileSystemTest, ARemovalThatFailsAtAnyStepLeavesTheFileOrIsDone) {
  for (const char* operation : {"remove", "makefolder", "open", "write", "flush", "rename"}) {
    TemporaryFolder player;
    content_.Put("Info/a.txt", "author");
    DiskFileSystem files({content_.Path(), player.Path(), ""}, faults_);
    faults_.Plan(operation, 0, 1, false);
    EXPECT_FALSE(files.Remove(At("\\Info\\a.txt"))) << operation;
    EXPECT_EQ(files.Read(At("\\Info\\a.txt")), "author") << operation;
    EXPECT_TRUE(files.Remove(At("\\Info\\a.txt"))) << operation;
    EXPECT_FALSE(files.Exists(At("\\Info\\a.txt"))) << operation;
  }
}

TEST_F(DiskFileSystemTest, ATreeThatCannotBeWrittenSendsWritesToTheFallback) {
  content_.Put("Info/a.txt", "author");
  player_.Put("userdata.txt", "of the last run");
  faults_.Plan("probe", 0, 1, false);
  DiskFileSystem files({content_.Path(), "", player_.Path()}, faults_);
  EXPECT_EQ(files.WriteFolder(), player_.Path());
  EXPECT_EQ(files.Read(At("\\userdata.txt")), "of the last run");
  ASSERT_TRUE(files.Write(At("\\userdata.txt"), "saved"));
  EXPECT_EQ(player_.Get("userdata.txt"), "saved");
  EXPECT_FALSE(content_.Has("userdata.txt"));
  EXPECT_EQ(files.Read(At("\\Info\\a.txt")), "author");
}

TEST_F(DiskFileSystemTest, ATreeThatCanBeWrittenLeavesTheFallbackAlone) {
  player_.Put("a.txt", "another game's");
  DiskFileSystem files({content_.Path(), "", player_.Path()}, faults_);
  EXPECT_EQ(files.WriteFolder(), content_.Path());
  EXPECT_FALSE(files.Exists(At("\\a.txt")));
  ASSERT_TRUE(files.Write(At("\\b.txt"), "b"));
  EXPECT_EQ(content_.Get("b.txt"), "b");
  EXPECT_EQ(player_.Names(), (Names{"a.txt"}));
}

// Runs `work` in a process without special rights; whether it gave true.
bool HoldsWithoutRights(const std::function<bool()>& work) {
  constexpr uid_t kNobody = 65534;
  pid_t child = fork();
  if (child == 0) {
    bool dropped = geteuid() != 0 || (setgid(kNobody) == 0 && setuid(kNobody) == 0);
    _exit(dropped && work() ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST_F(DiskFileSystemTest, AFolderWithoutTheRightToWriteIsSeenAtTheStart) {
  content_.Put("a.txt", "author");
  std::filesystem::permissions(content_.Path(), std::filesystem::perms(0555));
  std::filesystem::permissions(player_.Path(), std::filesystem::perms(0777));
  EXPECT_TRUE(HoldsWithoutRights([&] {
    DiskFileSystem files({content_.Path(), "", player_ / "clinic"}, faults_);
    return files.Write(At("\\b.txt"), "b") && files.Read(At("\\a.txt")) == "author";
  }));
  EXPECT_EQ(player_.Get("clinic/b.txt"), "b");
  EXPECT_TRUE(HoldsWithoutRights([&] {
    DiskFileSystem files({content_.Path(), "", ""}, faults_);
    return !files.Write(At("\\c.txt"), "c") && !files.Remove(At("\\a.txt")) &&
           files.CreateLineFile(At("\\d.txt")) == nullptr;
  }));
  std::filesystem::permissions(content_.Path(), std::filesystem::perms(0755));
  EXPECT_EQ(content_.Names(), (Names{"a.txt"}));
}

TEST_F(DiskFileSystemTest, AFileWithoutTheRightToReadExistsAndIsNotRead) {
  content_.Put("a.txt", "author");
  std::filesystem::permissions(content_ / "a.txt", std::filesystem::perms(0200));
  EXPECT_TRUE(HoldsWithoutRights([&] {
    DiskFileSystem files({content_.Path(), "", ""}, faults_);
    return files.Exists(At("\\a.txt")) && !files.Read(At("\\a.txt"));
  }));
}

TEST(PlayerFolder, FollowsTheEnvironmentAndTakesAbsolutePathsOnly) {
  ASSERT_TRUE(HoldsWithoutRights([] {
    setenv("HOME", "/home/child", 1);
    setenv("XDG_DATA_HOME", "/data", 1);
    bool data = PlayerFolder("clinic") == "/data/clinic";
    setenv("XDG_DATA_HOME", "data", 1);
    bool home = PlayerFolder("clinic") == "/home/child/.local/share/clinic";
    unsetenv("XDG_DATA_HOME");
    unsetenv("HOME");
    return data && home && PlayerFolder("clinic").empty();
  }));
}

TEST_F(DiskFileSystemTest, TwoGamesOnTwoThreadsDoNotDisturbEachOther) {
  auto play = [&](const std::string& name) {
    Faults none;
    DiskFileSystem files({content_.Path(), "", ""}, none);
    bool well = true;
    for (int i = 0; i < 50; ++i) {
      std::string text = name + std::to_string(i);
      well = well && files.Write(At("\\" + name), text) && files.Read(At("\\" + name)) == text;
    }
    return well;
  };
  bool first = false;
  std::thread other([&] { first = play("first.txt"); });
  bool second = play("second.txt");
  other.join();
  EXPECT_TRUE(first);
  EXPECT_TRUE(second);
  EXPECT_EQ(content_.Names(), (Names{"first.txt", "second.txt"}));
}

}  // namespace
}  // namespace quendle
