// A hostile disk: an error, a full disk or the end of the process at every step that a run makes.
// Whatever happens, the next start has the newest of the saved game and the autosave, whole.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "shell/RunCopies.h"

namespace quendle {
namespace {

using testing::HasSubstr;
using Status = Application::Status;

enum class Blow { kError, kFullDisk, kStop };

const std::set<std::string, std::less<>> kSteps = {
    "read", "open", "write", "writepart", "flush", "rename", "remove", "writeline", "flushfolder"};

// Strikes at one step that is made on a file of the player.
class Hostile {
 public:
  Hostile(NextRun& run, Blow blow, int step) : run_(run), blow_(blow), step_(step) {
    run_.files.Record(true);
    run_.faults.Watch([this](std::string_view operation) { return At(operation); });
  }
  ~Hostile() { run_.faults.Watch(nullptr); }
  Hostile(const Hostile&) = delete;
  Hostile& operator=(const Hostile&) = delete;

  bool HasStruck() const { return seen_ > step_; }

 private:
  Faults::Kind At(std::string_view operation) {
    const bool of_content =
        run_.files.Operations().back().path.find("\\Info\\") != std::string::npos;
    if (of_content || !kSteps.contains(operation)) return Faults::Kind::kNone;
    const int now = seen_++;
    if (now == step_ && blow_ == Blow::kStop) throw Stopped();
    const bool full = blow_ == Blow::kFullDisk && now >= step_ && operation != "read";
    return full || now == step_ ? Faults::Kind::kFail : Faults::Kind::kNone;
  }

