#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/ContentFiles.h"
#include "base/FatalError.h"
#include "base/Settings.h"
#include "platform/Ports.h"
#include "shell/GameStarter.h"
#include "shell/Globals.h"
#include "shell/SpokenCaptions.h"
#include "shell/TesterRun.h"

namespace quendle {

class Quendle_Game_Screen;
class TandrelPrompt;

// A fault that ended the run, with all that is known of its place.
struct FaultReport {
  std::string text;      // what went wrong and what was expected
  FilePlace place;       // content file and line, if known
  std::string object;    // "SCREEN/child/...", if known
  std::string message;   // message or script line in work, if any
  std::string box_text;  // what was shown
};

// One process: the start-up form, then at most one game run.
//
// Backends call into the engine through Deliver only. It is the one frame that catches ProcessEnds
// and FatalError: the first runs ShutDownGame on an empty stack when a game is on, the second shows
// one box, logs the fault and gives the display back, without saving.
class Application : private GameStarter {
 public:
  enum class Status { kRunning, kEnded, kFailed };

  // `edition` is 2 for the product and 1 for its sibling; `base_directory` is the content tree.
  Application(Ports& ports, std::int16_t edition, std::string base_directory);
  ~Application() override;

  // Runs `work` (an event, a due tick, a form event) as the outermost frame. Work that arrives
  // after the end is dropped. Called inside other work, from the message loop of a box, it lets
  // ProcessEnds and FatalError through to the outermost frame.
  Status Deliver(const std::function<void()>& work);

  // Process start: up to the waiting start-up form or the question before it.
  Status Start();

  Status GetStatus() const { return status_; }
  // Valid after kFailed.
  const FaultReport& Fault() const { return fault_; }

  Settings& GetSettings() { return settings_; }
  const ContentFiles& Content() const { return content_; }
  TandrelPrompt& Prompt() { return *prompt_; }
  // The worlds of the game run; null before Play.
  Globals* Game() { return globals_.get(); }
  // Switches the recorder of user actions on; before Play.
  void SetTester(TesterOptions options) { tester_ = std::move(options); }
  // What a family at home is spared, before Play: the last three good saves are kept, and one of
  // them takes the place of a saved game that can't be read; a disk that takes nothing doesn't get
  // the event log either. Without it these are faults.
  void SetForgiving(bool on) { forgiving_ = on; }
  // Told to the game when it starts; may be null.
  void SetTracer(Tracer* tracer);
  void SetBlitWatcher(BlitWatcher* watcher);
  // Shows the event log of the game beside its file; told to the game when it starts. May be null.
  void SetDebugWindow(Debomb_Window* window);
  // What is said; nothing before Play.
  CaptionSource& Captions() { return captions_; }

 private:
  void OpenGameWindow() override;
  void EndGameInOrder();
  void ReportFault(const FatalError& error);
  void GiveDisplayBack();

  Ports& ports_;
  Settings settings_;
  ContentFiles content_;
  std::unique_ptr<TandrelPrompt> prompt_;
  std::unique_ptr<Globals> globals_;
  SpokenCaptions captions_{globals_};
  std::unique_ptr<Quendle_Game_Screen> screen_;
  std::optional<TesterOptions> tester_;
  Tracer* tracer_ = nullptr;
  BlitWatcher* blit_watcher_ = nullptr;
  Debomb_Window* debug_window_ = nullptr;
  Status status_ = Status::kRunning;
  bool forgiving_ = false;
  bool delivering_ = false;  // an outermost frame is on the stack
  FaultReport fault_;
};

}  // namespace quendle
