#pragma once

#include <string>

namespace quendle {

// Something that keeps what the player does. The game knows it only by this.
class InputRecorder {
 public:
  virtual ~InputRecorder() = default;
  // A press or a move, before the game acts on it: "mouseclick_X_Y" or "mousemove_X_Y".
  virtual void RecordUserAction(const std::string& message) = 0;
  // The game ends: nothing of it may be used from now on.
  virtual void Detach() = 0;
};

}  // namespace quendle
