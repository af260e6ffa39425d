#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/TextStream.h"

namespace quendle {

// One rectangle of an object's picture, with the place where it is shown.
struct AnimationFrame {
  std::string FrameName;
  std::string RegionKey = "nothing";  // FrameName if the frame has regions
  std::int32_t SourceX = 0;
  std::int32_t SourceY = 0;
  std::int32_t SourceWidth = 0;
  std::int32_t SourceHeight = 0;
  // 0 or more: relative to the parent. -1: where the object is. Below -1: that much further.
  std::int32_t PlaceX = 0;
  std::int32_t PlaceY = 0;
  // Size to report for the object; both 0 for the source size.
  std::int32_t DrawWidth = 0;
  std::int32_t DrawHeight = 0;
};

// A frame record as read: the frame, and the stored path of its regions.
struct FrameRecord {
  AnimationFrame frame;
  std::string region_file;  // stored path, or "nothing"
  FilePlace place;
};

// A placement line: its code, and the draw size that it may give.
struct Placement {
  std::int32_t code = 0;
  std::int32_t draw_size = 0;
};

// Reads "120", "stable", "stable+5", "30+5", "stable/100" or "30\100". "stable+0" is fatal with a
// box of its own.
Placement ParsePlacement(std::string_view text, const FilePlace& place);

// Reads a frame file to its end: records of nine lines.
std::vector<FrameRecord> ReadFrameFile(TextStream& stream);

}  // namespace quendle
