#include "media/PlacedFrame.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace quendle {
namespace {

// One side of a frame, cut at 0 and at the frame's size. In 64 bits: content may name any number.
struct Side {
  std::int64_t to_begin, to_end, from_begin, from_end;
};

Side CutSide(std::int64_t place, std::int64_t length, std::int64_t source, std::int64_t limit) {
  Side side{place, place + length, source, source + length};
  if (side.to_begin < 0) {
    side.from_begin -= side.to_begin;
    side.to_begin = 0;
  }
  if (side.to_end > limit) {
    side.from_end += limit - side.to_end;
    side.to_end = limit;
  }
  return side;
}

// A coordinate too large for a surface is refused by every surface, wherever it ends up.
int Saturated(std::int64_t value) {
  return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

}  // namespace

int ResolveFramePosition(int position, int placement) {
  constexpr std::int64_t kFar = std::int64_t{1} << 30;
  std::int64_t place = placement;
  if (placement == -1) {
    place = position;
  } else if (placement < -1) {
    place = static_cast<std::int64_t>(position) - placement;
  }
  return static_cast<int>(std::clamp(place, -kFar, kFar));
}

ClippedFrame ClipFrame(const PlacedFrame& frame) {
  const Side x = CutSide(frame.left, frame.width, frame.source_x, kFrameWidth);
  const Side y = CutSide(frame.top, frame.height, frame.source_y, kFrameHeight);
  return {{Saturated(x.to_begin), Saturated(y.to_begin), Saturated(x.to_end), Saturated(y.to_end)},
          {Saturated(x.from_begin), Saturated(y.from_begin), Saturated(x.from_end),
           Saturated(y.from_end)}};
}

}  // namespace quendle
