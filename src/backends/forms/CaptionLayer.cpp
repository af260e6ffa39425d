#include "backends/forms/CaptionLayer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "backends/forms/CaptionSetting.h"

namespace quendle {
namespace {

// In pixels of the frame.
constexpr double kLetters = 24;
constexpr double kWidest = 700;
constexpr double kSide = 18;  // between the text and the edge of its backing
constexpr double kAbove = 8;  // the same, above and below
constexpr int kMargin = 10;   // between the backing and the edge of the frame
constexpr int kReach = 40;    // the pointer's picture reaches this far

constexpr Rgba kBacking = Hex(0x241810);
constexpr Rgba kEdge = Hex(0xFFCFA3);

}  // namespace

bool CaptionLayer::TakeKey(FunctionKey key) {
  if (key != FunctionKey::kF2) return false;
  on_ = !on_;
  setting_.Write(on_);
  const bool any = source_ != nullptr && source_->HasCaptions();
  notice_ = !any ? "This game has no captions" : on_ ? "Captions on" : "Captions off";
  notice_until_ = clock_.Monotonic() + kNoticeTime;
  return true;
}

Caption CaptionLayer::Wanted() {
  Caption caption;
  if (source_ != nullptr) caption = source_->SpokenNow();
  if (!on_) caption.text.clear();
  if (!notice_.empty()) {
    if (clock_.Monotonic() < notice_until_) {
      caption.text = notice_;
    } else {
      notice_.clear();
    }
  }
  return caption;
}

const LayerContents* CaptionLayer::Update(const LayerView& view, bool anew) {
  const bool seen = !contents_.pictures.empty();
  if (!on_ && notice_.empty() && !seen && !anew) return nullptr;
  Caption wanted = Wanted();
  const Point corner{view.frame.left, view.frame.top};
  const bool same_text = wanted == shown_ && scale_ == view.Scale() && corner_ == corner;
  const bool was_at_top = at_top_;
  if (same_text && !anew) {
    if (!seen) return nullptr;
    const int top = TopOf(height_, view);
    if (at_top_ == was_at_top) return nullptr;
    contents_.pictures[0].at.y = view.ToOutput({0, top, 0, top}).top;
    return &contents_;
  }
  shown_ = std::move(wanted);
  scale_ = view.Scale();
  corner_ = corner;
  contents_ = {};
  if (!shown_.text.empty()) Paint(view);
  return &contents_;
}

void CaptionLayer::Paint(const LayerView& view) {
  const TextStyle style{kLetters, true, false, Hex(0xFFFFFF)};
  const std::vector<std::string> lines = text_.Wrap(shown_.text, style, kWidest, scale_);
  double width = 0;
  for (const std::string& line : lines) width = std::max(width, text_.WidthOf(line, style, scale_));
  const double line_height = text_.LineHeight(style, scale_);
  width += 2 * kSide;
  const double height = line_height * static_cast<double>(lines.size()) + 2 * kAbove;
  const Size size{static_cast<int>(std::ceil(width * scale_)),
                  static_cast<int>(std::ceil(height * scale_))};
  Canvas canvas(size, scale_);
  canvas.Clear(kEdge);
  canvas.FillRect(1.5, 1.5, width - 3, height - 3, kBacking);
  double y = kAbove + line_height / 2;
  for (const std::string& line : lines) {
    text_.DrawCentred(canvas, line, style, {width / 2, y});
    y += line_height;
  }
  height_ = static_cast<int>(std::ceil(height));
  const int left = view.frame.left + (view.frame.Width() - size.width) / 2;
  const int top = TopOf(height_, view);
  contents_.pictures.push_back({std::move(canvas), {left, view.ToOutput({0, top, 0, top}).top}});
}

// The upper edge in the frame; away from the pointer, and where it was if that will do.
int CaptionLayer::TopOf(int height, const LayerView& view) {
  const int below = shown_.bottom - kMargin - height;
  const int pointer = view.pointer ? view.pointer->y : 0;
  at_top_ = view.pointer && pointer > below - kReach && pointer < shown_.bottom + kReach;
  return at_top_ ? kMargin : below;
}

}  // namespace quendle
