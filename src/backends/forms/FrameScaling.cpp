#include "backends/forms/FrameScaling.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quendle {
namespace {

struct Position {
  double x = 0;
  double y = 0;
};

// The middle of a window pixel in pixels of the output.
Position OutputPosition(Point at, Size window, Size output) {
  double across = static_cast<double>(output.width) / std::max(window.width, 1);
  double down = static_cast<double>(output.height) / std::max(window.height, 1);
  return {(at.x + 0.5) * across, (at.y + 0.5) * down};
}

}  // namespace

Rect FrameArea(Size output, ScaleMode mode) {
  int width = std::max(output.width, 1);
  int height = std::max(output.height, 1);
  int whole = std::min(width / kFrameWidth, height / kFrameHeight);
  int frame_width = kFrameWidth * whole;
  int frame_height = kFrameHeight * whole;
  if (mode != ScaleMode::kWhole || whole == 0) {
    bool wide = static_cast<std::int64_t>(width) * kFrameHeight >
                static_cast<std::int64_t>(height) * kFrameWidth;
    frame_width = wide ? std::max(1, height * kFrameWidth / kFrameHeight) : width;
    frame_height = wide ? height : std::max(1, width * kFrameHeight / kFrameWidth);
  }
  int left = (width - frame_width) / 2;
  int top = (height - frame_height) / 2;
  return {left, top, left + frame_width, top + frame_height};
}

int SharpFactor(const Rect& area) {
  int across = (area.Width() + kFrameWidth - 1) / kFrameWidth;
  int down = (area.Height() + kFrameHeight - 1) / kFrameHeight;
  return std::max({across, down, 1});
}

Point FramePoint(Point at, Size window, Size output, ScaleMode mode) {
  Rect area = FrameArea(output, mode);
  Position position = OutputPosition(at, window, output);
  double x = (position.x - area.left) * kFrameWidth / area.Width();
  double y = (position.y - area.top) * kFrameHeight / area.Height();
  return {std::clamp(static_cast<int>(std::floor(x)), 0, kFrameWidth - 1),
          std::clamp(static_cast<int>(std::floor(y)), 0, kFrameHeight - 1)};
}

bool IsOverFrame(Point at, Size window, Size output, ScaleMode mode) {
  Rect area = FrameArea(output, mode);
  Position position = OutputPosition(at, window, output);
  return position.x >= area.left && position.x < area.right && position.y >= area.top &&
         position.y < area.bottom;
}

}  // namespace quendle
