#include "toolbelt/play/RandomPlay.h"

#include <fstream>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "toolbelt/Progress.h"
#include "toolbelt/drive/Drive.h"
#include "toolbelt/play/ContentRun.h"
#include "toolbelt/play/Shortening.h"
#include "toolbelt/play/WildEvents.h"

namespace quendle {
namespace {

constexpr std::size_t kMostRuns = 600;  // of games, to shorten a list
using Lines = std::vector<std::string>;

bool Failed(DriveSession& session) {
  return session.Game().GetStatus() == Application::Status::kFailed;
}

// Up to where the events begin. False when the game failed by then.
bool Begin(ContentRun& run, const RandomSettings& settings) {
  return run.Play(settings.difficulty) && (settings.from.empty() || run.Enter(settings.from));
}

// The fault that events lead to in a new game; empty without one.
std::string FaultOf(const RandomSettings& settings, const Lines& events) {
  ContentRun run(settings.content, settings.options);
  DriveSession& session = run.Session();
  Begin(run, settings);
  for (const std::string& event : events) {
    if (!session.Running()) break;
    RunCommandLine(session, event);
  }
  return Failed(session) ? session.Game().Fault().text : "";
}

// The events of one game after another, until one fails or there are enough.
class WildRun {
 public:
  explicit WildRun(const RandomSettings& settings)
      : settings_(settings), wild_(settings.options.seed) {}

  // False when a game failed: Game() is that one and Events() led there.
  bool Play() {
    Progress progress(std::cerr, Progress::ErrorIsTerminal());
    while (done_ < settings_.events) {
      if (!BeginGame()) return false;
      DriveSession& session = game_->Session();
      while (session.Running() && done_ < settings_.events) {
        events_.push_back(wild_.Next(session));
        RunCommandLine(session, events_.back());
        progress.Step("event", static_cast<std::size_t>(++done_),
                      static_cast<std::size_t>(settings_.events));
        if (session.Running()) NoteScreen(session);
      }
      if (Failed(session)) return false;
    }
    return true;
  }

  ContentRun& Game() { return *game_; }
  const Lines& Events() const { return events_; }

  void TellRun(std::ostream& out) const {
    out << done_ << " events in " << games_ << (games_ == 1 ? " game, " : " games, ")
        << screens_.size() << (screens_.size() == 1 ? " screen:" : " screens:");
    for (const std::string& screen : screens_) out << " " << ToUtf8(screen);
    out << "\n";
  }

 private:
  bool BeginGame() {
    ++games_;
    events_.clear();
    game_ = std::make_unique<ContentRun>(settings_.content, settings_.options);
    if (!Begin(*game_, settings_)) return false;
    NoteScreen(game_->Session());
    return true;
  }
  void NoteScreen(DriveSession& session) {
    const ObjectRef& screen = session.Logic().CurrentScreen();
    if (screen != nullptr) screens_.insert(screen->ObjectName());
  }

  const RandomSettings& settings_;
  WildEvents wild_;
  std::unique_ptr<ContentRun> game_;
  Lines events_;  // of the game that is on
  std::set<std::string> screens_;
  long done_ = 0;
  int games_ = 0;
};

Lines Shorten(const RandomSettings& settings, const Lines& events, const std::string& fault) {
  Progress progress(std::cerr, Progress::ErrorIsTerminal());
  std::size_t runs = 0;
  return ShortenLines(
      events,
      [&](const Lines& some) {
        progress.Step("shortening, game", ++runs);
        return FaultOf(settings, some) == fault;
      },
      kMostRuns);
}

std::string Script(const RandomSettings& settings, const std::string& fault, const Lines& events) {
  const DriveOptions& options = settings.options;
  std::ostringstream script;
  // The first line is read by the runner of scenarios.
  script << "#: --edition " << options.edition << " --seed " << options.seed << " --path "
         << (options.window_path ? "window" : "directdraw") << "\n";
  std::istringstream lines(ToUtf8(fault));
  for (std::string line; std::getline(lines, line);) script << "# " << line << "\n";
  for (const std::string& line : CommandsToPlay(settings.difficulty)) script << line << "\n";
  if (!settings.from.empty()) script << "send cs_" << ToUtf8(settings.from) << "\n";
  for (const std::string& event : events) script << event << "\n";
  return script.str();
}

void Save(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file) throw std::runtime_error(path + ": can't be written");
}

}  // namespace

int PlayRandomly(const RandomSettings& settings, std::ostream& out, std::ostream& errors) {
  WildRun run(settings);
  const bool well = run.Play();
  run.TellRun(out);
  out.flush();
  if (well) return 0;
  const int exit_code = run.Game().TellFault(errors);
  const std::string fault = run.Game().Session().Game().Fault().text;
  const Lines events = Shorten(settings, run.Events(), fault);
  const std::string script = Script(settings, fault, events);
  out << "# " << events.size() << " of " << run.Events().size() << " events still show it:\n"
      << script;
  if (!settings.output.empty()) Save(settings.output, script);
  return exit_code;
}

}  // namespace quendle
