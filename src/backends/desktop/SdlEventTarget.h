#pragma once

#include <cstdint>

union SDL_Event;

namespace quendle {

// A window that takes the events of the media library. Called from the event loop only.
class SdlEventTarget {
 public:
  virtual ~SdlEventTarget() = default;
  // Number of the library's window; 0 while there is none.
  virtual std::uint32_t WindowId() const = 0;
  // A window beside the game takes its input while a box stands, too.
  virtual bool StandsBeside() const { return false; }
  // Input: keys, pointer, close. Withheld while a box stands over this window.
  virtual void HandleInput(const SDL_Event& event) = 0;
  // What a window needs at any time: exposure, size, focus, lost pictures.
  virtual void HandleUpkeep(const SDL_Event& event) = 0;
  // True while a file may be dropped on the window.
  virtual bool TakesDrops() const { return false; }
  // Between events: brings what is seen up to date.
  virtual void Settle() = 0;
  // The system wants the program to end, by a signal for instance.
  virtual void HandleQuit() = 0;
};

}  // namespace quendle
