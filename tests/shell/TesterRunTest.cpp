#include "shell/TesterRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/ProcessEnds.h"
#include "base/TextStream.h"
#include "diagnostics/Sidecar.h"
#include "platform/Boxes.h"
#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Kind = SidecarMoment::Kind;

struct TesterRunTest : testing::Test, GameBench {
  TesterRunTest() {
    application.SetTester({50, 7, [] { return std::string("0123456789abcdef"); }});
  }
  Application::Status Record() {
    backend.boxes.QueueAnswer("record");
    backend.boxes.QueueAnswer("session.txt");
    return Play();
  }
  Application::Status PlayBack() {
    backend.boxes.QueueAnswer("play");
    backend.boxes.QueueAnswer("session.txt");
    return Play();
  }
  std::string Session() { return File("\\session.txt"); }
  Sidecar ReadBack() {
    TextReader stream(File("\\session.sidecar.txt"), "session.sidecar.txt");
    return ReadSidecar(stream);
  }
  std::vector<std::string> Timers() const {
    std::vector<std::string> names;
    for (const TimerInfo& timer : backend.timers.Running()) names.push_back(timer.callback);
    return names;
  }
};

TEST(TesterRun, WithoutTheSwitchNothingIsAskedAndNoTimerRuns) {
  GameBench game;
  game.Play();
  EXPECT_THAT(game.Boxes(), IsEmpty());
  for (const TimerInfo& timer : game.backend.timers.Running()) {
    EXPECT_NE(timer.callback, "OnTesterTimer");
  }
}

TEST_F(TesterRunTest, TheQuestionsComeBeforeTheFirstScreenSoThatBothStartTogether) {
  EXPECT_EQ(Record(), Application::Status::kRunning);
  EXPECT_EQ(backend.boxes.Shown()[0].title, "IntelliTester");
  ASSERT_FALSE(Timers().empty());
  // First in order of start: at equal times the recorder's tick comes before all others.
  EXPECT_EQ(Timers()[0], "OnTesterTimer");
}

TEST_F(TesterRunTest, PressesAndMovesAreRecorded) {
  Record();
  Tick(100);
  Do([&] { backend.window.Move(10.5, 20); });
  Tick(149);
  Click(110, 110);
  EXPECT_EQ(Session(),
            "B\r\nmm\r\nmm\r\n2\r\n10\r\n20\r\nE\r\nB\r\nmc\r\nmc\r\n2\r\n110\r\n110\r\nE\r\n");
  EXPECT_EQ(Current(), "floor1hall1");
}

TEST_F(TesterRunTest, TheSidecarTellsTheConditions) {
  files.Put("\\HelpSys.txt", "True\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\n");
  files.Put("\\DifficultyLevel.txt", "Easy\r\n");
  backend.clock.SetTimeOfDay(12.345);
  Record();
  const SidecarConditions conditions = ReadBack().conditions;
  EXPECT_FALSE(conditions.version.empty());
  EXPECT_EQ(conditions.edition, 2);
  EXPECT_EQ(conditions.seed, 7u);
  EXPECT_EQ(conditions.difficulty, "Easy");
  EXPECT_FALSE(conditions.safe_mode);
  EXPECT_FALSE(conditions.personalize);
  EXPECT_EQ(conditions.depth, 32);
  EXPECT_TRUE(conditions.direct_draw);
  EXPECT_TRUE(conditions.sound);
  EXPECT_EQ(conditions.interval, 50);
  EXPECT_EQ(conditions.clock, 12345);
  EXPECT_EQ(conditions.content, "0123456789abcdef");
  ASSERT_EQ(conditions.files.size(), 1u);
  EXPECT_EQ(conditions.files[0].name, "HelpSys.txt");
  EXPECT_THAT(conditions.files[0].lines, ElementsAre("True", "False", "False", "False", "False"));
}

TEST_F(TesterRunTest, TheSidecarTellsTheWindowPath) {
  faults.Plan("Create", 0, 0, false);
  backend.boxes.QueueAnswer("ok");  // to the warning
  Record();
  EXPECT_FALSE(ReadBack().conditions.direct_draw);
}

