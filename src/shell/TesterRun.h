#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "diagnostics/IntelliTesterObj.h"

namespace quendle {

class GameLogicLayer;
class SidecarWriter;
struct ObjectWorld;

// How the recorder of user actions is switched on.
struct TesterOptions {
  std::int16_t interval = 50;  // milliseconds between its ticks
  std::uint64_t seed = 1;      // of the random generator, at process start
  // Asked when a recording begins; may be empty.
  std::function<std::string()> content_hash;
};

// The recorder of one game run, with what is kept beside a session.
class TesterRun {
 public:
  // `world` must outlive this object.
  TesterRun(ObjectWorld& world, TesterOptions options);
  ~TesterRun();

  // Asks whether to record or to play, and starts it. The game is loaded and not on yet, so that
  // both begin with its first tick, however long the questions stand. `saved_game` is what was
  // loaded (name beside the executable).
  void Start(const std::shared_ptr<GameLogicLayer>& logic, const std::string& saved_game);

  // What comes from outside beside presses and moves; a session file doesn't hold it.
  void Key(int code);
  void Focus(bool on);
  void Close();

 private:
  ObjectWorld& world_;
  TesterOptions options_;
  TesterReference reference_;
  std::unique_ptr<SidecarWriter> sidecar_;    // from Start on
  std::shared_ptr<IntelliTesterObj> tester_;  // from Start on
};

}  // namespace quendle
