#include "backends/desktop/DebugWindow.h"

#include <SDL.h>

#include <algorithm>

#include "backends/desktop/WindowPixels.h"
#include "base/Text.h"
#include "platform/TextSource.h"

namespace quendle {
namespace {

constexpr int kWidth = 620;
constexpr int kHeight = 420;
constexpr int kStepHeight = 680;  // of the display, from which on letters grow by a step
constexpr int kWheelRows = 3;

}  // namespace

void DebugWindow::DestroyWindow::operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }

DebugWindow::DebugWindow(TextPainter& text, const TextSource& source) : view_(text, source) {
  SDL_Rect display{0, 0, 1024, 768};
  SDL_GetDisplayUsableBounds(0, &display);
  scale_ = std::max(1, display.h / kStepHeight);
  const int width = std::min(static_cast<int>(kWidth * scale_), display.w);
  const int height = std::min(static_cast<int>(kHeight * scale_), display.h);
  // In a corner, so that it hides little of the game in the middle.
  window_.reset(SDL_CreateWindow(ToUtf8(source.Caption()).c_str(), display.x, display.y, width,
                                 height, SDL_WINDOW_RESIZABLE));
  if (window_ == nullptr) return;
  SDL_SetWindowMinimumSize(window_.get(), 200, 100);
  SetIcon(window_.get());
}

DebugWindow::~DebugWindow() = default;

std::uint32_t DebugWindow::WindowId() const {
  return window_ == nullptr ? 0 : SDL_GetWindowID(window_.get());
}

void DebugWindow::HandleInput(const SDL_Event& event) {
  if (window_ == nullptr) return;
  if (event.type == SDL_WINDOWEVENT && event.window.event == SDL_WINDOWEVENT_CLOSE) {
    window_.reset();
  } else if (event.type == SDL_MOUSEWHEEL) {
    view_.ScrollBy(-kWheelRows * event.wheel.y);
  } else if (event.type == SDL_KEYDOWN) {
    HandleKey(event.key.keysym.sym);
  }
}

void DebugWindow::HandleKey(int code) {
  switch (code) {
    case SDLK_UP:
      view_.ScrollBy(-1);
      break;
    case SDLK_DOWN:
      view_.ScrollBy(1);
      break;
    case SDLK_PAGEUP:
      view_.ScrollPages(-1);
      break;
    case SDLK_PAGEDOWN:
      view_.ScrollPages(1);
      break;
    case SDLK_HOME:
      view_.ScrollToStart();
      break;
    case SDLK_END:
      view_.ScrollToEnd();
      break;
    default:
      break;
  }
}

void DebugWindow::HandleUpkeep(const SDL_Event& event) {
  if (event.type == SDL_WINDOWEVENT) dirty_ = true;
}

void DebugWindow::Settle() {
  if (window_ == nullptr || !(dirty_ || view_.IsStale())) return;
  dirty_ = false;
  Size size;
  SDL_GetWindowSize(window_.get(), &size.width, &size.height);
  ShowInWindow(window_.get(), view_.Paint(size, scale_));
}

}  // namespace quendle