TEST_F(TesterRunTest, EverythingFromOutsideHasItsMomentToTheMillisecond) {
  Record();
  Tick(123);
  Click(10, 10);
  Tick(100);
  Do([&] { backend.window.Key(27); });
  Do([&] { backend.window.Key(65); });
  Tick(77);
  Focus(false);
  Tick(500);
  Focus(true);
  EXPECT_THAT(
      ReadBack().moments,
      ElementsAre(SidecarMoment{123, Kind::kAction, 0}, SidecarMoment{223, Kind::kKey, 27},
                  SidecarMoment{300, Kind::kFocus, 0}, SidecarMoment{800, Kind::kFocus, 1}));
}

TEST_F(TesterRunTest, TheStateIsWrittenOnceASecond) {
  Record();
  Tick(999);
  EXPECT_THAT(ReadBack().states, IsEmpty());
  Tick(1);
  ASSERT_EQ(ReadBack().states.size(), 1u);
  Tick(2500);
  const Sidecar sidecar = ReadBack();
  ASSERT_EQ(sidecar.states.size(), 3u);
  EXPECT_EQ(sidecar.states[2].time, 3000);
  // Between the second and the third second only the count of frames has changed.
  EXPECT_THAT(sidecar.states[2].changes, ElementsAre("object (game)", " frameCounter = 59"));
}

TEST_F(TesterRunTest, TheStateTellsWhatTheGameAndItsObjectsAre) {
  Record();
  Click(110, 110);
  Tick(1000);
  StateSnapshot snapshot;
  for (const SidecarState& state : ReadBack().states) ApplyChanges(snapshot, state.changes);
  EXPECT_EQ(snapshot.objects["(game)"]["screen"], "floor1hall1");
  EXPECT_EQ(snapshot.objects["(game)"]["previous"], "introscreen");
  EXPECT_EQ(snapshot.objects["(game)"]["cursor"], "hand");
  EXPECT_EQ(snapshot.objects["(game)"]["help"], "10000");
  EXPECT_EQ(snapshot.objects["floor1hall1/dogdoor"]["x"], "100");
  EXPECT_EQ(snapshot.objects["floor1hall1/dogdoor"]["state"], "default");
  EXPECT_EQ(snapshot.objects["floor1hall1/dogdoor"]["visible"], "on");
  EXPECT_EQ(snapshot.objects["cursors/handcursor"]["x"], "94");
  EXPECT_EQ(snapshot.objects["cursors/exitdialog"]["visible"], "off");
  EXPECT_TRUE(snapshot.objects.contains("tools/handtool"));
}

TEST_F(TesterRunTest, NoStateIsWrittenWithoutTheFocus) {
  Record();
  Focus(false);
  Tick(5000);
  Focus(true);
  Tick(50);
  const Sidecar sidecar = ReadBack();
  ASSERT_EQ(sidecar.states.size(), 1u);
  EXPECT_EQ(sidecar.states[0].time, 5050);
}

TEST_F(TesterRunTest, ClosingTheWindowWritesTheLastStateAndTheEnd) {
  Record();
  Tick(300);
  EXPECT_EQ(Close(), Application::Status::kEnded);
  const Sidecar sidecar = ReadBack();
  ASSERT_EQ(sidecar.states.size(), 1u);
  EXPECT_EQ(sidecar.states[0].time, 300);
  EXPECT_EQ(sidecar.moments.back().kind, Kind::kClose);
  EXPECT_TRUE(sidecar.ended);
  EXPECT_THAT(Timers(), IsEmpty());
}

TEST_F(TesterRunTest, AGameThatEndsItselfEndsTheRecording) {
  Record();
  Tick(300);
  EXPECT_EQ(Send("exitgame"), Application::Status::kEnded);
  EXPECT_TRUE(ReadBack().ended);
  EXPECT_THAT(ReadBack().moments, IsEmpty());
}

TEST_F(TesterRunTest, AFaultLeavesWhatWasRecordedWithoutAnEnd) {
  Record();
  Click(10, 10);
  EXPECT_EQ(Send("subgamedone"), Application::Status::kFailed);
  EXPECT_THAT(Session(), HasSubstr("mc"));
  EXPECT_FALSE(ReadBack().ended);
}

