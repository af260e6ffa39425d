#include "backends/forms/AuthorLayer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quendle {
namespace {

using Tone = AuthorLine::Tone;

// Units of text; one is a pixel at the smallest size.
constexpr double kLetters = 12;
constexpr double kIndent = 12;
constexpr double kSide = 6;      // between the text and the edges of its panel
constexpr double kHanging = 16;  // a line that goes on
constexpr double kLargestScale = 2;
constexpr int kMargin = 4;  // pixels between the panels and the edges of the frame
constexpr int kOpacity = 225;
constexpr double kLargestPart = 0.55;  // of the column, for what lies under the pointer

constexpr Rgba kPaper = Hex(0x14181F);

Rgba ColorOf(Tone tone) {
  switch (tone) {
    case Tone::kHead:
      return Hex(0xFFD23F);
    case Tone::kHit:
      return Hex(0x8CE07A);
    case Tone::kPlain:
      return Hex(0xFFFFFF);
    case Tone::kFaint:
      break;
  }
  return Hex(0xA9B3C1);
}

Rgba ColorOf(AuthorOutline::Kind kind) {
  switch (kind) {
    case AuthorOutline::Kind::kObject:
      return Hex(0x2FA4FF);
    case AuthorOutline::Kind::kFrame:
      return Hex(0x9A6BFF);
    case AuthorOutline::Kind::kRegion:
      return Hex(0xFF8A1F);
    case AuthorOutline::Kind::kHitRegion:
      break;
  }
  return Hex(0x2FD04A);
}

TextStyle StyleOf(Tone tone) { return {kLetters, tone == Tone::kHead, false, ColorOf(tone)}; }

}  // namespace

void AuthorLayer::SetSource(AuthorSource* source) {
  if (source_ != nullptr && on_) source_->SwitchOn(false);
  source_ = source;
  on_ = false;
  changed_ = true;
}

bool AuthorLayer::TakeKey(FunctionKey key) {
  if (source_ == nullptr || key != FunctionKey::kF12) return false;
  on_ = !on_;
  source_->SwitchOn(on_);
  scrolled_ = 0;
  changed_ = true;
  return true;
}

bool AuthorLayer::TakeWheel(int steps) {
  if (!on_) return false;
  scrolled_ = std::max(0, scrolled_ - 3 * steps);
  changed_ = true;
  return true;
}

const LayerContents* AuthorLayer::Update(const LayerView& view, bool anew) {
  if (!on_ || source_ == nullptr) {
    if (!std::exchange(changed_, false) && !anew) return nullptr;
    contents_ = {};
    return &contents_;
  }
  AuthorPage page = source_->PageAt(view.pointer);
  if (!changed_ && !anew && view.frame == view_.frame && page == page_) return nullptr;
  if (page.trail != page_.trail) scrolled_ = 0;
  changed_ = false;
  view_ = view;
  page_ = std::move(page);
  contents_ = {};
  PaintOutlines(view);
  PaintText(ColumnFor(view));
  return &contents_;
}

// The right half while the pointer is in the left one; without a pointer it stays.
AuthorLayer::Column AuthorLayer::ColumnFor(const LayerView& view) {
  if (view.pointer) at_right_ = view.pointer->x < kFrameWidth / 2;
  const int middle = (view.frame.left + view.frame.right) / 2;
  Column column;
  column.area = {view.frame.left + kMargin, view.frame.top + kMargin, middle - kMargin,
                 view.frame.bottom - kMargin};
  if (at_right_) {
    column.area.left = middle + kMargin;
    column.area.right = view.frame.right - kMargin;
  }
  column.scale = std::clamp(view.Scale(), 1.0, kLargestScale);
  column.row_height = text_.LineHeight(StyleOf(Tone::kPlain), column.scale);
  return column;
}

std::vector<AuthorLayer::Row> AuthorLayer::RowsOf(const std::vector<AuthorLine>& lines,
                                                  const Column& column) {
  std::vector<Row> rows;
  const double width = column.area.Width() / column.scale - 2 * kSide;
  for (const AuthorLine& line : lines) {
    double indent = line.indent * kIndent;
    for (std::string& piece : text_.WrapAnywhere(line.text, StyleOf(line.tone),
                                                 width - indent - kHanging, column.scale)) {
      rows.push_back({line.tone, indent, std::move(piece)});
      indent = line.indent * kIndent + kHanging;
    }
  }
  return rows;
}

int AuthorLayer::RowsIn(const Column& column, int height) const {
  const double units = height / column.scale - 2 * kSide;
  return std::max(1, static_cast<int>(units / std::max(column.row_height, 1.0)));
}

void AuthorLayer::AddPanel(const Column& column, int top, const std::vector<Row>& rows) {
  const double height = column.row_height * static_cast<double>(rows.size()) + 2 * kSide;
  Canvas canvas(
      {std::max(1, column.area.Width()), static_cast<int>(std::ceil(height * column.scale))},
      column.scale);
  canvas.Clear(kPaper);
  double y = kSide;
  for (const Row& row : rows) {
    text_.Draw(canvas, row.text, StyleOf(row.tone), kSide + row.indent, y);
    y += column.row_height;
  }
  contents_.pictures.push_back({std::move(canvas), {column.area.left, top}, kOpacity});
}

void AuthorLayer::PaintText(const Column& column) {
  std::vector<Row> under = RowsOf(page_.under, column);
  const int most = RowsIn(column, static_cast<int>(column.area.Height() * kLargestPart));
  if (static_cast<int>(under.size()) > most) {
    const auto left_out = static_cast<int>(under.size()) - most + 1;
    under.resize(static_cast<std::size_t>(most - 1));
    under.push_back({Tone::kFaint, 0, std::to_string(left_out) + " lines more"});
  }
  int top = column.area.top;
  if (!under.empty()) {
    AddPanel(column, top, under);
    top += contents_.pictures.back().canvas.PixelSize().height + kMargin;
  }
  std::vector<Row> trail = RowsOf(page_.trail, column);
  const int room = RowsIn(column, column.area.bottom - top);
  const auto count = static_cast<int>(trail.size());
  if (count > room) {
    // One row tells where the rest is.
    scrolled_ = std::min(scrolled_, count - room + 1);
    const int below = count - scrolled_ - (room - 1);
    trail.erase(trail.begin(), trail.begin() + scrolled_);
    trail.resize(static_cast<std::size_t>(room - 1));
    trail.push_back({Tone::kFaint, 0,
                     "wheel: " + std::to_string(scrolled_) + " lines above, " +
                         std::to_string(below) + " below"});
  }
  AddPanel(column, top, trail);
}

void AuthorLayer::PaintOutlines(const LayerView& view) {
  const int width = view.Scale() >= 1.5 ? 2 : 1;
  // The region hit lies over all others.
  for (const bool hit : {false, true}) {
    for (const AuthorOutline& outline : page_.outlines) {
      if ((outline.kind == AuthorOutline::Kind::kHitRegion) != hit) continue;
      contents_.outlines.push_back(
          {view.ToOutput(outline.area), ColorOf(outline.kind), hit ? width + 1 : width});
    }
  }
}

}  // namespace quendle
