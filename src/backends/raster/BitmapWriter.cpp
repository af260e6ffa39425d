#include "backends/raster/BitmapWriter.h"

#include <cstddef>

namespace quendle {
namespace {

constexpr std::uint32_t kHeaders = 54;

void Put16(std::string& bytes, unsigned value) {
  bytes += static_cast<char>(value & 0xFF);
  bytes += static_cast<char>(value >> 8 & 0xFF);
}

void Put32(std::string& bytes, std::uint32_t value) {
  Put16(bytes, value & 0xFFFF);
  Put16(bytes, value >> 16);
}

}  // namespace

std::string WriteBitmapFile(int width, int height, const std::uint32_t* pixels) {
  const std::size_t pitch = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
  const auto data_size = static_cast<std::uint32_t>(pitch * static_cast<std::size_t>(height));
  std::string bytes = "BM";
  bytes.reserve(kHeaders + data_size);
  Put32(bytes, kHeaders + data_size);
  Put32(bytes, 0);
  Put32(bytes, kHeaders);
  Put32(bytes, 40);
  Put32(bytes, static_cast<std::uint32_t>(width));
  Put32(bytes, static_cast<std::uint32_t>(height));
  Put16(bytes, 1);
  Put16(bytes, 24);
  Put32(bytes, 0);
  Put32(bytes, data_size);
  Put32(bytes, 2835);  // 72 dots an inch
  Put32(bytes, 2835);
  Put32(bytes, 0);
  Put32(bytes, 0);
  for (int y = height - 1; y >= 0; --y) {
    const std::uint32_t* row = pixels + static_cast<std::ptrdiff_t>(y) * width;
    for (int x = 0; x < width; ++x) {
      Put16(bytes, row[x] & 0xFFFF);
      bytes += static_cast<char>(row[x] >> 16 & 0xFF);
    }
    bytes.append(pitch - static_cast<std::size_t>(width) * 3, '\0');
  }
  return bytes;
}

}  // namespace quendle
