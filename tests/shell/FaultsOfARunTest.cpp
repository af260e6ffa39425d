// How a run ends when something is wrong, and how "exitgame" ends it in the middle of a script.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "base/ProcessEnds.h"
#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using Status = Application::Status;

struct FaultBench : testing::Test, GameBench {
  // The hall's door leads to a room whose state file is cut in its second line.
  void BreakTheDog() { files.Put("\\Info\\dog\\states.txt", "default\nnothing\n"); }
};

using FaultsOfARun = FaultBench;

TEST_F(FaultsOfARun, AFaultNamesFileLineObjectAndMessageInOneBoxAndTheLog) {
  BreakTheDog();
  Play();
  Send("cs_floor1hall1");
  EXPECT_EQ(Click(120, 120), Status::kFailed);
  const FaultReport& fault = application.Fault();
  EXPECT_EQ(fault.place.file, "Info\\dog\\states.txt");
  EXPECT_GT(fault.place.line, 0);
  EXPECT_FALSE(fault.text.empty());
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0], fault.box_text);
  EXPECT_THAT(fault.box_text, StartsWith("Info\\dog\\states.txt:"));
  EXPECT_EQ(backend.boxes.Shown()[0].title, "Wumbly");
  EXPECT_THAT(File("\\general.txt"), HasSubstr("Fatal: " + fault.box_text));
}

TEST_F(FaultsOfARun, AMessageThatIsRefusedLeadsBackToTheScriptLineThatSentIt) {
  PutObject(files, ClickButton("start", "change better1\nmtp cs_nosuchscreen\n"));
  Play();
  EXPECT_EQ(Click(120, 120), Status::kFailed);
  const FaultReport& fault = application.Fault();
  EXPECT_THAT(fault.text, HasSubstr("nosuchscreen"));
  EXPECT_EQ(fault.message, "cs_nosuchscreen");
  EXPECT_THAT(fault.box_text, HasSubstr("In work: cs_nosuchscreen"));
  EXPECT_EQ(fault.object, "introscreen");  // the last object that it passed
  EXPECT_EQ(fault.place.file, "Info\\start\\script_click.txt");
  EXPECT_EQ(fault.place.line, 4);
}

TEST_F(FaultsOfARun, NothingIsSavedAndTheRunStaysMarkedAsGoingOn) {
  BreakTheDog();
  files.Put("\\userdata.txt", "begin\r\nend\r\n");
  Play();
  Send("cs_floor1hall1");
  files.Record(true);
  Click(120, 120);
  EXPECT_THAT(Changes(), IsEmpty());
  EXPECT_EQ(File("\\userdata.txt"), "begin\r\nend\r\n");
  EXPECT_EQ(File("\\GameRunning.txt"), "On\r\n");
  EXPECT_EQ(File("\\HelpSys.txt"), "(none)");
}

TEST_F(FaultsOfARun, TheDisplayIsGivenBackAndNothingOfTheRunActsAnyMore) {
  BreakTheDog();
  Play();
  Send("cs_floor1hall1");
  EXPECT_FALSE(backend.window.PointerVisible());
  Click(120, 120);
  EXPECT_TRUE(backend.window.PointerVisible());
  EXPECT_EQ(application.Game()->media.primary_surface, nullptr);
  const std::int16_t draws = Logic()->FrameCounter();
  Tick(1000);
  EXPECT_EQ(Logic()->FrameCounter(), draws);
  bool ran = false;
  EXPECT_EQ(Do([&] { ran = true; }), Status::kFailed);
  EXPECT_FALSE(ran);
  EXPECT_EQ(Boxes().size(), 1u);
}

// A box whose message loop fires the timers itself.
class TickingBoxes : public Boxes {
 public:
  explicit TickingBoxes(HeadlessBackend& backend) : backend_(backend) {}
  void MessageBox(const std::string&, const std::string&) override {
    backend_.Tick(Milliseconds(500), [](const std::function<void()>& work) {
      work();
      return true;
    });
  }
  bool YesNoBox(const std::string&, const std::string&) override { return true; }
  std::string InputBox(const std::string&, const std::string&) override { return ""; }
  std::string ChooseFile(const std::string&, const std::vector<FileFilter>&) override { return ""; }

