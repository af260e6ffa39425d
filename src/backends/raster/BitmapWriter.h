#pragma once

#include <cstdint>
#include <string>

namespace quendle {

// The bytes of a 24-bit bitmap file of width * height words 0x00RRGGBB, row by row from the top.
std::string WriteBitmapFile(int width, int height, const std::uint32_t* pixels);

}  // namespace quendle
