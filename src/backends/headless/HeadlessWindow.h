#pragma once

#include "platform/Faults.h"
#include "platform/GameWindow.h"

namespace quendle {

class RasterGdi;
class RasterScreen;

enum class MouseButton { kLeft = 1, kRight = 2, kMiddle = 4 };

// The game window without a display: what is copied to its context is the raster screen, and its
// events come from a script or a test. "ReplaceWindowProc" can be planned to fail.
//
// The player's events give false, and do nothing, while the window isn't open. What the game
// throws passes through.
class HeadlessWindow : public GameWindow {
 public:
  // All must outlive the window.
  HeadlessWindow(RasterGdi& gdi, RasterScreen& screen, Faults& faults);

  void Show(GameWindowEvents& events) override;
  int Handle() const override { return kHandle; }
  ContextHandle DrawingContext() override;
  void SetCaption(const std::string& caption) override { caption_ = caption; }
  std::optional<WindowProc> ReplaceWindowProc(WindowProc proc) override;
  void SendMessageA(unsigned message, std::intptr_t w, std::intptr_t l) override;
  void ShowPointer(bool visible) override { pointer_visible_ = visible; }
  void Beep() override { ++beeps_; }
  Point ClientToScreen() override;
  void Close() override;

  bool IsOpen() const { return events_ != nullptr; }
  const std::string& Caption() const { return caption_; }
  bool PointerVisible() const { return pointer_visible_; }
  long Beeps() const { return beeps_; }

  // The player's side; x, y are pixels of the frame, with fractions.
  bool Click(double x, double y, MouseButton button = MouseButton::kLeft);
  bool Move(double x, double y);
  bool Key(int code);
  // The application gains or loses the focus.
  bool Focus(bool on);
  // The window system asks the window to close.
  bool CloseByPlayer();

 private:
  static constexpr int kHandle = 1;

  RasterGdi& gdi_;
  RasterScreen& screen_;
  Faults& faults_;
  GameWindowEvents* events_ = nullptr;
  WindowProc proc_;
  std::string caption_;
  bool pointer_visible_ = true;
  long beeps_ = 0;
};

}  // namespace quendle
