#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/Gdi.h"
#include "platform/Geometry.h"

namespace quendle {

// Handlers of the game window's events. x, y are pixels of the 800 by 600 frame, with fractions.
class GameWindowEvents {
 public:
  virtual ~GameWindowEvents() = default;
  virtual void Load() = 0;
  virtual void Unload() = 0;
  virtual void KeyPress(int code) = 0;
  virtual void MouseDown(int button, int shift, double x, double y) = 0;
  virtual void MouseMove(int button, int shift, double x, double y) = 0;
};

// Number of the notice that the application gains (wParam not 0) or loses the focus.
inline constexpr unsigned kActivateAppMessage = 28;

using WindowProc =
    std::function<std::intptr_t(int window, unsigned message, std::intptr_t w, std::intptr_t l)>;

// The one window that the game is played in.
class GameWindow {
 public:
  virtual ~GameWindow() = default;
  // Creates the window, then calls `events.Load()`. Events arrive until Close.
  virtual void Show(GameWindowEvents& events) = 0;
  virtual int Handle() const = 0;
  // The window's drawing context; what is copied there is seen.
  virtual ContextHandle DrawingContext() = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  // Puts `proc` in front of the window procedure; gives the one before, or nothing when the
  // platform refuses.
  virtual std::optional<WindowProc> ReplaceWindowProc(WindowProc proc) = 0;
  // Sends a window message through the current window procedure.
  virtual void SendMessageA(unsigned message, std::intptr_t w, std::intptr_t l) = 0;
  virtual void ShowPointer(bool visible) = 0;
  virtual void Beep() = 0;
  // Top left corner of the client area on the screen.
  virtual Point ClientToScreen() = 0;
  virtual void Close() = 0;
};

}  // namespace quendle
