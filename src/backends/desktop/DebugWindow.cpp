#include "backends/desktop/DebugWindow.h"

#include <SDL.h>

#include <algorithm>
#include <cmath>

#include "backends/desktop/SdlInput.h"
#include "base/Text.h"
#include "platform/TextSource.h"

namespace quendle {
namespace {

constexpr int kWidth = 620;
constexpr int kHeight = 420;
constexpr int kStepHeight = 680;  // of the display, from which on letters grow by a step
constexpr double kLetters = 13;
constexpr double kSide = 8;  // between the text and the edges
constexpr double kMark = 8;  // width of the scroll mark
constexpr int kWheelRows = 3;

constexpr Rgba kPaper = Hex(0xFFFFFF);
constexpr Rgba kGroove = Hex(0xE4E7EB);
constexpr Rgba kMarkColor = Hex(0x8A94A3);

const TextStyle kStyle{kLetters, false, false, Hex(0x1B1F24)};
const TextStyle kFaint{kLetters, false, false, Hex(0x6B7480)};

}  // namespace

void DebugWindow::DestroyWindow::operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }

DebugWindow::DebugWindow(TextPainter& text, const TextSource& source)
    : text_(text), source_(source) {
  SDL_Rect display{0, 0, 1024, 768};
  SDL_GetDisplayUsableBounds(0, &display);
  scale_ = std::max(1, display.h / kStepHeight);
  const int width = std::min(static_cast<int>(kWidth * scale_), display.w);
  const int height = std::min(static_cast<int>(kHeight * scale_), display.h);
  // In a corner, so that it hides little of the game in the middle.
  window_.reset(SDL_CreateWindow(ToUtf8(source_.Caption()).c_str(), display.x, display.y, width,
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
    ScrollBy(-kWheelRows * event.wheel.y);
  } else if (event.type == SDL_KEYDOWN) {
    switch (event.key.keysym.sym) {
      case SDLK_UP:
        ScrollBy(-1);
        break;
      case SDLK_DOWN:
        ScrollBy(1);
        break;
      case SDLK_PAGEUP:
        ScrollBy(1 - in_view_);
        break;
      case SDLK_PAGEDOWN:
        ScrollBy(in_view_ - 1);
        break;
      case SDLK_HOME:
        ScrollBy(-first_);
        break;
      case SDLK_END:
        ScrollBy(LastFirstRow());
        break;
      default:
        break;
    }
  }
}

void DebugWindow::HandleUpkeep(const SDL_Event& event) {
  if (event.type == SDL_WINDOWEVENT) dirty_ = true;
}

void DebugWindow::Settle() {
  if (window_ != nullptr && (dirty_ || seen_ != source_.Changes())) Paint();
}

int DebugWindow::LastFirstRow() const {
  return std::max(0, static_cast<int>(rows_.size()) - in_view_);
}

void DebugWindow::ScrollBy(int rows) {
  first_ = std::clamp(first_ + rows, 0, LastFirstRow());
  dirty_ = true;
}

// Wraps the text anew where it or the width has changed. Who has scrolled goes on seeing the same
// rows while others come in above them.
void DebugWindow::WrapText() {
  int width = 0;
  int height = 0;
  SDL_GetWindowSize(window_.get(), &width, &height);
  const double row_height = text_.LineHeight(kStyle, scale_);
  in_view_ = std::max(1, static_cast<int>((height / scale_ - 2 * kSide) / row_height));
  if (seen_ != source_.Changes() || width != wrapped_width_ || rows_.empty()) {
    const bool same_width = width == wrapped_width_;
    const auto before = static_cast<int>(rows_.size());
    seen_ = source_.Changes();
    wrapped_width_ = width;
    std::string_view text = source_.Text();
    if (text.ends_with("\r\n")) text.remove_suffix(2);
    rows_ = text_.WrapAnywhere(text, kStyle, width / scale_ - 3 * kSide - kMark, scale_);
    if (first_ > 0 && same_width) first_ += std::max(0, static_cast<int>(rows_.size()) - before);
  }
  first_ = std::clamp(first_, 0, LastFirstRow());
}

void DebugWindow::Paint() {
  dirty_ = false;
  WrapText();
  SDL_Surface* seen = SDL_GetWindowSurface(window_.get());
  if (seen == nullptr) return;
  Canvas canvas({seen->w, seen->h}, scale_);
  canvas.Clear(kPaper);
  const double row_height = text_.LineHeight(kStyle, scale_);
  if (source_.Text().empty()) {
    text_.Draw(canvas, "The event log of this run is empty.", kFaint, kSide, kSide);
  }
  const int end = std::min(first_ + in_view_, static_cast<int>(rows_.size()));
  for (int row = first_; row < end; ++row) {
    text_.Draw(canvas, rows_[static_cast<std::size_t>(row)], kStyle, kSide,
               kSide + (row - first_) * row_height);
  }
  PaintScrollMark(canvas);
  std::vector<std::uint32_t> pixels = canvas.Pixels();
  SDL_Surface* picture = SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), seen->w, seen->h, 32,
                                                            seen->w * 4, SDL_PIXELFORMAT_RGB888);
  if (picture == nullptr) return;
  SDL_BlitSurface(picture, nullptr, seen, nullptr);
  SDL_FreeSurface(picture);
  SDL_UpdateWindowSurface(window_.get());
}

void DebugWindow::PaintScrollMark(Canvas& canvas) const {
  const auto count = static_cast<double>(rows_.size());
  if (count <= in_view_) return;
  const double width = canvas.PixelSize().width / scale_;
  const double height = canvas.PixelSize().height / scale_;
  const double part = std::max(height * in_view_ / count, 20.0);
  const double top = (height - part) * first_ / std::max(1, LastFirstRow());
  canvas.FillRect(width - kMark, 0, kMark, height, kGroove);
  canvas.FillRect(width - kMark, top, kMark, part, kMarkColor);
}

}  // namespace quendle
