// The pictures of the content.

#include "Fuzz.h"
#include "backends/raster/BitmapReader.h"

using namespace quendle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const BitmapFile file = ReadBitmapFile(BytesOf(data, size));
  if (!file.problem.empty()) return 0;
  Require(file.width > 0 && file.width <= 4096 && file.height > 0 && file.height <= 4096,
          "a bitmap has a size within its bounds");
  Require(file.pixels != nullptr, "a bitmap without a problem has pixels");
  // One pixel takes at least a byte of the file.
  Require(static_cast<std::size_t>(file.width) * static_cast<std::size_t>(file.height) <= size,
          "the pixels of a bitmap stand in its file");
  return 0;
}
