#include "backends/raster/BitmapReader.h"

#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace quendle {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint32_t kLargestHeader = 124;
constexpr std::uint32_t kPlain = 0;
constexpr std::uint32_t kBitFields = 3;

using Palette = std::array<std::uint32_t, 256>;

struct Header {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool top_down = false;
  unsigned bits = 0;
  std::size_t info_size = 0;
  std::uint32_t colors = 0;
  std::size_t pixels_at = 0;
  std::size_t pitch = 0;  // bytes of a row with its padding
};

unsigned Byte(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

unsigned Word16(std::string_view bytes, std::size_t at) {
  return Byte(bytes, at) | Byte(bytes, at + 1) << 8;
}

std::uint32_t Word32(std::string_view bytes, std::size_t at) {
  return Word16(bytes, at) | Word16(bytes, at + 2) << 16;
}

// 32-bit pixels may state their masks; only the usual order is plain data.
bool MasksAreUsual(std::string_view bytes) {
  return bytes.size() >= kFileHeader + kInfoHeader + 12 && Word32(bytes, 54) == 0xFF0000 &&
         Word32(bytes, 58) == 0xFF00 && Word32(bytes, 62) == 0xFF;
}

std::string CheckFormat(std::string_view bytes, const Header& header) {
  if (header.bits != 8 && header.bits != 24 && header.bits != 32) {
    return "it has " + std::to_string(header.bits) + " bits a pixel, not 8, 24 or 32";
  }
  const std::uint32_t compression = Word32(bytes, 30);
  const bool plain = compression == kPlain ||
                     (compression == kBitFields && header.bits == 32 && MasksAreUsual(bytes));
  return plain ? "" : "its pixels are compressed or in an unusual order";
}

std::string CheckExtent(std::string_view bytes, const Header& header) {
  const std::size_t row = static_cast<std::size_t>(header.width) * header.bits / 8;
  const std::size_t needed = header.pitch * static_cast<std::size_t>(header.height - 1) + row;
  if (header.pixels_at < kFileHeader + header.info_size || header.pixels_at > bytes.size()) {
    return "its pixel data begin outside the file";
  }
  if (needed > bytes.size() - header.pixels_at) return "the file ends within its pixel data";
  if (header.bits == 8 && bytes.size() < kFileHeader + header.info_size + 4UL * header.colors) {
    return "the file ends within its palette";
  }
  return "";
}

std::string ReadHeader(std::string_view bytes, Header& header) {
  if (bytes.size() < kFileHeader + kInfoHeader || !bytes.starts_with("BM")) {
    return "it is not a bitmap file";
  }
  const std::uint32_t info_size = Word32(bytes, 14);
  if (info_size < kInfoHeader || info_size > kLargestHeader) return "its header is not known";
  header.info_size = info_size;
  header.width = static_cast<std::int32_t>(Word32(bytes, 18));
  header.height = static_cast<std::int32_t>(Word32(bytes, 22));
  header.top_down = header.height < 0;
  header.height = std::abs(header.height);
  constexpr int kMost = RasterBitmap::kLargestSide;
  if (header.width < 1 || header.height < 1 || header.width > kMost || header.height > kMost) {
    return "its size is " + std::to_string(header.width) + " by " + std::to_string(header.height) +
           ", not between 1 by 1 and 4096 by 4096";
  }
  header.bits = Word16(bytes, 28);
  std::string problem = CheckFormat(bytes, header);
  if (!problem.empty()) return problem;
  header.colors = Word32(bytes, 46) == 0 ? 256 : Word32(bytes, 46);
  if (header.bits == 8 && header.colors > 256) return "its palette has more than 256 colours";
  header.pixels_at = Word32(bytes, 10);
  header.pitch = (static_cast<std::size_t>(header.width) * header.bits / 8 + 3) / 4 * 4;
  return CheckExtent(bytes, header);
}

Palette ReadPalette(std::string_view bytes, const Header& header) {
  Palette palette{};  // an index beyond the stated colours is black
  for (std::uint32_t i = 0; i < header.colors; ++i) {
    palette[i] = Word32(bytes, kFileHeader + header.info_size + 4UL * i) & 0xFFFFFF;
  }
  return palette;
}

// One load a pixel: the byte before a pixel belongs to the file too, at least to its header.
std::uint32_t ThreeBytes(const char* at) {
  std::array<unsigned char, 4> four;
  std::memcpy(four.data(), at - 1, 4);
  return static_cast<std::uint32_t>(four[1] | four[2] << 8 | four[3] << 16);
}

void ReadRow(const char* row, const Header& header, const Palette& palette, std::uint32_t* out) {
  for (std::int64_t x = 0; x < header.width; ++x) {
    if (header.bits == 8) {
      out[x] = palette[static_cast<unsigned char>(row[x])];
    } else if (header.bits == 24) {
      out[x] = ThreeBytes(row + 3 * x);
    } else {
      out[x] = ThreeBytes(row + 4 * x);
    }
  }
}

}  // namespace

BitmapFile ReadBitmapFile(std::string_view bytes) {
  BitmapFile file;
  Header header;
  file.problem = ReadHeader(bytes, header);
  if (!file.problem.empty()) return file;
  const Palette palette = header.bits == 8 ? ReadPalette(bytes, header) : Palette{};
  file.width = static_cast<int>(header.width);
  file.height = static_cast<int>(header.height);
  // Not cleared first: each pixel is read.
  file.pixels.reset(new std::uint32_t[static_cast<std::size_t>(file.width) * file.height]);
  for (int y = 0; y < file.height; ++y) {
    const int row = header.top_down ? y : file.height - 1 - y;
    const char* source = bytes.data() + header.pixels_at + header.pitch * row;
    ReadRow(source, header, palette,
            file.pixels.get() + static_cast<std::ptrdiff_t>(y) * file.width);
  }
  return file;
}

}  // namespace quendle
