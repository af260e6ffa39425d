#pragma once

#include <vector>

#include "backends/forms/FrameLayer.h"
#include "backends/forms/TextPainter.h"
#include "platform/AuthorSource.h"

namespace quendle {

// What lies under the pointer and the trail of the last click, over the frame: F12 switches it, the
// wheel scrolls the trail. The text stands in the half of the frame where the pointer isn't.
class AuthorLayer : public FrameLayer {
 public:
  // `text` must outlive the layer.
  explicit AuthorLayer(TextPainter& text) : text_(text) {}

  // Null for none: F12 is a key like any other then.
  void SetSource(AuthorSource* source);
  bool On() const { return on_; }

  bool TakeKey(FunctionKey key) override;
  bool TakeWheel(int steps) override;
  const LayerContents* Update(const LayerView& view, bool anew) override;

 private:
  // A line as it is drawn.
  struct Row {
    AuthorLine::Tone tone;
    double indent;
    std::string text;
  };
  // A half of the frame in pixels of the output, for rows of one size.
  struct Column {
    Rect area;
    double scale;
    double row_height;
  };

  Column ColumnFor(const LayerView& view);
  std::vector<Row> RowsOf(const std::vector<AuthorLine>& lines, const Column& column);
  void AddPanel(const Column& column, int top, const std::vector<Row>& rows);
  int RowsIn(const Column& column, int height) const;
  void PaintText(const Column& column);
  void PaintOutlines(const LayerView& view);

  TextPainter& text_;
  AuthorSource* source_ = nullptr;
  bool on_ = false;
  bool changed_ = false;
  bool at_right_ = true;
  int scrolled_ = 0;  // rows of the trail above its panel
  LayerView view_;
  AuthorPage page_;
  LayerContents contents_;
};

}  // namespace quendle
