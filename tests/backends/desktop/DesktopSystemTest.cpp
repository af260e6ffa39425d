#include "backends/desktop/DesktopSystem.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

#include "support/TemporaryFolder.h"

namespace quendle {
namespace {

// Whether another process finds the lock taken.
bool TakenForAnotherProcess(const std::filesystem::path& file) {
  pid_t child = fork();
  if (child == 0) _exit(InstanceLock(file).Take() ? 0 : 1);
  int status = 0;
  waitpid(child, &status, 0);
  return WEXITSTATUS(status) == 1;
}

TEST(InstanceLock, ASecondHolderIsRefusedUntilTheFirstIsGone) {
  TemporaryFolder folder;
  auto file = folder.Path() / "deep" / "game.lock";
  {
    InstanceLock first(file);
    EXPECT_TRUE(first.Take());
    EXPECT_TRUE(first.Take());
    EXPECT_TRUE(TakenForAnotherProcess(file));
    InstanceLock second(file);
    EXPECT_FALSE(second.Take());
  }
  EXPECT_FALSE(TakenForAnotherProcess(file));
}

TEST(InstanceLock, AFileLeftByADeadProcessLocksNobodyOut) {
  TemporaryFolder folder;
  folder.Make("game.lock");
  EXPECT_TRUE(InstanceLock(folder.Path() / "game.lock").Take());
}

TEST(InstanceLock, AFileThatCantBeMadeLocksNobodyOut) {
  TemporaryFolder folder;
  folder.Make("file");
  EXPECT_TRUE(InstanceLock(folder.Path() / "file" / "game.lock").Take());
}

TEST(DesktopSystem, TheSecondInstanceSeesTheFirst) {
  TemporaryFolder folder;
  DesktopSystem first(folder.Path() / "game.lock", {});
  EXPECT_FALSE(first.PreviousInstanceRuns());
  DesktopSystem second(folder.Path() / "game.lock", {});
  EXPECT_TRUE(second.PreviousInstanceRuns());
}

TEST(DesktopSystem, TheSystemIsNewEnough) {
  EXPECT_GE(DesktopSystem("unused.lock", {}).MajorVersion(), 5);
}

TEST(DesktopSystem, OnlyWebPagesAndMailAreHandedToTheDesktop) {
  EXPECT_EQ(ShellAddress("https://www.quendle.example/wumbly"),
            "https://www.quendle.example/wumbly");
  EXPECT_EQ(ShellAddress("HTTP://a.example"), "HTTP://a.example");
  EXPECT_EQ(ShellAddress("mailto:support@quendle.example"), "mailto:support@quendle.example");
  EXPECT_EQ(ShellAddress("support@quendle.example"), "mailto:support@quendle.example");
  EXPECT_EQ(ShellAddress("file:///etc/passwd"), "");
  EXPECT_EQ(ShellAddress("/bin/sh"), "");
  EXPECT_EQ(ShellAddress("-option@quendle.example"), "");
  EXPECT_EQ(ShellAddress("https://a.example/ b"), "");
  EXPECT_EQ(ShellAddress(""), "");
}

// Without the desktop's opener a page isn't opened, and that is all: no process of ours goes on.
TEST(DesktopSystem, APageThatCannotBeOpenedIsIgnored) {
  const char* path = std::getenv("PATH");
  const std::string before = path == nullptr ? "" : path;
  ASSERT_EQ(setenv("PATH", "/nowhere", 1), 0);
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t self = getpid();
  DesktopSystem("unused.lock", {}).OpenInShell("https://www.quendle.example");
  if (getpid() != self) {
    // A helper that has returned: it says so, and runs no further test.
    const bool told = write(ends[1], "x", 1) == 1;
    _exit(told ? 0 : 1);
  }
  close(ends[1]);
  char said = 0;
  EXPECT_EQ(read(ends[0], &said, 1), 0) << "the pipe ends with the last helper";
  close(ends[0]);
  setenv("PATH", before.c_str(), 1);
}

}  // namespace
}  // namespace quendle