 private:
  HeadlessBackend& backend_;
};

TEST(FaultBox, NothingIsDrawnWhileTheBoxOfAFaultStands) {
  BenchPlatform platform;
  HeadlessBackend& backend = platform.backend;
  TickingBoxes boxes(backend);
  PutSmallClinic(platform.files);
  platform.files.Put("\\DialogMode.txt", "On\n");
  Ports ports{platform.files,
              backend.clock,
              backend.timers,
              backend.random,
              boxes,
              backend.gdi,
              backend.direct_draw,
              backend.display_modes,
              platform.graphs,
              backend.window,
              backend.forms,
              backend.system,
              backend.picture_loader,
              backend.picture_saver};
  Application application(ports, 2, kBase);
  application.Start();
  application.Deliver([&] { backend.forms.Press("Picture1", 1); });
  ASSERT_EQ(application.GetStatus(), Status::kRunning);
  EXPECT_EQ(application.Deliver([] { throw FatalError("fault"); }), Status::kFailed);
  EXPECT_EQ(application.Game()->GameLogic->FrameCounter(), 0);
  // Games have timers of their own that don't ask for the focus: none of them is left either.
  EXPECT_TRUE(backend.timers.Running().empty());
}

TEST_F(FaultsOfARun, AMissingFileShowsExactlyItsBox) {
  files.Remove("C:\\game\\Info\\dog\\data.txt");
  Play();
  Send("cs_floor1hall1");
  EXPECT_EQ(Click(120, 120), Status::kFailed);
  EXPECT_THAT(Boxes(), ElementsAre("File C:\\game\\Info\\dog\\data.txt not found"));
}

TEST_F(FaultsOfARun, AFaultOfATickEndsTheRunAsWell) {
  Play();
  Do([&] {
    ports.timers.SetTimer(Milliseconds(10), "test", [](int) { throw FatalError("a bad tick"); });
  });
  Tick(1000);
  EXPECT_EQ(application.GetStatus(), Status::kFailed);
  EXPECT_THAT(Boxes(), ElementsAre(StartsWith("a bad tick")));
}

TEST_F(FaultsOfARun, AnEndlessCircleOfMessagesNamesTheMessage) {
  Play();
  Send("cs_floor1hall1");
  EXPECT_EQ(Send("toobj_dogdoor_subgame"), Status::kFailed);
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_THAT(Boxes()[0], HasSubstr("toobj_dogdoor_subgame"));
}

TEST_F(FaultsOfARun, OtherExceptionsEndTheRunInTheSameWay) {
  {
    GameBench bench;
    bench.Play();
    EXPECT_EQ(bench.Do([] { throw std::bad_alloc(); }), Status::kFailed);
    EXPECT_THAT(bench.Boxes(), ElementsAre(HasSubstr("memory")));
  }
  Play();
  EXPECT_EQ(Do([] { throw std::logic_error("surprise"); }), Status::kFailed);
  EXPECT_THAT(Boxes(), ElementsAre(HasSubstr("surprise")));
  EXPECT_TRUE(backend.window.PointerVisible());
}

TEST_F(FaultsOfARun, ADamagedSavedGameNamesItsLineAtTheStart) {
  files.Put("\\userdata.txt", "begin\nbegin\nhall\ndefault\nx\n0\nTrue\nend\nend\n");
  EXPECT_EQ(Play(), Status::kFailed);
  EXPECT_THAT(Boxes(), ElementsAre(StartsWith("userdata.txt:5: ")));
  EXPECT_EQ(File("\\GameRunning.txt"), "On\r\n");
  EXPECT_EQ(application.GetStatus(), Status::kFailed);
}

TEST_F(FaultsOfARun, AFaultBehindAFaultIsNotShown) {
  Play();
  Do([] { throw FatalError("first"); });
  Do([] { throw FatalError("second"); });
  EXPECT_THAT(Boxes(), ElementsAre(HasSubstr("first")));
}

