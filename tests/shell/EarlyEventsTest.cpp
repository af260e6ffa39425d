// Events that come while a game starts, and the order of a start and an end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "object/ForwardingObject.h"
#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using Status = Application::Status;

// Boxes during which a test may act, as events do that come while a box stands.
class ActingBoxes : public Boxes {
 public:
  void MessageBox(const std::string&, const std::string& text) override {
    texts.push_back(text);
    if (act) act();
  }
  bool YesNoBox(const std::string&, const std::string&) override { return true; }
  std::string InputBox(const std::string&, const std::string&) override { return ""; }
  std::string ChooseFile(const std::string&, const std::vector<FileFilter>&) override { return ""; }

  std::vector<std::string> texts;
  std::function<void()> act;
};

// A start whose display fails, so that a box stands before the game is there.
struct EarlyBench : testing::Test, BenchPlatform {
  EarlyBench() {
    PutSmallClinic(files);
    files.Put("\\DialogMode.txt", "On\n");
    faults.Plan("Create", 0, 1, false);
  }
  Status Play() {
    application.Start();
    return Do([&] { backend.forms.Press("Picture1", 1); });
  }
  Status Do(const std::function<void()>& work) { return application.Deliver(work); }
  bool GameIsActive() { return application.Game()->objects.GameActive; }

  ActingBoxes boxes;
  Ports early_ports{files,
                    backend.clock,
                    backend.timers,
                    backend.random,
                    boxes,
                    backend.gdi,
                    backend.direct_draw,
                    backend.display_modes,
                    graphs,
                    backend.window,
                    backend.forms,
                    backend.system,
                    backend.picture_loader,
                    backend.picture_saver};
  Application application{early_ports, 2, kBase};
};

using EarlyEvents = EarlyBench;

TEST_F(EarlyEvents, FindNoGameAndDoNothing) {
  std::vector<bool> active;
  boxes.act = [&] {
    EXPECT_EQ(application.Game()->GameLogic, nullptr);
    Do([&] { backend.window.Key(27); });
    Do([&] { backend.window.Click(120, 120); });
    Do([&] { backend.window.Move(120, 120); });
    Do([&] { backend.window.Focus(false); });
    active.push_back(GameIsActive());
    Do([&] { backend.window.Focus(true); });
    active.push_back(GameIsActive());
  };
  ASSERT_EQ(Play(), Status::kRunning);
  ASSERT_EQ(boxes.texts.size(), 1u);
  EXPECT_THAT(active, ElementsAre(false, true));
  EXPECT_FALSE(application.Game()->GameLogic->DialogActive());
  EXPECT_EQ(application.Game()->GameLogic->CurrentScreen()->ObjectName(), "introscreen");
}

TEST_F(EarlyEvents, TheDisplayComesBeforeSoundsAndGame) {
  files.Record(true);
  std::vector<std::string> read;
  boxes.act = [&] {
    for (const auto& operation : files.Operations()) read.push_back(operation.path);
  };
  Play();
  const std::string base = std::string(kBase) + "\\Info\\";
  EXPECT_THAT(read, Contains(std::string(kBase) + "\\GameRunning.txt"));
  EXPECT_THAT(read, Not(Contains(base + "globalsoundstates.txt")));
  EXPECT_EQ(application.GetStatus(), Status::kRunning);
}

TEST_F(EarlyEvents, SoundsComeBeforeTheGame) {
  files.Remove(std::string(kBase) + "\\Info\\globalsoundstates.txt");
  EXPECT_EQ(Play(), Status::kFailed);
  EXPECT_EQ(application.Game()->GameLogic, nullptr);
}

struct EndBench : testing::Test, GameBench {};

using EndOfARun = EndBench;

TEST_F(EndOfARun, GivesTheRegisteredModeBackAlsoInTheWindowPath) {
  faults.Plan("Create", 0, 1, false);
  ASSERT_EQ(Play(), Status::kRunning);
  EXPECT_EQ(backend.display_modes.Depth(), 32);
  EXPECT_EQ(Close(), Status::kEnded);
  EXPECT_EQ(backend.display_modes.Depth(), 0);
}

// Notes what is known of global objects while it is released.
class NotedRelease : public ForwardingObject {
 public:
  explicit NotedRelease(ObjectWorld& world) : ForwardingObject(world), world_(world) {}
  void Release(bool forced) override {
    lines.push_back(std::string(forced ? "forced" : "free") +
                    (world_.ReleasingGlobals ? " releasing" : "") +
                    (world_.GlobalObjectExists("handcursor") ? " known" : ""));
    ForwardingObject::Release(forced);
  }
  std::vector<std::string> lines;

 private:
  ObjectWorld& world_;
};

TEST_F(EndOfARun, GlobalObjectsAreUnknownWhileTheyAreReleased) {
  Play();
  auto noted = std::make_shared<NotedRelease>(World());
  World().GlobalObjects.Add(noted, "noted");
  EXPECT_EQ(Close(), Status::kEnded);
  EXPECT_THAT(noted->lines, ElementsAre("forced releasing"));
  EXPECT_FALSE(World().ReleasingGlobals) << "only during the pass";
}

struct HookBench : testing::Test, GameBench {};

TEST_F(HookBench, TheHookHandsBackWhatTheWindowsOwnProcedureAnswers) {
  backend.window.ReplaceWindowProc(
      [](int, unsigned message, std::intptr_t, std::intptr_t) -> std::intptr_t {
        return static_cast<std::intptr_t>(message) + 40;
      });
  Play();
  const WindowProc hook = *backend.window.ReplaceWindowProc({});
  EXPECT_EQ(hook(1, 2, 6, 7), 42);
  EXPECT_EQ(hook(1, kActivateAppMessage, 0, 0), 68);
  EXPECT_EQ(hook(1, kActivateAppMessage, 1, 0), 68);
}

}  // namespace
}  // namespace quendle
