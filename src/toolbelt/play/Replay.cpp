#include "toolbelt/play/Replay.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <vector>

#include "backends/files/ContentHash.h"
#include "backends/files/DiskFileSystem.h"
#include "base/Text.h"
#include "base/TextStream.h"
#include "diagnostics/Sidecar.h"
#include "diagnostics/UserActionObj.h"
#include "toolbelt/Progress.h"
#include "toolbelt/TemporaryFolder.h"
#include "toolbelt/drive/Drive.h"

namespace quendle {
namespace {

namespace fs = std::filesystem;

constexpr int kDifferent = 1;
constexpr int kGameFailed = 3;
constexpr long kStep = 1000;  // milliseconds between two steps of the progress
constexpr const char* kSessionName = "session.txt";

std::string ReadBytes(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw std::runtime_error(path.string() + ": can't be read");
  return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteLines(const fs::path& path, const std::vector<std::string>& lines) {
  std::ofstream stream(path, std::ios::binary);
  for (const std::string& line : lines) stream << line << "\r\n";
  if (!stream.flush()) throw std::runtime_error(path.string() + ": can't be written");
}

fs::path SidecarOf(const fs::path& session) {
  return session.parent_path() / SidecarNameOf(session.filename().string());
}

Sidecar ReadSidecarFile(const fs::path& path) {
  TextReader stream(ReadBytes(path), path.string());
  return ReadSidecar(stream);
}

std::vector<UserActionObj> ReadSession(const fs::path& path) {
  TextReader stream(ReadBytes(path), path.string());
  std::vector<UserActionObj> actions;
  while (!stream.AtEndOfStream()) actions.emplace_back().Load(stream);
  return actions;
}

// Something to do at a moment.
struct Event {
  SidecarMoment moment;
  UserActionObj action;  // of an action
};

// The moments with their actions. An action whose moment isn't told comes at its ticks after the
// one before, as the recorder itself would play it; told moments beyond the last action are left
// out.
std::vector<Event> EventsOf(const Sidecar& sidecar, const std::vector<UserActionObj>& actions) {
  std::vector<Event> events;
  std::size_t next = 0;
  long last = 0;
  for (const SidecarMoment& moment : sidecar.moments) {
    const bool is_action = moment.kind == SidecarMoment::Kind::kAction;
    if (is_action && next == actions.size()) continue;
    events.push_back({moment, is_action ? actions[next++] : UserActionObj()});
    if (is_action) last = moment.time;
  }
  for (; next < actions.size(); ++next) {
    last += long{actions[next].Ticks()} * sidecar.conditions.interval;
    events.push_back({{last, SidecarMoment::Kind::kAction, 0}, actions[next]});
  }
  return events;
}

// The files of the player's own with which the session began.
void PutPlayerFiles(const fs::path& folder, const SidecarConditions& conditions) {
  WriteLines(folder / "DialogMode.txt", {"On"});
  WriteLines(folder / "GameMode.txt", {conditions.safe_mode ? "Safe" : "Normal"});
  WriteLines(folder / "DifficultyLevel.txt", {conditions.difficulty});
  WriteLines(folder / "personalize.txt", {conditions.personalize ? "On" : "Off"});
  WriteLines(folder / "GraphicsMode.txt", {conditions.depth == 16 ? "16" : "32"});
  for (const SidecarFile& file : conditions.files) {
    std::vector<std::string> lines;
    for (const std::string& line : file.lines) {
      std::optional<std::string> text = FromUtf8(line);
      if (!text) throw std::runtime_error(file.name + ": \"" + line + "\" is not 8-bit text");
      lines.push_back(std::move(*text));
    }
    WriteLines(folder / fs::path(file.name).filename(), lines);
  }
}

DriveOptions OptionsOf(const SidecarConditions& conditions, const std::string& content) {
  DriveOptions options;
  options.edition = static_cast<std::int16_t>(conditions.edition == 1 ? 1 : 2);
  options.seed = conditions.seed;
  options.window_path = !conditions.direct_draw;
  options.tester = static_cast<std::int16_t>(conditions.interval);
  options.content_hash = [content] { return HashOfContent(content); };
  return options;
}

// The session on its way through the game, recorded anew.
class ReplayedGame {
 public:
  ReplayedGame(const std::string& content, const fs::path& folder,
               const SidecarConditions& conditions)
      : files_({content, folder.string(), ""}, faults_),
        session_(files_, faults_, content, OptionsOf(conditions, content)) {
    if (!conditions.sound) faults_.Plan("CreateGraph", 0, 0, false);
    session_.Platform().clock.SetTimeOfDay(static_cast<double>(conditions.clock) / 1000);
    // The warning that the first drawing path fails is answered before the recorder's questions.
    if (!conditions.direct_draw) session_.Platform().boxes.QueueAnswer("ok");
    session_.Platform().boxes.QueueAnswer("record");
    session_.Platform().boxes.QueueAnswer(kSessionName);
    RunCommandLine(session_, "play");
    start_ = Now();
  }

  bool Running() const { return session_.Running(); }
  Application& Game() { return session_.Game(); }

  // Lets time pass up to a moment of the session.
  void Reach(long time, Progress& progress, long end) {
    while (Running() && Now() - start_ < time) {
      const long step = std::min(kStep, time - (Now() - start_));
      session_.Platform().Tick(Milliseconds(step), [this](const std::function<void()>& work) {
        return session_.Deliver(work);
      });
      progress.Step("second", static_cast<std::size_t>((Now() - start_) / kStep),
                    static_cast<std::size_t>(end / kStep));
    }
  }

  void Happen(const Event& event) {
    session_.Deliver([&] { Send(event); });
  }

 private:
  long Now() { return session_.Platform().clock.Monotonic().count(); }

  void Send(const Event& event) {
    HeadlessWindow& window = session_.Platform().window;
    switch (event.moment.kind) {
      case SidecarMoment::Kind::kKey:
        window.Key(event.moment.value);
        break;
      case SidecarMoment::Kind::kFocus:
        window.Focus(event.moment.value != 0);
        break;
      case SidecarMoment::Kind::kClose:
        window.CloseByPlayer();
        break;
      case SidecarMoment::Kind::kAction:
        if (EqualsNoCase(event.action.ActionType(), "mouseclick")) {
          window.Click(event.action.X(), event.action.Y());
        } else {
          window.Move(event.action.X(), event.action.Y());
        }
        break;
    }
  }

  Faults faults_;
  DiskFileSystem files_;
  DriveSession session_;
  long start_ = 0;
};

// Plays the whole session; the fault that ended it, if any.
std::optional<FaultReport> Play(ReplayedGame& game, const Sidecar& sidecar,
                                const std::vector<Event>& events) {
  Progress progress(std::cerr, Progress::ErrorIsTerminal());
  const long end = std::max(sidecar.last_time, events.empty() ? 0 : events.back().moment.time);
  for (const Event& event : events) {
    game.Reach(event.moment.time, progress, end);
    if (!game.Running()) break;
    game.Happen(event);
  }
  game.Reach(end, progress, end);
  if (game.Game().GetStatus() != Application::Status::kFailed) return std::nullopt;
  return game.Game().Fault();
}

void TellNotes(const Sidecar& expected, const Sidecar& found) {
  if (expected.conditions.content != found.conditions.content) {
    std::cerr << "note: the content is not the one of the recording\n";
  }
  if (expected.conditions.version != found.conditions.version) {
    std::cerr << "note: recorded with version " << expected.conditions.version << "\n";
  }
}

void TellFault(std::ostream& out, const FaultReport& fault) {
  out << "the game ended fatally: " << ToUtf8(FatalError(fault.text, fault.place).what());
  if (!fault.object.empty()) out << " (object " << ToUtf8(fault.object) << ")";
  out << "\n";
}

}  // namespace

int RunReplay(const ReplaySettings& settings, std::ostream& out) {
  const fs::path session = settings.session;
  const fs::path sidecar_path = SidecarOf(session);
  const std::vector<UserActionObj> actions = ReadSession(session);
  Sidecar expected;
  if (!settings.update || fs::exists(sidecar_path)) expected = ReadSidecarFile(sidecar_path);
  const TemporaryFolder folder;
  PutPlayerFiles(folder.Path(), expected.conditions);
  std::optional<FaultReport> fault;
  {
    ReplayedGame game(fs::canonical(settings.content).string(), folder.Path(), expected.conditions);
    fault = Play(game, expected, EventsOf(expected, actions));
  }
  if (fault && !fs::exists(fs::path(folder.Path()) / SidecarNameOf(kSessionName))) {
    TellFault(out, *fault);
    return kGameFailed;
  }
  const fs::path anew = fs::path(folder.Path()) / SidecarNameOf(kSessionName);
  const Sidecar found = ReadSidecarFile(anew);
  if (settings.update && !fault) {
    fs::copy_file(anew, sidecar_path, fs::copy_options::overwrite_existing);
    out << sidecar_path.string() << ": written\n";
    return 0;
  }
  TellNotes(expected, found);
  const std::optional<SidecarDifference> difference = FirstDifference(expected, found);
  if (difference) out << DescribeDifference(*difference) << "\n";
  if (fault) {
    TellFault(out, *fault);
    return kGameFailed;
  }
  if (difference) return kDifferent;
  out << "the same: " << expected.states.size() << " states of " << expected.last_time / kStep
      << " seconds\n";
  return 0;
}

}  // namespace quendle
