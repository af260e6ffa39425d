#pragma once

#include <cstdint>
#include <memory>

#include "backends/desktop/SdlEventTarget.h"
#include "backends/forms/TextView.h"

struct SDL_Window;

namespace quendle {

// A window beside the game that shows a text as it changes. Wheel and keys scroll it, also while a
// box stands over the game; closing it ends nothing.
class DebugWindow : public SdlEventTarget {
 public:
  // Opens the window. Both must outlive it. Without a window (the display has none to give) nothing
  // is shown.
  DebugWindow(TextPainter& text, const TextSource& source);
  ~DebugWindow() override;
  DebugWindow(const DebugWindow&) = delete;
  DebugWindow& operator=(const DebugWindow&) = delete;

  bool IsOpen() const { return window_ != nullptr; }
  const TextView& View() const { return view_; }

  std::uint32_t WindowId() const override;
  bool StandsBeside() const override { return true; }
  void HandleInput(const SDL_Event& event) override;
  void HandleUpkeep(const SDL_Event& event) override;
  void Settle() override;
  void HandleQuit() override {}

 private:
  struct DestroyWindow {
    void operator()(SDL_Window* window) const;
  };

  void HandleKey(int code);

  TextView view_;
  std::unique_ptr<SDL_Window, DestroyWindow> window_;
  double scale_ = 1;
  bool dirty_ = true;
};

}  // namespace quendle
