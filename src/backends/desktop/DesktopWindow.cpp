#include "backends/desktop/DesktopWindow.h"

#include <SDL.h>

#include <algorithm>
#include <utility>

#include "backends/desktop/WindowPixels.h"
#include "backends/raster/RasterScreen.h"
#include "base/FatalError.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr int kSmallestWidth = 320;
constexpr int kSmallestHeight = 240;
constexpr double kLargestPart = 0.9;  // of the display, for the first window

// The largest whole multiple of the frame that leaves room on the display, else what fits.
Size FirstSize() {
  SDL_Rect display{0, 0, kFrameWidth, kFrameHeight};
  SDL_GetDisplayUsableBounds(0, &display);
  auto width = static_cast<int>(display.w * kLargestPart);
  auto height = static_cast<int>(display.h * kLargestPart);
  int factor = std::min(width / kFrameWidth, height / kFrameHeight);
  if (factor > 0) return {kFrameWidth * factor, kFrameHeight * factor};
  Rect area = FrameArea({width, height}, ScaleMode::kSharp);
  return {area.Width(), area.Height()};
}

// The desktop's own mode is kept: switching the monitor's would harm what else stands there.
Uint32 FullScreenFlag(bool full_screen) {
  if (!full_screen) return 0;
  return SDL_WINDOW_FULLSCREEN_DESKTOP;
}

bool IsAltEnter(const SDL_Event& event) {
  return event.type == SDL_KEYDOWN && event.key.repeat == 0 &&
         (event.key.keysym.sym == SDLK_RETURN || event.key.keysym.sym == SDLK_KP_ENTER) &&
         (event.key.keysym.mod & KMOD_ALT) != 0;
}

}  // namespace

void DesktopWindow::DestroyWindow::operator()(SDL_Window* window) const {
  SDL_DestroyWindow(window);
}

DesktopWindow::DesktopWindow(WindowOptions options, RasterScreen& screen, ContextHandle context,
                             FormPainter& painter)
    : options_(options),
      screen_(screen),
      context_(context),
      painter_(painter),
      proc_([](int, unsigned, std::intptr_t, std::intptr_t) -> std::intptr_t { return 0; }) {
  screen_.OnPresent([this] { OnPresented(); });
}

DesktopWindow::~DesktopWindow() {
  screen_.OnPresent({});
  Close();
}

void DesktopWindow::Show(GameWindowEvents& events) {
  if (before_show_) before_show_();
  Open();
  events_ = &events;
  events.Load();
}

void DesktopWindow::Open() {
  Size size = FirstSize();
  Uint32 flags =
      SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI | FullScreenFlag(options_.full_screen);
  window_.reset(SDL_CreateWindow(ToUtf8(caption_).c_str(), SDL_WINDOWPOS_CENTERED,
                                 SDL_WINDOWPOS_CENTERED, size.width, size.height, flags));
  if (window_ == nullptr) {
    throw FatalError(std::string("the game's window can't be opened: ") + SDL_GetError());
  }
  SDL_SetWindowMinimumSize(window_.get(), kSmallestWidth, kSmallestHeight);
  SetIcon(window_.get());
  renderer_ = std::make_unique<FrameRenderer>(window_.get());
  layers_lost_ = true;
  Upload();
  Draw();
  SDL_RaiseWindow(window_.get());
}

void DesktopWindow::Close() {
  events_ = nullptr;
  overlay_ = nullptr;
  renderer_.reset();
  window_.reset();
  if (SDL_WasInit(SDL_INIT_VIDEO) != 0) SDL_ShowCursor(SDL_ENABLE);
}

void DesktopWindow::CloseByPlayer() {
  if (events_ != nullptr) events_->Unload();
}

void DesktopWindow::SetCaption(const std::string& caption) {
  caption_ = caption;
  if (window_ != nullptr) SDL_SetWindowTitle(window_.get(), ToUtf8(caption).c_str());
}

std::optional<WindowProc> DesktopWindow::ReplaceWindowProc(WindowProc proc) {
  return std::exchange(proc_, std::move(proc));
}

