#include "backends/headless/HeadlessBackend.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "base/FatalError.h"

namespace quendle {
namespace {

using testing::ElementsAre;

struct Bench {
  Faults faults;
  MemoryFileSystem files{"", &faults};
  HeadlessBackend backend{files, faults};
  std::vector<std::string> fired;

  void Tick(int time) {
    backend.Tick(
        Milliseconds(time),
        [](const std::function<void()>& work) {
          work();
          return true;
        },
        [this](const std::string& callback) { fired.push_back(callback); });
  }
};

TEST(VirtualClock, TimePassesOnlyWhenToldTo) {
  VirtualClock clock;
  EXPECT_EQ(clock.Monotonic().count(), 0);
  clock.AdvanceTo(Milliseconds(1500));
  EXPECT_EQ(clock.Monotonic().count(), 1500);
  clock.AdvanceTo(Milliseconds(200));
  EXPECT_EQ(clock.Monotonic().count(), 1500);
}

TEST(VirtualClock, TheTimeOfDayRunsOnFromWhereItWasSetAndBeginsAgainAtMidnight) {
  VirtualClock clock;
  clock.AdvanceTo(Milliseconds(5000));
  EXPECT_DOUBLE_EQ(clock.TimeOfDay(), 5);
  clock.SetTimeOfDay(86399.5);
  EXPECT_DOUBLE_EQ(clock.TimeOfDay(), 86399.5);
  clock.AdvanceTo(Milliseconds(5750));
  EXPECT_DOUBLE_EQ(clock.TimeOfDay(), 0.25);
  clock.SetTimeOfDay(0);
  EXPECT_DOUBLE_EQ(clock.TimeOfDay(), 0);
}

TEST(HeadlessBackend, TickGoesToEachDueTimeInTurn) {
  Bench bench;
  std::vector<long> at;
  auto note = [&](int) { at.push_back(bench.backend.clock.Monotonic().count()); };
  bench.backend.timers.SetTimer(Milliseconds(50), "slow", note);
  bench.backend.timers.SetTimer(Milliseconds(30), "quick", note);
  bench.Tick(100);
  EXPECT_THAT(bench.fired, ElementsAre("quick", "slow", "quick", "quick", "slow"));
  EXPECT_THAT(at, ElementsAre(30, 50, 60, 90, 100));
  EXPECT_EQ(bench.backend.clock.Monotonic().count(), 100);
}

TEST(HeadlessBackend, TimeStandsWhereTheRunEnded) {
  Bench bench;
  bench.backend.timers.SetTimer(Milliseconds(50), "last", [](int) {});
  int calls = 0;
  bench.backend.Tick(Milliseconds(1000), [&](const std::function<void()>& work) {
    work();
    return ++calls < 3;
  });
  EXPECT_EQ(calls, 3);
  EXPECT_EQ(bench.backend.clock.Monotonic().count(), 150);
}

TEST(ScriptedRandom, QueuedValuesComeBeforeTheSeededOnes) {
  ScriptedRandom plain(7), scripted(7);
  scripted.Queue(0.25);
  scripted.Queue(0);
  EXPECT_EQ(scripted.Rnd(), 0.25);
  EXPECT_EQ(scripted.Rnd(), 0);
  EXPECT_EQ(scripted.Rnd(), plain.Rnd());
}

TEST(ScriptedRandom, CountsHowOftenItIsSeeded) {
  ScriptedRandom random(1);
  random.Randomize(12);
  random.Randomize(12);
  EXPECT_EQ(random.Seeds(), 2);
}

TEST(ScriptedBoxes, AMessageBoxWithoutAnAnswerTakesItsFirstButton) {
  ScriptedBoxes boxes;
  boxes.MessageBox("Wumbly", "It stopped.");
  ASSERT_EQ(boxes.Shown().size(), 1u);
  EXPECT_EQ(boxes.Shown()[0].kind, "message");
  EXPECT_EQ(boxes.Shown()[0].title, "Wumbly");
  EXPECT_EQ(boxes.Shown()[0].text, "It stopped.");
  EXPECT_EQ(boxes.Shown()[0].answer, "ok");
  EXPECT_TRUE(boxes.YesNoBox("Wumbly", "Go on?"));
}

TEST(ScriptedBoxes, EachBoxTakesOneAnswer) {
  ScriptedBoxes boxes;
  boxes.QueueAnswer("ok");
  boxes.QueueAnswer("no");
  boxes.QueueAnswer("Rex");
  boxes.MessageBox("", "one");
  EXPECT_FALSE(boxes.YesNoBox("", "two"));
  EXPECT_EQ(boxes.InputBox("", "three"), "Rex");
  EXPECT_EQ(boxes.QueuedAnswers(), 0u);
}

TEST(ScriptedBoxes, AChooserWithoutAnAnswerIsCancelled) {
  ScriptedBoxes boxes;
  EXPECT_EQ(boxes.ChooseFile("A photograph", {}), "");
  EXPECT_EQ(boxes.Shown()[0].answer, "cancel");
  boxes.QueueAnswer("/home/me/rex.jpg");
  EXPECT_EQ(boxes.ChooseFile("A photograph", {}), "/home/me/rex.jpg");
}

TEST(ScriptedBoxes, ACancelledInputBoxGivesNothing) {
  ScriptedBoxes boxes;
  boxes.QueueAnswer("cancel");
  EXPECT_EQ(boxes.InputBox("Name", "Whose?"), "");
  EXPECT_EQ(boxes.Shown()[0].answer, "cancel");
}

TEST(ScriptedBoxes, AnInputBoxWithoutAnAnswerIsFatal) {
  ScriptedBoxes boxes;
  try {
    boxes.InputBox("Name", "Whose?");
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_STREQ(error.what(), "no answer queued for the input box \"Name\": Whose?");
  }
}

TEST(ScriptedBoxes, TheRecordBeginsAnewWhenItIsTaken) {
  ScriptedBoxes boxes;
  boxes.MessageBox("", "one");
  EXPECT_EQ(boxes.TakeShown().size(), 1u);
  EXPECT_TRUE(boxes.Shown().empty());
}

struct WindowEvents : GameWindowEvents {
  void Load() override { log.push_back("load"); }
  void Unload() override { log.push_back("unload"); }
  void KeyPress(int code) override { log.push_back("key " + std::to_string(code)); }
  void MouseDown(int button, int, double x, double y) override {
    log.push_back("down " + std::to_string(button) + " " + std::to_string(x + y));
  }
  void MouseMove(int, int, double x, double y) override {
    log.push_back("move " + std::to_string(x + y));
  }
  std::vector<std::string> log;
};

TEST(HeadlessWindow, EventsArriveWhileTheWindowIsOpen) {
  Bench bench;
  HeadlessWindow& window = bench.backend.window;
  EXPECT_FALSE(window.Click(1, 2));
  WindowEvents events;
  window.Show(events);
  EXPECT_TRUE(window.Click(1.5, 2, MouseButton::kRight));
  EXPECT_TRUE(window.Move(3, 4));
  EXPECT_TRUE(window.Key(27));
  EXPECT_TRUE(window.CloseByPlayer());
  window.Close();
  EXPECT_FALSE(window.Move(3, 4));
  EXPECT_FALSE(window.Focus(false));
  EXPECT_THAT(events.log,
              ElementsAre("load", "down 2 3.500000", "move 7.000000", "key 27", "unload"));
}

TEST(HeadlessWindow, AReplacedProcedureStandsInFrontOfTheOneBefore) {
  Bench bench;
  HeadlessWindow& window = bench.backend.window;
  WindowEvents events;
  window.Show(events);
  std::vector<std::string> log;
  std::optional<WindowProc> before;
  before = window.ReplaceWindowProc([&](int, unsigned message, std::intptr_t w, std::intptr_t) {
    log.push_back("first " + std::to_string(message) + " " + std::to_string(w));
    return std::intptr_t{0};
  });
  ASSERT_TRUE(before);
  auto first =
      window.ReplaceWindowProc([&](int handle, unsigned message, std::intptr_t w, std::intptr_t l) {
        log.push_back("second");
        return (*before)(handle, message, w, l);
      });
  before = first;
  window.Focus(true);
  window.Focus(false);
  EXPECT_THAT(log, ElementsAre("second", "first 28 1", "second", "first 28 0"));
}

TEST(HeadlessWindow, AHookCanBeRefused) {
  Bench bench;
  bench.faults.Plan("ReplaceWindowProc", 0, 1, false);
  EXPECT_FALSE(bench.backend.window.ReplaceWindowProc({}));
}

TEST(HeadlessSystem, AnswersWhatItWasToldAndNotesWhatItWasAsked) {
  HeadlessSystem system;
  EXPECT_FALSE(system.PreviousInstanceRuns());
  EXPECT_GE(system.MajorVersion(), 5);
  system.SetOtherInstance(true);
  system.SetMajorVersion(4);
  EXPECT_TRUE(system.PreviousInstanceRuns());
  EXPECT_EQ(system.MajorVersion(), 4);
  system.OpenInShell("mailto:someone");
  EXPECT_THAT(system.TakeOpened(), ElementsAre("mailto:someone"));
  EXPECT_TRUE(system.TakeOpened().empty());
}

TEST(HeadlessFilterGraphs, AMissingFileAndAFailedPlayerAreSilence) {
  Bench bench;
  auto graph = bench.backend.filter_graphs.Create();
  ASSERT_NE(graph, nullptr);
  EXPECT_FALSE(graph->RenderFile("\\sounds\\bark.wma"));
  bench.faults.Plan("CreateGraph", 0, 0, false);
  EXPECT_EQ(bench.backend.filter_graphs.Create(), nullptr);
}

}  // namespace
}  // namespace quendle
