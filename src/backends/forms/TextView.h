#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "backends/forms/TextPainter.h"

namespace quendle {

class TextSource;

// A text of many lines that goes on changing, wrapped and scrolled. Who has scrolled goes on seeing
// the same rows while others come in above them.
class TextView {
 public:
  // Both must outlive the view.
  TextView(TextPainter& text, const TextSource& source) : text_(text), source_(source) {}

  // Rows of the text as last painted, and the first of them in view.
  const std::vector<std::string>& Rows() const { return rows_; }
  int FirstRow() const { return first_; }
  int RowsInView() const { return in_view_; }

  // Scrolls within the text; positive goes on.
  void ScrollBy(int rows);
  // A page less one row.
  void ScrollPages(int pages) { ScrollBy(pages * (in_view_ - 1)); }
  void ScrollToStart() { ScrollBy(-first_); }
  void ScrollToEnd() { ScrollBy(LastFirstRow()); }

  // True when what was last painted is out of date.
  bool IsStale() const;
  // The text in a picture of `size` pixels, `scale` pixels a form unit.
  Canvas Paint(Size size, double scale);

 private:
  int LastFirstRow() const;
  void WrapText(Size size, double scale);
  void PaintScrollMark(Canvas& canvas) const;

  TextPainter& text_;
  const TextSource& source_;
  bool scrolled_ = false;
  std::uint64_t seen_ = 0;  // of the source's changes
  int wrapped_width_ = 0;
  std::vector<std::string> rows_;
  int first_ = 0;
  int in_view_ = 1;
};

}  // namespace quendle