TEST_F(TesterRunTest, ARecordedSessionIsPlayedBack) {
  files.Put("\\session.txt",
            "B\nmc\nmc\n2\n110\n110\nE\nB\nmm\nmm\n3\n50\n60\nE\nB\nmc\nmc\n0\n110\n110\nE\n");
  PlayBack();
  EXPECT_EQ(Current(), "introscreen");
  Tick(100);
  EXPECT_EQ(Current(), "floor1hall1");
  Tick(150);
  EXPECT_EQ(Current(), "dogroom");
  const std::size_t boxes = Boxes().size();
  Tick(50);
  ASSERT_EQ(Boxes().size(), boxes + 1);
  EXPECT_EQ(Boxes().back(), "IntelliTester has finished playing");
  EXPECT_THAT(Timers(), Not(testing::Contains("OnTesterTimer")));
}

TEST_F(TesterRunTest, WhatIsPlayedIsNotRecordedAndHasNoSidecar) {
  const std::string session = "B\nmc\nmc\n1\n5\n5\nE\n";
  files.Put("\\session.txt", session);
  PlayBack();
  Do([&] { backend.window.Key(27); });
  Tick(2000);
  EXPECT_EQ(Session(), session);
  EXPECT_EQ(File("\\session.sidecar.txt"), "(none)");
}

TEST_F(TesterRunTest, APlayedClickThatExitsTheGameEndsItInOrder) {
  // Esc shows the exit button, which isn't recorded: here it is shown by a message.
  files.Put("\\session.txt", "B\nmc\nmc\n2\n610\n20\nE\nB\nmc\nmc\n0\n1\n1\nE\n");
  PlayBack();
  Send("exitondemand");
  Send("toscreen_cursors_showobj_exitbutton");
  Tick(100);
  EXPECT_EQ(application.GetStatus(), Application::Status::kEnded);
  EXPECT_EQ(File("\\GameRunning.txt"), "Off\r\n");
}

TEST_F(TesterRunTest, AMalformedSessionIsAFaultThatNamesItsLine) {
  files.Put("\\session.txt", "B\nmc\nmc\nsoon\n");
  EXPECT_EQ(PlayBack(), Application::Status::kFailed);
  EXPECT_EQ(application.Fault().place.file, "session.txt");
  EXPECT_EQ(application.Fault().place.line, 4);
}

// A box whose window is closed while it stands.
class ClosingBoxes : public Boxes {
 public:
  explicit ClosingBoxes(HeadlessWindow& window) : window_(window) {}
  void MessageBox(const std::string&, const std::string&) override {}
  bool YesNoBox(const std::string&, const std::string&) override { return false; }
  std::string InputBox(const std::string&, const std::string&) override {
    window_.CloseByPlayer();
    return "";
  }
  std::string ChooseFile(const std::string&, const std::vector<FileFilter>&) override { return ""; }

 private:
  HeadlessWindow& window_;
};

TEST(TesterRun, ClosingTheWindowOverAQuestionEndsTheGameInOrder) {
  BenchPlatform platform;
  ClosingBoxes boxes(platform.backend.window);
  Ports ports{platform.ports.files,
              platform.ports.clock,
              platform.ports.timers,
              platform.ports.random,
              boxes,
              platform.ports.gdi,
              platform.ports.direct_draw,
              platform.ports.display_modes,
              platform.ports.filter_graphs,
              platform.ports.window,
              platform.ports.forms,
              platform.ports.system,
              platform.ports.picture_loader,
              platform.ports.picture_saver};
  PutSmallClinic(platform.files);
  platform.files.Put("\\DialogMode.txt", "On\r\n");
  Application application(ports, 2, kBase);
  application.SetTester({});
  application.Start();
  application.Deliver([&] { platform.backend.forms.Press("Picture1", 1); });
  EXPECT_EQ(application.GetStatus(), Application::Status::kEnded);
  EXPECT_EQ(platform.File("\\GameRunning.txt"), "Off\r\n");
}

}  // namespace
}  // namespace quendle
