#include "backends/forms/FrameLayer.h"

#include <cmath>

namespace quendle {

Rect LayerView::ToOutput(const Rect& area) const {
  auto across = [&](int x) { return frame.left + static_cast<int>(std::lround(x * Scale())); };
  const double down = static_cast<double>(frame.Height()) / kFrameHeight;
  auto below = [&](int y) { return frame.top + static_cast<int>(std::lround(y * down)); };
  return {across(area.left), below(area.top), across(area.right), below(area.bottom)};
}

}  // namespace quendle
