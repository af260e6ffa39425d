#pragma once

#include <optional>
#include <vector>

#include "backends/forms/Canvas.h"
#include "backends/forms/FrameScaling.h"

namespace quendle {

// A picture over the frame; `at` is its left top corner in pixels of the output.
struct LayerPicture {
  Canvas canvas;
  Point at;
  int opacity = 255;
};

// A rectangle drawn as a line of `width` pixels, inside `area` in pixels of the output.
struct LayerOutline {
  Rect area;
  Rgba color;
  int width = 1;
};

struct LayerContents {
  std::vector<LayerPicture> pictures;
  std::vector<LayerOutline> outlines;
};

// Where the frame stands, and the pointer on it.
struct LayerView {
  Size output;                   // pixels
  Rect frame;                    // the frame in them
  std::optional<Point> pointer;  // in pixels of the frame, while it is over the frame

  double Scale() const { return static_cast<double>(frame.Width()) / kFrameWidth; }
  // A rectangle of the frame in pixels of the output.
  Rect ToOutput(const Rect& area) const;
  friend bool operator==(const LayerView&, const LayerView&) = default;
};

// The keys of the game window that layers may want.
enum class FunctionKey { kF2, kF12 };

// Something that lies over the frame in the game window and takes no part in the game.
class FrameLayer {
 public:
  virtual ~FrameLayer() = default;
  // A key pressed in the window; true when it was for this layer and not for the game.
  virtual bool TakeKey(FunctionKey key) = 0;
  // The wheel was turned, up as positive; true when it was for this layer.
  virtual bool TakeWheel(int /*steps*/) { return false; }
  // What to show from now on; null when that is what it was. With `anew` what it gave is lost.
  // Asked for each frame that is shown.
  virtual const LayerContents* Update(const LayerView& view, bool anew) = 0;
};

}  // namespace quendle
