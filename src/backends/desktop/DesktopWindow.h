#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "backends/desktop/DesktopEventLoop.h"
#include "backends/desktop/FrameRenderer.h"
#include "backends/desktop/SdlInput.h"
#include "backends/forms/FormInput.h"
#include "backends/forms/FormPainter.h"
#include "backends/forms/FrameScaling.h"
#include "platform/GameWindow.h"

struct SDL_Window;

namespace quendle {

class RasterScreen;

struct WindowOptions {
  bool full_screen = true;  // covers the desktop; the monitor's mode is never changed
  ScaleMode scale = ScaleMode::kSharp;
};

// The game's window: shows the frame of the screen at any size, sends input to the game. A box can
// stand over the frame.
class DesktopWindow : public GameWindow, public SdlEventTarget {
 public:
  // Screen and painter outlive the window; `context` is the window's drawing context.
  DesktopWindow(WindowOptions options, RasterScreen& screen, ContextHandle context,
                FormPainter& painter);
  ~DesktopWindow() override;
  DesktopWindow(const DesktopWindow&) = delete;
  DesktopWindow& operator=(const DesktopWindow&) = delete;

  // Called by Show before the window opens.
  void BeforeShow(std::function<void()> action) { before_show_ = std::move(action); }
  bool IsOpen() const { return window_ != nullptr; }
  // Puts a form over the frame, or takes it away with a null one. `input` outlives its showing.
  void SetOverlay(FormInput* input);
  FormInput* Overlay() { return overlay_; }
  // Something that lies over the frame, below a form; the last one on top. It outlives the window.
  void AddLayer(FrameLayer& layer) { layers_.push_back(&layer); }
  std::string DrawingBackend() const;

  void Show(GameWindowEvents& events) override;
  int Handle() const override { return kHandle; }
  ContextHandle DrawingContext() override { return context_; }
  void SetCaption(const std::string& caption) override;
  std::optional<WindowProc> ReplaceWindowProc(WindowProc proc) override;
  void SendMessageA(unsigned message, std::intptr_t w, std::intptr_t l) override;
  void ShowPointer(bool visible) override;
  void Beep() override;
  Point ClientToScreen() override { return {0, 0}; }
  void Close() override;
  // The player wants the game to end; what that throws passes through.
  void CloseByPlayer();

  std::uint32_t WindowId() const override;
  void HandleInput(const SDL_Event& event) override;
  void HandleUpkeep(const SDL_Event& event) override;
  void Settle() override;
  void HandleQuit() override;

 private:
  static constexpr int kHandle = 1;
  struct DestroyWindow {
    void operator()(SDL_Window* window) const;
  };

  void Open();
  void OnPresented();
  void Upload();
  void Draw();
  bool UpdateLayers();
  bool SendToLayers(const SDL_Event& event);
  void ToggleFullScreen();
  void SendToGame(const SDL_Event& event);
  void Activate(bool active);
  void FollowPointer(Point at);
  Point FramePosition(int x, int y) const;
  Size WindowSize() const;
  double OverlayScale() const;
  FormPlace OverlayPlace() const;

  WindowOptions options_;
  RasterScreen& screen_;
  ContextHandle context_;
  FormPainter& painter_;
  std::function<void()> before_show_;
  WindowProc proc_;
  std::string caption_;

  // While the window is open.
  std::unique_ptr<SDL_Window, DestroyWindow> window_;
  std::unique_ptr<FrameRenderer> renderer_;
  GameWindowEvents* events_ = nullptr;

  FormInput* overlay_ = nullptr;
  bool overlay_dirty_ = false;
  bool stale_ = false;
  bool frame_is_new_ = false;
  std::uint64_t uploaded_version_ = 0;  // of the frame's pixels
  bool active_ = true;  // the game takes itself for active until it is told otherwise
  bool pointer_wanted_ = true;
  bool pointer_on_frame_ = true;
  std::optional<Point> pointer_;  // on the frame
  std::vector<FrameLayer*> layers_;
  bool layers_lost_ = true;
};

}  // namespace quendle
