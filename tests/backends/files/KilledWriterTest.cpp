// A process that ends at any moment of a write leaves the old file or the new one.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "backends/files/DiskFileSystem.h"
#include "backends/files/StopAtEveryStep.h"
#include "backends/files/TemporaryFolder.h"

namespace quendle {
namespace {

const std::string kOld = "old file\r\n";
const std::string kNew(70'000, 'n');  // several pieces

TEST(KilledWriter, LeavesTheOldOrTheNewFileAtEveryStep) {
  TemporaryFolder content;
  const std::string path = content.Path() + "\\userdata.txt";
  auto open = [&](Faults& faults) { return DiskFileSystem({content.Path(), "", ""}, faults); };
  auto look = [&] {
    Faults none;
    std::string bytes = open(none).Read(path).value_or("missing");
    content.Put("userdata.txt", kOld);
    return bytes;
  };
  content.Put("userdata.txt", kOld);
  StopOutcome outcome =
      StopAtEveryStep([&](DiskFileSystem& files) { files.Write(path, kNew); }, open, look);
  EXPECT_EQ(outcome.seen, (std::set<std::string>{kOld, kNew}));
  // open, five pieces of two steps, flush, rename, flush of the folder
  EXPECT_EQ(outcome.steps, 1 + 2 * 5 + 3);
}

TEST(KilledWriter, LeavesNoFileOrTheNewOneInThePlayersFolder) {
  TemporaryFolder content;
  TemporaryFolder player;
  const std::string path = content.Path() + "\\Info\\images\\face.bmp";
  const std::string folder = player / "share/clinic";
  auto open = [&](Faults& faults) { return DiskFileSystem({content.Path(), folder, ""}, faults); };
  auto look = [&] {
    Faults none;
    std::string bytes = open(none).Read(path).value_or("missing");
    std::filesystem::remove_all(player / "share");
    return bytes;
  };
  StopOutcome outcome =
      StopAtEveryStep([&](DiskFileSystem& files) { files.Write(path, kNew); }, open, look);
  EXPECT_EQ(outcome.seen, (std::set<std::string>{"missing", kNew}));
  EXPECT_EQ(outcome.steps, 3 + 1 + 2 * 5 + 3) << "three folders are made first";
}

TEST(KilledWriter, ARemovalIsWholeToo) {
  TemporaryFolder content;
  TemporaryFolder player;
  const std::string path = content.Path() + "\\userdata.txt";
  content.Put("userdata.txt", "author");
  player.Put("userdata.txt", "player");
  auto open = [&](Faults& faults) {
    return DiskFileSystem({content.Path(), player.Path(), ""}, faults);
  };
  auto look = [&] {
    Faults none;
    std::string bytes = open(none).Read(path).value_or("missing");
    std::filesystem::remove_all(player / ".removed");
    player.Put("userdata.txt", "player");
    return bytes;
  };
  StopOutcome outcome =
      StopAtEveryStep([&](DiskFileSystem& files) { files.Remove(path); }, open, look);
  EXPECT_EQ(outcome.seen, (std::set<std::string>{"missing", "player"}))
      << "never the author's file in between";
}

TEST(KilledWriter, AFailureAtEveryStepLeavesTheOldOrTheNewFile) {
  const std::set<std::string> operations = {"open",  "write",  "writepart",
                                            "flush", "rename", "flushfolder"};
  std::set<std::string> failed;
  for (const std::string& operation : operations) {
    for (int after = 0; after < 10; ++after) {
      TemporaryFolder content;
      content.Put("userdata.txt", kOld);
      Faults faults;
      DiskFileSystem files({content.Path(), "", ""}, faults);
      faults.Plan(operation, after, 1, false);
      const bool written = !!files.Write(content.Path() + "\\userdata.txt", kNew);
      bool behind_rename = operation == "flushfolder";
      EXPECT_EQ(content.Get("userdata.txt"), written || behind_rename ? kNew : kOld)
          << operation << " " << after;
      EXPECT_EQ(content.Names().size(), 1U) << operation << " " << after;
      if (!written) failed.insert(operation);
    }
  }
  EXPECT_EQ(failed, operations);
}

TEST(KilledWriter, KilledAtAnyInstantTheFileIsWhole) {
  TemporaryFolder content;
  const std::string path = content.Path() + "\\userdata.txt";
  const std::string even(60'000, 'e');
  const std::string odd(90'000, 'o');
  content.Put("userdata.txt", even);
  for (int round = 0; round < 25; ++round) {
    pid_t child = fork();
    if (child == 0) {
      Faults none;
      DiskFileSystem files({content.Path(), "", ""}, none);
      for (int i = 1;; ++i) files.Write(path, i % 2 == 0 ? even : odd);
    }
    usleep(static_cast<useconds_t>(1000 + 700 * round));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    std::string bytes = content.Get("userdata.txt");
    EXPECT_TRUE(bytes == even || bytes == odd) << bytes.size();
  }
}

}  // namespace
}  // namespace quendle
