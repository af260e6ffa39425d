#include "toolbelt/bench/Bench.h"

#include <cstdlib>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "backends/raster/RasterSurface.h"
#include "logic/GameLogicLayer.h"
#include "media/MediaWorld.h"
#include "media/ObjectPicture.h"
#include "toolbelt/bench/BenchContent.h"
#include "toolbelt/bench/Measurement.h"
#include "toolbelt/drive/Drive.h"

namespace quendle {
namespace {

constexpr int kFrameCalls = 10000;
constexpr int kMovingCalls = 2000;
constexpr int kEventCalls = 20000;
constexpr Point kPointerOffset{16, 8};  // of the pointer's picture against the pointer

// A game in memory that stands on the screen that is measured.
class BenchGame {
 public:
  void Play(bool window_path) {
    DriveOptions options;
    options.window_path = window_path;
    session_ = std::make_unique<DriveSession>(files, faults_, "", options);
    RunCommandLine(*session_, "play");
    RequireRunning();
    logic_ = session_->World().GameLogic;
  }
  void Enter() {
    session_->Deliver([this] { logic_->Send(std::string("cs_") + kBenchScreen); });
    RequireRunning();
  }
  // Composes a frame and has all its pixels drawn.
  void Compose() {
    Logic().Compose();
    Surface().Bitmap();
  }
  RasterSurface& Surface() { return static_cast<RasterSurface&>(*Media().off_screen_surface); }
  void RequireRunning() const {
    if (!session_->Running()) throw std::runtime_error(session_->Game().Fault().text);
  }

  GameLogicLayer& Logic() { return *logic_; }
  MediaWorld& Media() { return session_->World().media; }
  std::uint32_t FrameCheck() {
    const auto frame = session_->ComposeFrame();
    RequireRunning();
    return CrcOfPixels(frame->Pixels(), std::size_t{kFrameWidth} * kFrameHeight);
  }

  MemoryFileSystem files;

 private:
  Faults faults_;
  std::unique_ptr<DriveSession> session_;
  std::shared_ptr<GameLogicLayer> logic_;
};

void PutPointerAt(GameLogicLayer& logic, Point at) {
  logic.MapMouseCoords(static_cast<std::int16_t>(at.x + kPointerOffset.x),
                       static_cast<std::int16_t>(at.y + kPointerOffset.y));
}

// Each frame is drawn whole, as the first one of a screen is.
void MeasureStillFrame(BenchGame& game) {
  const auto work = [&] {
    game.Surface().ForgetDrawn();
    game.Compose();
  };
  Measure({"quendle", "W1", "us/frame", kFrameCalls, work, [&] { return game.FrameCheck(); }});
}

// Four sprites change their picture and the pointer jumps, each frame anew.
void MeasureMovingFrame(BenchGame& game) {
  std::vector<ObjectRef> moving;
  for (const int number : {5, 20, 35, 50}) {
    moving.push_back(
        game.Logic().CurrentScreen()->Children().Item("sprite" + std::to_string(number)));
  }
  int frame = 0;
  const auto work = [&] {
    for (const ObjectRef& sprite : moving) {
      sprite->ProcessState(frame % 2 == 0 ? "default" : "next");
    }
    PutPointerAt(game.Logic(), {frame * 37 % 768, frame * 23 % 568});
    game.Compose();
    ++frame;
  };
  Measure({"quendle", "W1D", "us/frame", kMovingCalls, work, [&] { return game.FrameCheck(); }});
}

void BenchFrames(const std::string& folder) {
  const std::vector<BenchSprite> scene = ReadBenchScene(folder);
  BenchGame game;
  PutSceneContent(game.files, folder, scene);
  game.Play(false);
  ObjectPicture sheet(game.Media(), 0);
  sheet.LoadPicture(kBenchSheetFile);
  game.Media().PictureRegistry.Add({kBenchSheetName, sheet.DirectDrawingSurface()},
                                   kBenchSheetName);
  game.Enter();
  PutPointerAt(game.Logic(), scene.back().to);
  MeasureStillFrame(game);
  MeasureMovingFrame(game);
}

// Takes "hit_I_J" and adds up (I + 1) * (J + 1).
class HitCounter : public MessageTarget {
 public:
  void HandleMessage(const std::string& message, GameObjectInterface*, bool, bool&) override {
    std::uint32_t numbers[2] = {0, 0};
    int which = 0;
    for (std::size_t i = kPrefix; i < message.size(); ++i) {
      if (message[i] == '_') {
        which = 1;
      } else {
        numbers[which] = numbers[which] * 10 + static_cast<std::uint32_t>(message[i] - '0');
      }
    }
    sum_ += (numbers[0] + 1) * (numbers[1] + 1);
  }
  std::uint32_t Sum() const { return sum_; }

 private:
  static constexpr std::size_t kPrefix = 4;
  std::uint32_t sum_ = 0;
};

void BenchEvents(const std::string& folder) {
  const std::vector<BenchChain> chains = ReadBenchChains(folder);
  const std::vector<int> events = ReadBenchEvents(folder);
  BenchGame game;
  PutChainContent(game.files, chains);
  game.Play(false);
  game.Enter();
  const auto counter = std::make_shared<HitCounter>();
  for (const auto& [name, child] : game.Logic().CurrentScreen()->Children()) {
    child->SetParent(counter);
  }
  std::size_t next = 0;
  const auto work = [&] {
    const Point at = PlaceOfChain(events[next++ % events.size()]);
    game.Logic().MapMouseCoords(static_cast<std::int16_t>(at.x), static_cast<std::int16_t>(at.y));
  };
  Measure({"quendle", "W3", "us/event", kEventCalls, work, [&] { return counter->Sum(); }});
}

}  // namespace

void RunBench(const std::string& workload, const std::string& folder) {
  if (workload == "W1") BenchFrames(folder);
  if (workload == "W3") BenchEvents(folder);
}

std::string DefaultBenchFolder() {
  const char* scratch = std::getenv("PEERS_TMP");
  return (scratch == nullptr ? std::string("/tmp/perf") : std::string(scratch)) + "/data";
}

}  // namespace quendle
