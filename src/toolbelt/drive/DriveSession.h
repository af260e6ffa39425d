#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "backends/headless/HeadlessBackend.h"
#include "object/ObjectWorld.h"
#include "shell/Application.h"
#include "toolbelt/drive/TraceLog.h"

namespace quendle {

class GameLogicLayer;
class RasterBitmap;

// What a session is started with.
struct DriveOptions {
  std::int16_t edition = 2;
  std::uint64_t seed = 1;
  bool forgiving = false;    // as for a family at home
  bool window_path = false;  // the first drawing path fails at start-up
  bool other_instance = false;
  std::optional<int> system_version;
  std::optional<std::int16_t> tester;  // interval of the recorder in milliseconds; none: it is off
  std::function<std::string()> content_hash;  // for a recording; may be empty
};

// One game that is played by commands: the platform in virtual time and the application on it.
class DriveSession {
 public:
  // `files` and `faults` outlive the session; `base_directory` is the content tree in `files`.
  DriveSession(FileSystem& files, Faults& faults, const std::string& base_directory,
               const DriveOptions& options);

  HeadlessBackend& Platform() { return platform_; }
  Application& Game() { return game_; }
  TraceLog& Trace() { return trace_; }

  bool Started() const { return started_; }
  bool Running() const { return game_.GetStatus() == Application::Status::kRunning; }

  // Process start, up to the waiting form.
  void Start();
  // Runs work in the game's outermost frame; false when the run is over.
  bool Deliver(const std::function<void()>& work);

  // The worlds of the running game; a session without one refuses the command.
  Globals& World();
  GameLogicLayer& Logic();

  // Paints the frame without counting it as a draw; null when the run ended over it.
  std::shared_ptr<const RasterBitmap> ComposeFrame();

  // The end of the session was asked for.
  bool Quit() const { return quit_; }
  void AskToQuit() { quit_ = true; }

 private:
  HeadlessBackend platform_;
  TraceLog trace_;
  Application game_;
  bool started_ = false;
  bool quit_ = false;
};

}  // namespace quendle
