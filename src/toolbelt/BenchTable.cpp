#include "toolbelt/BenchTable.h"

#include <sys/resource.h>

#include <chrono>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "backends/files/DiskFileSystem.h"
#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "toolbelt/BenchContent.h"
#include "toolbelt/Drive.h"
#include "toolbelt/TemporaryFolder.h"

namespace quendle {
namespace {

constexpr int kFrames = 1000;
constexpr int kEvents = 5000;
constexpr int kCachedChanges = 100;
constexpr int kSaves = 20;
constexpr int kChains = 60;
constexpr const char* kSavedGame = "userdata.txt";

// Wall time of one call, in microseconds.
double Time(int calls, const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < calls; ++i) work();
  const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
  return time.count() / calls;
}

void PrintRow(const std::string& what, double value, const char* unit) {
  std::cout << std::left << std::setw(52) << what << std::right << std::fixed
            << std::setprecision(2) << std::setw(12) << value << " " << unit << std::endl;
}

void RequireRunning(DriveSession& session) {
  if (!session.Running()) throw std::runtime_error(session.Game().Fault().text);
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
void TimeScreens(DriveSession& session) {
  std::vector<std::string> screens;
  session.Logic().Keeper()->EnumerateScreens(screens);
  double cold = 0;
  for (const std::string& screen : screens) {
    if (EqualsNoCase(screen, session.Logic().CurrentScreen()->ObjectName())) continue;
    cold += Time(1, [&] { Send(session, "cs_" + screen); });
  }
  if (screens.size() < 2) return;
  PrintRow("screen load, cold", cold / 1000 / static_cast<double>(screens.size() - 1), "ms");
  int turn = 0;
  const auto change = [&] { Send(session, "cs_" + screens[static_cast<std::size_t>(++turn % 2)]); };
  change();
  change();
  PrintRow("screen change, cached", Time(kCachedChanges, change) / 1000, "ms");
}

void TimeFrames(DriveSession& session) {
  GameLogicLayer& logic = session.Logic();
  PrintRow("composed frame, " + logic.CurrentScreen()->ObjectName(),
           Time(kFrames, [&] { logic.Compose(); }), "us");
}

void TimeSavedGame(DriveSession& session) {
  ScreenKeeper& keeper = *session.Logic().Keeper();
  PrintRow("saved game, written", Time(kSaves, [&] { keeper.SaveGame(kSavedGame); }) / 1000, "ms");
  const double read = Time(kSaves, [&] {
    ScreenKeeper fresh(session.World().objects);
    fresh.LoadGame(kSavedGame);
    if (fresh.Mementos().Empty()) throw std::runtime_error("the saved game can't be read back");
  });
  PrintRow("saved game, read", read / 1000, "ms");
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

void TimeEvents() {
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
  PrintRow("mouse event over 60 scripted objects", Time(kEvents, event), "us");
}

double PeakMegabytes() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

}  // namespace

void PrintBenchTable(const std::string& content) {
  const TemporaryFolder user;
  const std::string base = std::filesystem::canonical(content).string();
  Faults faults;
  std::unique_ptr<DiskFileSystem> files;
  std::unique_ptr<DriveSession> session;
  const double start = Time(1, [&] {
    files = std::make_unique<DiskFileSystem>(DiskFolders{base, user.Path(), ""}, faults);
    session = std::make_unique<DriveSession>(*files, faults, base, DriveOptions{});
    Play(*session);
    session->Deliver([&] { session->Logic().draw(); });
    RequireRunning(*session);
  });
  PrintRow("start to first frame", start / 1000, "ms");
  TimeScreens(*session);
  TimeFrames(*session);
  TimeSavedGame(*session);
  PrintRow("peak memory", PeakMegabytes(), "MB");
  TimeEvents();
}

}  // namespace quendle
