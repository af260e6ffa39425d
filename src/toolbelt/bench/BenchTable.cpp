#include "toolbelt/bench/BenchTable.h"

#include <sys/resource.h>

#include <chrono>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "backends/raster/RasterSurface.h"
#include "base/FatalError.h"
#include "base/PlayerFiles.h"
#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "toolbelt/Json.h"
#include "toolbelt/Progress.h"
#include "toolbelt/bench/BenchContent.h"
#include "toolbelt/drive/Drive.h"
#include "toolbelt/play/ContentRun.h"

namespace quendle {
namespace {

constexpr int kFrames = 1000;
constexpr int kEvents = 5000;
constexpr int kCachedChanges = 100;
constexpr int kSaves = 20;
constexpr int kChains = 60;

// Wall time of one call, in microseconds.
double Time(int calls, const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < calls; ++i) work();
  const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
  return time.count() / calls;
}

// Rows of the table, printed as they are measured, or one line of JSON each.
class Table {
 public:
  explicit Table(bool json) : json_(json) {}
  void Begin(const std::string& what) { progress_.Step(what, ++row_, kRows); }
  void Row(const std::string& what, double value, const char* unit) {
    progress_.Clear();
    if (json_) {
      std::cout << Json({{"what", what}, {"value", value}, {"unit", unit}}).dump() << std::endl;
      return;
    }
    std::cout << std::left << std::setw(52) << what << std::right << std::fixed
              << std::setprecision(2) << std::setw(12) << value << " " << unit << std::endl;
  }

 private:
  static constexpr std::size_t kRows = 5;
  bool json_;
  std::size_t row_ = 0;
  Progress progress_{std::cerr, Progress::ErrorIsTerminal()};
};

void RequireRunning(DriveSession& session) {
  const FaultReport& fault = session.Game().Fault();
  if (!session.Running()) throw FatalError(fault.text, fault.place);
}

void Send(DriveSession& session, const std::string& message) {
  session.Deliver([&] { session.Logic().Send(message); });
  RequireRunning(session);
}

void Play(DriveSession& session) {
  RunCommandLine(session, "play");
  RequireRunning(session);
}

// Every screen is entered for the first time, then two of them in turn.
void TimeScreens(DriveSession& session, Table& table) {
  table.Begin("screens");
  std::vector<std::string> screens;
  session.Logic().Keeper()->EnumerateScreens(screens);
  double cold = 0;
  for (const std::string& screen : screens) {
    if (EqualsNoCase(screen, session.Logic().CurrentScreen()->ObjectName())) continue;
    cold += Time(1, [&] { Send(session, "cs_" + screen); });
  }
  if (screens.size() < 2) return;
  table.Row("screen load, cold", cold / 1000 / static_cast<double>(screens.size() - 1), "ms");
  int turn = 0;
  const auto change = [&] { Send(session, "cs_" + screens[static_cast<std::size_t>(++turn % 2)]); };
  change();
  change();
  table.Row("screen change, cached", Time(kCachedChanges, change) / 1000, "ms");
}

void TimeFrames(DriveSession& session, Table& table) {
  table.Begin("frames");
  auto& surface = static_cast<RasterSurface&>(*session.World().media.off_screen_surface);
  const std::string name = session.Logic().CurrentScreen()->ObjectName();
  const auto whole = [&] {
    surface.ForgetDrawn();
    session.ComposeFrame();
  };
  table.Row("frame drawn whole, " + name, Time(kFrames, whole), "us");
  table.Row("the same frame again", Time(kFrames, [&] { session.ComposeFrame(); }), "us");
}

void TimeSavedGame(DriveSession& session, Table& table) {
  table.Begin("saved game");
  ScreenKeeper& keeper = *session.Logic().Keeper();
  table.Row("saved game, written", Time(kSaves, [&] { keeper.SaveGame(kSavedGameFile); }) / 1000,
            "ms");
  const double read = Time(kSaves, [&] {
    ScreenKeeper fresh(session.World().objects);
    fresh.LoadGame(kSavedGameFile);
    if (fresh.Mementos().Empty()) throw std::runtime_error("the saved game can't be read back");
  });
  table.Row("saved game, read", read / 1000, "ms");
}

std::vector<BenchChain> TypicalChains() {
  std::vector<BenchChain> chains;
  for (int i = 0; i < kChains; ++i) {
    const std::string name = "thing" + std::to_string(i);
    chains.push_back({name,
                      {name + "handmouseclick", "bandaid*", "*soapmouseclick", "*mouseclick",
                       "toolmouseover", name + "*"}});
  }
  return chains;
}

void TimeEvents(Table& table) {
  table.Begin("mouse events");
  Faults faults;
  MemoryFileSystem files("", &faults);
  PutChainContent(files, TypicalChains());
  DriveSession session(files, faults, "", {});
  Play(session);
  Send(session, std::string("cs_") + kBenchScreen);
  int next = 0;
  const auto event = [&] {
    const Point at = PlaceOfChain(next++ % kChains);
    session.Logic().MapMouseCoords(static_cast<std::int16_t>(at.x),
                                   static_cast<std::int16_t>(at.y));
  };
  table.Row("mouse event over 60 scripted objects", Time(kEvents, event), "us");
}

double PeakMegabytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

}  // namespace

void PrintBenchTable(const std::string& content, bool json) {
  Table table(json);
  table.Begin("start");
  std::unique_ptr<ContentRun> run;
  const double start = Time(1, [&] {
    run = std::make_unique<ContentRun>(content);
    Play(run->Session());
    DriveSession& session = run->Session();
    session.Deliver([&] { session.Logic().draw(); });
    RequireRunning(session);
  });
  table.Row("start to first frame", start / 1000, "ms");
  DriveSession& session = run->Session();
  TimeScreens(session, table);
  TimeFrames(session, table);
  TimeSavedGame(session, table);
  table.Row("peak memory", PeakMegabytes(), "MB");
  TimeEvents(table);
}

std::string ContentBesideTheProgram() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  const auto folder = program.parent_path();
  return error || !std::filesystem::is_directory(folder / "Info") ? "" : folder.string();
}

}  // namespace quendle
