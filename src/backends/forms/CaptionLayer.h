#pragma once

#include <string>

#include "backends/forms/FrameLayer.h"
#include "backends/forms/TextPainter.h"
#include "platform/CaptionSource.h"
#include "platform/Clock.h"

namespace quendle {

class CaptionSetting;

// What is said, at the bottom of the frame; at the top while the pointer is down there. F2 switches
// it, which is kept, and says so for a moment.
class CaptionLayer : public FrameLayer {
 public:
  static constexpr Milliseconds kNoticeTime{2500};

  // All must outlive the layer.
  CaptionLayer(TextPainter& text, Clock& clock, CaptionSetting& setting)
      : text_(text), clock_(clock), setting_(setting) {}

  void SetOn(bool on) { on_ = on; }
  bool On() const { return on_; }
  // Null for none.
  void SetSource(CaptionSource* source) { source_ = source; }

  bool TakeKey(FunctionKey key) override;
  const LayerContents* Update(const LayerView& view, bool anew) override;

 private:
  Caption Wanted();
  void Paint(const LayerView& view);
  int TopOf(int height, const LayerView& view);

  TextPainter& text_;
  Clock& clock_;
  CaptionSetting& setting_;
  CaptionSource* source_ = nullptr;
  bool on_ = false;
  std::string notice_;
  Milliseconds notice_until_{0};

  Caption shown_;
  double scale_ = 0;
  Point corner_;  // of the frame, for which it was painted
  bool at_top_ = false;
  int height_ = 0;  // of what is shown, in pixels of the frame
  LayerContents contents_;
};

}  // namespace quendle
