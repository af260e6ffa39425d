#include "backends/codecs/PictureHeader.h"

#include <cstdlib>

namespace quendle {
namespace {

constexpr std::string_view kJpegStart = "\xFF\xD8\xFF";
constexpr std::string_view kJpegEnd = "\xFF\xD9";
constexpr unsigned kStartOfScan = 0xDA;

unsigned Byte(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

unsigned Little16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) | Byte(bytes, at + 1) << 8;
}

unsigned Big16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) << 8 | Byte(bytes, at + 1);
}

std::int64_t Little32(std::string_view bytes, std::size_t at) {
  return static_cast<std::int32_t>(Little16(bytes, at) | Little16(bytes, at + 2) << 16);
}

// Frame headers are C0 to CF but for the tables C4, C8 and CC.
bool IsFrameHeader(unsigned marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Walks the segments up to the first scan; a thumbnail inside a segment is passed over.
void ReadJpegHeader(std::string_view bytes, PictureHeader& header) {
  header.whole = false;
  std::size_t at = 2;
  while (at + 4 <= bytes.size()) {
    if (Byte(bytes, at) != 0xFF) return;
    const unsigned marker = Byte(bytes, at + 1);
    if (marker == 0xFF) {
      ++at;
      continue;
    }
    if (IsFrameHeader(marker)) {
      header.height = Big16(bytes, at + 5);
      header.width = Big16(bytes, at + 7);
    }
    if (marker == kStartOfScan) {
      header.whole = bytes.find(kJpegEnd, at) != std::string_view::npos;
      return;
    }
    at += 2 + Big16(bytes, at + 2);
  }
}

}  // namespace

PictureHeader ReadPictureHeader(std::string_view bytes) {
  PictureHeader header;
  if (bytes.starts_with(kJpegStart)) {
    header.kind = PictureKind::kJpeg;
    ReadJpegHeader(bytes, header);
  } else if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) {
    header.kind = PictureKind::kGif;
    header.width = Little16(bytes, 6);
    header.height = Little16(bytes, 8);
  } else if (bytes.starts_with("BM")) {
    header.kind = PictureKind::kBitmap;
    header.width = std::abs(Little32(bytes, 18));
    header.height = std::abs(Little32(bytes, 22));
  }
  return header;
}

}  // namespace quendle
