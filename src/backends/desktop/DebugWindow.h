#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "backends/desktop/SdlEventTarget.h"
#include "backends/forms/TextPainter.h"

struct SDL_Window;

namespace quendle {

class TextSource;

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
  // Rows of the text, wrapped, and the first of them in view.
  const std::vector<std::string>& Rows() const { return rows_; }
  int FirstRow() const { return first_; }
  int RowsInView() const { return in_view_; }

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

  void ScrollBy(int rows);
  int LastFirstRow() const;
  void WrapText();
  void Paint();
  void PaintScrollMark(Canvas& canvas) const;

  TextPainter& text_;
  const TextSource& source_;
  std::unique_ptr<SDL_Window, DestroyWindow> window_;
  double scale_ = 1;
  bool dirty_ = true;
  std::uint64_t seen_ = 0;
  int wrapped_width_ = 0;
  std::vector<std::string> rows_;
  int first_ = 0;
  int in_view_ = 1;
};

}  // namespace quendle