void DesktopWindow::SendMessageA(unsigned message, std::intptr_t w, std::intptr_t l) {
  if (message == kActivateAppMessage) active_ = w != 0;
  // From a copy: the procedure may put the one before it back.
  WindowProc proc = proc_;
  if (proc) proc(kHandle, message, w, l);
}

void DesktopWindow::ShowPointer(bool visible) {
  pointer_wanted_ = visible;
  FollowPointer({-1, -1});
}

// The backend opens no sound device for a beep: the window asks for attention instead.
void DesktopWindow::Beep() {
  if (window_ != nullptr) SDL_FlashWindow(window_.get(), SDL_FLASH_BRIEFLY);
}

std::string DesktopWindow::DrawingBackend() const {
  return renderer_ == nullptr ? "none" : renderer_->Name();
}

std::uint32_t DesktopWindow::WindowId() const {
  return window_ == nullptr ? 0 : SDL_GetWindowID(window_.get());
}

void DesktopWindow::SetOverlay(FormInput* input) {
  overlay_ = input;
  overlay_dirty_ = true;
  stale_ = true;
  if (overlay_ != nullptr) overlay_->Reset();
  FollowPointer({-1, -1});
}

// A frame is shown at once, in the middle of the tick that composed it; one with the same pixels
// as the last costs nothing.
void DesktopWindow::OnPresented() {
  if (screen_.Bitmap()->Version() != uploaded_version_) frame_is_new_ = true;
  if (renderer_ == nullptr) return;
  const bool layers_are_new = UpdateLayers();
  if (frame_is_new_ || layers_are_new) Draw();
}

void DesktopWindow::Upload() {
  renderer_->Upload(screen_.Frame());
  uploaded_version_ = screen_.Bitmap()->Version();
  frame_is_new_ = false;
}

void DesktopWindow::Draw() {
  if (frame_is_new_) Upload();
  if (overlay_dirty_) {
    overlay_dirty_ = false;
    if (overlay_ == nullptr) {
      renderer_->SetOverlay(nullptr);
    } else {
      Canvas picture = painter_.Paint(overlay_->Record(), OverlayScale(), overlay_->Look());
      renderer_->SetOverlay(&picture);
    }
  }
  UpdateLayers();
  stale_ = false;
  renderer_->Draw(options_.scale);
}

// True when a layer looks other than before.
bool DesktopWindow::UpdateLayers() {
  if (layers_.empty()) return false;
  bool changed = false;
  const Size output = renderer_->OutputSize();
  const LayerView view{output, FrameArea(output, options_.scale), pointer_};
  for (std::size_t slot = 0; slot < layers_.size(); ++slot) {
    if (const LayerContents* contents = layers_[slot]->Update(view, layers_lost_)) {
      renderer_->SetLayer(slot, *contents);
      changed = true;
    }
  }
  layers_lost_ = false;
  return changed;
}

// True when the event was for a layer and not for the game.
bool DesktopWindow::SendToLayers(const SDL_Event& event) {
  auto takes = [&event](FrameLayer* layer) {
    if (event.type == SDL_MOUSEWHEEL) return layer->TakeWheel(event.wheel.y);
    if (event.type != SDL_KEYDOWN || event.key.repeat != 0) return false;
    const std::optional<FunctionKey> key = FunctionKeyOf(event.key.keysym);
    return key && layer->TakeKey(*key);
  };
  if (!std::any_of(layers_.begin(), layers_.end(), takes)) return false;
  stale_ = true;
  return true;
}

void DesktopWindow::Settle() {
  if (renderer_ != nullptr && (stale_ || overlay_dirty_)) Draw();
}

void DesktopWindow::HandleInput(const SDL_Event& event) {
  if (window_ == nullptr) return;
  if (IsAltEnter(event)) {
    ToggleFullScreen();
    return;
  }
  if (event.type == SDL_MOUSEMOTION) FollowPointer({event.motion.x, event.motion.y});
  if (overlay_ != nullptr) {
    overlay_dirty_ = true;
    SendToForm(event, *overlay_, OverlayPlace());
    return;
  }
  if (events_ != nullptr && !SendToLayers(event)) SendToGame(event);
}

