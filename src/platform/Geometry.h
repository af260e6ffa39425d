// Value types of the 800 by 600 frame. All lengths are pixels.
#pragma once

#include <cstdint>

namespace quendle {

inline constexpr int kFrameWidth = 800;
inline constexpr int kFrameHeight = 600;

struct Point {
  int x = 0;
  int y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  int width = 0;
  int height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

// Left and top edges belong to the rectangle, right and bottom edges don't.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  bool Holds(Point p) const { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; }
  friend bool operator==(const Rect&, const Rect&) = default;
};

// A packed colour with red in the low byte (0x00BBGGRR). -1 is the invalid colour.
using Color = std::int32_t;

constexpr Color PackColor(int red, int green, int blue) { return red | green << 8 | blue << 16; }

inline constexpr Color kInvalidColor = -1;

}  // namespace quendle
