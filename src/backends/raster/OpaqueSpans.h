#pragma once

#include <cstdint>
#include <vector>

#include "platform/Geometry.h"

namespace quendle {

// The runs of pixels of one rectangle of a picture that don't have the key colour, found once, so
// that drawing the rectangle copies runs and tests no pixel.
class OpaqueSpans {
 public:
  // `area` lies inside the picture and is at most 65535 wide and high; `pitch` is in pixels.
  OpaqueSpans(const std::uint32_t* pixels, int pitch, const Rect& area, std::uint32_t key);

  // True when no pixel of the rectangle has the key.
  bool Whole() const { return whole_; }
  // Copies the runs. `source` and `target` are the pixels at the rectangle's top left corner.
  void Copy(const std::uint32_t* source, int source_pitch, std::uint32_t* target,
            int target_pitch) const;
  // The same for a part of the rectangle, in coordinates of the rectangle; `target` is where the
  // part's top left corner goes.
  void CopyPart(const Rect& part, const std::uint32_t* source, int source_pitch,
                std::uint32_t* target, int target_pitch) const;

 private:
  struct Span {
    std::uint16_t y;
    std::uint16_t x;
    std::uint16_t length;
  };

  int width_;
  int height_;
  bool whole_ = false;               // no pixel has the key: one run a row
  std::vector<Span> spans_;          // by rows; empty when whole_
  std::vector<std::uint32_t> rows_;  // first span of each row, and the end
};

}  // namespace quendle
