#pragma once

#include <cstdint>
#include <string_view>

namespace quendle {

enum class PictureKind { kUnknown, kJpeg, kGif, kBitmap };

// What the first bytes of a picture file tell, before anything is decoded.
struct PictureHeader {
  PictureKind kind = PictureKind::kUnknown;
  std::int64_t width = 0;  // 0 by 0 when the file doesn't tell
  std::int64_t height = 0;
  bool whole = true;  // JPEG: the mark of its end follows the picture
};

PictureHeader ReadPictureHeader(std::string_view bytes);

}  // namespace quendle