void DesktopWindow::SendToGame(const SDL_Event& event) {
  if (event.type == SDL_MOUSEMOTION) {
    Point at = FramePosition(event.motion.x, event.motion.y);
    events_->MouseMove(ButtonBits(event.motion.state), ShiftBits(), at.x, at.y);
  } else if (event.type == SDL_MOUSEBUTTONDOWN) {
    Activate(true);  // the game may have paused itself while its window kept the focus
    Point at = FramePosition(event.button.x, event.button.y);
    int button = ButtonNumber(event.button.button);
    if (button != 0) events_->MouseDown(button, ShiftBits(), at.x, at.y);
  } else if (event.type == SDL_KEYDOWN) {
    // Character codes; Esc is 27 here too.
    SDL_Keycode code = event.key.keysym.sym;
    if (code > 0 && code < 128 && event.key.repeat == 0) events_->KeyPress(code);
  } else if (event.type == SDL_WINDOWEVENT && event.window.event == SDL_WINDOWEVENT_CLOSE) {
    events_->Unload();
  }
}

void DesktopWindow::HandleUpkeep(const SDL_Event& event) {
  if (renderer_ == nullptr) return;
  stale_ = true;
  if (event.type == SDL_RENDER_DEVICE_RESET) {
    renderer_->MakePicturesAnew();
    overlay_dirty_ = true;
    layers_lost_ = true;
  }
  if (event.type == SDL_RENDER_TARGETS_RESET || event.type == SDL_RENDER_DEVICE_RESET) {
    frame_is_new_ = true;
    return;
  }
  switch (event.window.event) {
    case SDL_WINDOWEVENT_FOCUS_GAINED:
      Activate(true);
      break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
    case SDL_WINDOWEVENT_MINIMIZED:
      Activate(false);
      break;
    case SDL_WINDOWEVENT_SIZE_CHANGED:
      overlay_dirty_ = true;
      break;
    default:
      break;
  }
}

void DesktopWindow::HandleQuit() {
  if (window_ == nullptr) return;
  if (overlay_ != nullptr) {
    overlay_->EndProgram();
  } else if (events_ != nullptr) {
    events_->Unload();
  }
}

void DesktopWindow::ToggleFullScreen() {
  options_.full_screen = !options_.full_screen;
  SDL_SetWindowFullscreen(window_.get(), FullScreenFlag(options_.full_screen));
  overlay_dirty_ = overlay_ != nullptr;
  stale_ = true;
}

void DesktopWindow::Activate(bool active) {
  if (active == active_) return;
  SendMessageA(kActivateAppMessage, active ? 1 : 0, 0);
}

// The game draws its own pointer; the system's is for boxes and for the borders of the frame.
// `at` is the pointer's place in the window; a negative one leaves it where it was.
void DesktopWindow::FollowPointer(Point at) {
  if (window_ == nullptr) return;
  if (at.x >= 0) {
    pointer_on_frame_ = IsOverFrame(at, WindowSize(), renderer_->OutputSize(), options_.scale);
    pointer_.reset();
    if (pointer_on_frame_) pointer_ = FramePosition(at.x, at.y);
  }
  bool seen = pointer_wanted_ || overlay_ != nullptr || !pointer_on_frame_;
  SDL_ShowCursor(seen ? SDL_ENABLE : SDL_DISABLE);
}

Point DesktopWindow::FramePosition(int x, int y) const {
  return FramePoint({x, y}, WindowSize(), renderer_->OutputSize(), options_.scale);
}

Size DesktopWindow::WindowSize() const {
  Size size;
  SDL_GetWindowSize(window_.get(), &size.width, &size.height);
  return size;
}

double DesktopWindow::OverlayScale() const {
  const Size output = renderer_->OutputSize();
  return ScaleOverFrame(overlay_->Record().size, output, FrameArea(output, options_.scale));
}

FormPlace DesktopWindow::OverlayPlace() const {
  const Size output = renderer_->OutputSize();
  return PlaceOverFrame(overlay_->Record().size, output, FrameArea(output, options_.scale),
                        WindowSize());
}

}  // namespace quendle