// --- The end in the middle of a script.

TEST_F(FaultsOfARun, ExitingFromAScriptSavesWhatStoodAtThatMoment) {
  PutObject(files, ClickButton("dogdoor",
                               "mtp toobj_tooldoor_changestate_better1\n"
                               "mtp exitgame\nmtp toobj_tooldoor_changestate_default\n"
                               "mtp cs_dogroom\n"));
  Play();
  Send("cs_floor1hall1");
  EXPECT_EQ(Click(120, 120), Status::kEnded);
  EXPECT_THAT(File("\\userdata.txt"), HasSubstr("tooldoor\r\nbetter1\r\n"));
  EXPECT_THAT(File("\\userdata.txt"), Not(HasSubstr("dogroom")));
  EXPECT_EQ(File("\\GameRunning.txt"), "Off\r\n");
  EXPECT_THAT(Boxes(), IsEmpty());
  EXPECT_EQ(graphs.made.front()->alive, false);
}

TEST_F(FaultsOfARun, OtherTicksDueInTheSameTimeDoNotFireBehindTheEnd) {
  Play();
  std::vector<std::string> fired;
  Do([&] {
    ports.timers.SetTimer(Milliseconds(10), "one", [&](int) {
      fired.push_back("one");
      Logic()->Send("exitgame");
    });
    ports.timers.SetTimer(Milliseconds(10), "two", [&](int) { fired.push_back("two"); });
  });
  Tick(500);
  EXPECT_THAT(fired, ElementsAre("one"));
  EXPECT_EQ(application.GetStatus(), Status::kEnded);
}

TEST_F(FaultsOfARun, AFaultOfTheOrderlyEndFailsTheProcessWithTheRunMarkedAsEnded) {
  files.Put("\\userdata.txt", "begin\r\nend\r\n");
  Play();
  // The marking goes well, the disk is full by the time of the saving.
  faults.Plan("write", 1, 0, false);
  EXPECT_EQ(Close(), Status::kFailed);
  EXPECT_EQ(File("\\GameRunning.txt"), "Off\r\n");
  EXPECT_EQ(File("\\userdata.txt"), "begin\r\nend\r\n");
  EXPECT_THAT(Boxes(), ElementsAre(HasSubstr("userdata.txt")));
  EXPECT_TRUE(backend.window.PointerVisible());
}

TEST_F(FaultsOfARun, ARunThatEndsByABoxOfTheContentSavesNothing) {
  files.Put("\\Info\\dog\\frames.txt", "f1\nnothing\nstable+0\nstable\n0\n0\n60\n60\n-\n");
  Play();
  Send("cs_floor1hall1");
  EXPECT_NE(Click(120, 120), Status::kRunning);
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0], "Error: Cannot have the line 'stable+0'");
  EXPECT_EQ(File("\\GameRunning.txt"), "On\r\n");
  EXPECT_EQ(File("\\userdata.txt"), "(none)");
}

// A box runs the message loop: what happens there stands on the stack of the work that showed it.
TEST_F(FaultsOfARun, AnEndInsideABoxWaitsForTheOutermostFrame) {
  Play();
  bool ran_on = false;
  bool ended_inside = false;
  EXPECT_EQ(Do([&] {
              Do([&] { Logic()->Send("exitgame"); });
              ended_inside = application.Game()->GameLogic == nullptr;
              ran_on = true;
            }),
            Status::kEnded);
  EXPECT_FALSE(ended_inside);
  EXPECT_FALSE(ran_on);
  EXPECT_EQ(application.Game()->GameLogic, nullptr);
  EXPECT_EQ(File("\\GameRunning.txt"), "Off\r\n");
}

TEST_F(FaultsOfARun, AFaultInsideABoxIsShownOnce) {
  Play();
  EXPECT_EQ(Do([&] { Do([] { throw FatalError("inside"); }); }), Status::kFailed);
  EXPECT_THAT(Boxes(), ElementsAre(StartsWith("inside")));
}

}  // namespace
}  // namespace quendle