  NextRun& run_;
  Blow blow_;
  int step_;
  int seen_ = 0;
};

// Does `work` again and again, in a run that `prepare` makes, with a blow at each of its steps in
// turn; `look` judges what is left.
template <class Prepare, class Work, class Look>
int StrikeEachStep(Blow blow, Prepare prepare, Work work, Look look) {
  constexpr int kMostSteps = 2000;
  for (int step = 0; step < kMostSteps; ++step) {
    auto run = prepare();
    bool struck = false;
    {
      Hostile hostile(*run, blow, step);
      try {
        work(*run);
      } catch (const Stopped&) {
      }
      struck = hostile.HasStruck();
    }
    look(*run, step);
    if (!struck || testing::Test::HasFailure()) return step;
  }
  ADD_FAILURE() << "the work never ends";
  return kMostSteps;
}

// What the next start remembers; disks with the same files of the player are asked once.
std::string Remembered(const MemoryFileSystem& disk, bool forgiving) {
  static std::map<std::string, std::string> known;
  std::string key = forgiving ? "forgiving\n" : "";
  for (const std::string& path : disk.Paths()) {
    if (path.find("\\Info\\") == std::string::npos) key += path + "\n" + *disk.Get(path) + "\n";
  }
  auto [place, is_new] = known.try_emplace(key);
  if (is_new) place->second = DogRemembered(disk, forgiving);
  return place->second;
}

// --- The orderly end.

// A game loaded with the dog lost; it has won since, which the autosave has, and then become well,
// which only the end can save.
std::unique_ptr<NextRun> AboutToEnd(bool forgiving) {
  MemoryFileSystem disk(kBase);
  disk.Put("\\userdata.txt", SavedDog("lost"));
  auto run = std::make_unique<NextRun>(disk, forgiving);
  run->Play();
  run->Send("cs_dogroom");
  ObjectRef dog = Child(run->Logic()->CurrentScreen(), "dog");
  dog->ProcessState("won");
  run->Send("cs_floor1hall1");
  dog->ProcessState("default");
  return run;
}

// What is whole on the disk, the newest first: "default", "won" or "lost".
std::string NewestOnDisk(const MemoryFileSystem& disk) {
  std::string newest = "lost";
  for (const char* file : {"\\userdata.txt", "\\autosave.txt"}) {
    const std::string text = disk.Get(file).value_or("");
    if (text.find("\r\ndog\r\ndefault\r\n") != std::string::npos) return "default";
    if (text.find("\r\ndog\r\nwon\r\n") != std::string::npos) newest = "won";
  }
  return newest;
}

class AtTheEnd : public testing::TestWithParam<bool> {};

TEST_P(AtTheEnd, NothingIsLostWhateverStepIsStruck) {
  for (const Blow blow : {Blow::kStop, Blow::kError, Blow::kFullDisk}) {
    const int steps = StrikeEachStep(
        blow, [] { return AboutToEnd(GetParam()); }, [](NextRun& run) { run.Close(); },
        [&](NextRun& run, int step) {
          const std::string newest = NewestOnDisk(run.files);
          EXPECT_NE(newest, "lost") << "step " << step;
          EXPECT_EQ(Remembered(run.files, GetParam()), newest)
              << "blow " << static_cast<int>(blow) << " at step " << step;
        });
    EXPECT_GT(steps, 20);
  }
}

TEST_P(AtTheEnd, AnEndWithoutABlowSavesAllAndLeavesNoAutosave) {
  auto run = AboutToEnd(GetParam());
  EXPECT_EQ(run->Close(), Status::kEnded);
  EXPECT_EQ(run->File("\\autosave.txt"), "(none)");
  EXPECT_EQ(DogRemembered(run->files), "default");
}

INSTANTIATE_TEST_SUITE_P(NothingLost, AtTheEnd, testing::Bool());

// --- The start.

struct Disk {
  const char* name;
  const char* saved;     // the dog of the saved game
  const char* autosave;  // of the autosave; null without one
  const char* newest;
};

constexpr Disk kDisks[] = {{"Recovering", "lost", "won", "won"},
                           {"InOrder", "won", nullptr, "won"}};

class AtTheStart : public testing::TestWithParam<Disk> {
 protected:
  static std::unique_ptr<NextRun> Left() {
    MemoryFileSystem disk(kBase);
    disk.Put("\\userdata.txt", SavedDog(GetParam().saved));
    if (GetParam().autosave != nullptr) {
      disk.Put("\\autosave.txt", SavedDog(GetParam().autosave));
      disk.Put("\\GameRunning.txt", "On\r\n");
    }
    return std::make_unique<NextRun>(disk, true);
  }
};

// A run that was struck plays on, where it does, and ends in order.
TEST_P(AtTheStart, NothingIsLostWhateverStepIsStruck) {
  for (const Blow blow : {Blow::kStop, Blow::kError, Blow::kFullDisk}) {
    const int steps = StrikeEachStep(
        blow, [] { return Left(); },
        [&](NextRun& run) {
          if (run.Play() == Status::kRunning && blow != Blow::kStop) run.Close();
        },
        [&](NextRun& run, int step) {
          EXPECT_EQ(Remembered(run.files, true), GetParam().newest)
              << "blow " << static_cast<int>(blow) << " at step " << step;
        });
    EXPECT_GT(steps, 20);
  }
}

INSTANTIATE_TEST_SUITE_P(NothingLost, AtTheStart, testing::ValuesIn(kDisks),
                         [](const auto& param) { return std::string(param.param.name); });

// --- A disk that takes nothing.

struct FullDiskBench : testing::Test, NextRun {
  FullDiskBench() : NextRun(MemoryFileSystem(kBase), true) {}
  void Fill() {
    for (const char* step : {"open", "write", "rename"}) faults.Plan(step, 0, 0, false);
  }
  void MakeRoom() {
    for (const char* step : {"open", "write", "rename"}) faults.Plan(step, 1000000, 1, false);
  }
};

using FullDisk = FullDiskBench;

TEST_F(FullDisk, TheGamePlaysAndTellsItOnce) {
  Fill();
  EXPECT_EQ(Play(), Status::kRunning) << application.Fault().box_text;
  EXPECT_THAT(Boxes(), testing::ElementsAre(HasSubstr("nothing will be remembered")));
  EXPECT_EQ(Current(), "introscreen");
  Send("cs_floor1hall1");
  Tick(61'000);
  EXPECT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(File("\\GameRunning.txt"), "(none)");
}

TEST_F(FullDisk, ItGoesOnTryingAndAllIsWrittenOnceThereIsRoom) {
  Fill();
  Play();
  MakeRoom();
  Tick(61'000);
  EXPECT_EQ(File("\\GameRunning.txt"), "On\r\n");
  EXPECT_NE(File("\\autosave.txt"), "(none)");
  EXPECT_EQ(Close(), Status::kEnded);
  EXPECT_EQ(File("\\GameRunning.txt"), "Off\r\n");
  EXPECT_NE(File("\\userdata.txt"), "(none)");
  EXPECT_EQ(Boxes().size(), 1u);
}

TEST_F(FullDisk, ASaveThatTheEndCannotWriteIsToldKindlyAndExactlyInTheLog) {
  Play();
  faults.Plan("write", 0, 0, false);
  EXPECT_EQ(Close(), Status::kFailed);
  EXPECT_THAT(Boxes(), testing::ElementsAre(HasSubstr("could not be saved in userdata.txt")));
  EXPECT_THAT(File("\\general.txt"),
              HasSubstr("userdata.txt can't be written: Input/output error"));
  EXPECT_TRUE(backend.window.PointerVisible());
}

TEST_F(FullDisk, WithoutAGameTheOptionsThatCouldNotBeKeptAreTold) {
  faults.Plan("write", 0, 0, false);
  application.Start();
  EXPECT_EQ(Do([&] { backend.forms.Close(); }), Status::kEnded);
  EXPECT_THAT(Boxes(), testing::ElementsAre(HasSubstr("What was chosen could not be kept")));
}

// --- The event log.

TEST(TheLog, OneThatCannotBeMadeIsAFaultThatNamesItAndGivesTheDisplayBack) {
  NextRun run{MemoryFileSystem(kBase)};
  ASSERT_TRUE(run.files.Put("\\general.txt\\x", ""));  // a folder stands in its place
  EXPECT_EQ(run.Play(), Status::kFailed);
  EXPECT_THAT(run.Boxes(), testing::ElementsAre("general.txt: the event log can't be created"));
  EXPECT_TRUE(run.backend.window.PointerVisible());
}

TEST(TheLog, OnlyADiskThatTakesNothingElseIsForgivenTheLog) {
  for (const bool full : {false, true}) {
    NextRun run(MemoryFileSystem(kBase), true);
    run.files.Put("\\general.txt\\x", "");
    if (full) run.faults.Plan("write", 0, 0, false);
    EXPECT_EQ(run.Play(), full ? Status::kRunning : Status::kFailed);
  }
}

}  // namespace
}  // namespace quendle
