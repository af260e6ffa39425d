#include "backends/forms/TextView.h"

#include <algorithm>

#include "platform/TextSource.h"

namespace quendle {
namespace {

constexpr double kLetters = 13;
constexpr double kSide = 8;  // between the text and the edges
constexpr double kMark = 8;  // width of the scroll mark

constexpr Rgba kPaper = Hex(0xFFFFFF);
constexpr Rgba kGroove = Hex(0xE4E7EB);
constexpr Rgba kMarkColor = Hex(0x8A94A3);

const TextStyle kStyle{kLetters, false, false, Hex(0x1B1F24)};
const TextStyle kFaint{kLetters, false, false, Hex(0x6B7480)};

}  // namespace

bool TextView::IsStale() const { return scrolled_ || seen_ != source_.Changes(); }

int TextView::LastFirstRow() const {
  return std::max(0, static_cast<int>(rows_.size()) - in_view_);
}

void TextView::ScrollBy(int rows) {
  first_ = std::clamp(first_ + rows, 0, LastFirstRow());
  scrolled_ = true;
}

// Wraps the text anew where it or the width has changed.
void TextView::WrapText(Size size, double scale) {
  const double row_height = text_.LineHeight(kStyle, scale);
  in_view_ = std::max(1, static_cast<int>((size.height / scale - 2 * kSide) / row_height));
  if (seen_ != source_.Changes() || size.width != wrapped_width_ || rows_.empty()) {
    const bool same_width = size.width == wrapped_width_;
    const auto before = static_cast<int>(rows_.size());
    seen_ = source_.Changes();
    wrapped_width_ = size.width;
    std::string_view text = source_.Text();
    if (text.ends_with("\r\n")) text.remove_suffix(2);
    rows_ = text_.WrapAnywhere(text, kStyle, size.width / scale - 3 * kSide - kMark, scale);
    if (first_ > 0 && same_width) first_ += std::max(0, static_cast<int>(rows_.size()) - before);
  }
  first_ = std::clamp(first_, 0, LastFirstRow());
}

Canvas TextView::Paint(Size size, double scale) {
  scrolled_ = false;
  WrapText(size, scale);
  Canvas canvas(size, scale);
  canvas.Clear(kPaper);
  const double row_height = text_.LineHeight(kStyle, scale);
  if (source_.Text().empty()) {
    text_.Draw(canvas, "The event log of this run is empty.", kFaint, kSide, kSide);
  }
  const int end = std::min(first_ + in_view_, static_cast<int>(rows_.size()));
  for (int row = first_; row < end; ++row) {
    text_.Draw(canvas, rows_[static_cast<std::size_t>(row)], kStyle, kSide,
               kSide + (row - first_) * row_height);
  }
  PaintScrollMark(canvas);
  return canvas;
}

void TextView::PaintScrollMark(Canvas& canvas) const {
  const auto count = static_cast<double>(rows_.size());
  if (count <= in_view_) return;
  const double width = canvas.PixelSize().width / canvas.Scale();
  const double height = canvas.PixelSize().height / canvas.Scale();
  const double part = std::max(height * in_view_ / count, 20.0);
  const double top = (height - part) * first_ / std::max(1, LastFirstRow());
  canvas.FillRect(width - kMark, 0, kMark, height, kGroove);
  canvas.FillRect(width - kMark, top, kMark, part, kMarkColor);
}

}  // namespace quendle
