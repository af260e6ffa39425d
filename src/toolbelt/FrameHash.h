#pragma once

#include <cstdint>
#include <string>

namespace quendle {

// 16 hexadecimal digits for a picture of words 0x00RRGGBB: FNV-1a, 64 bits, over its red, green
// and blue bytes from the top left.
std::string HashOfFrame(int width, int height, const std::uint32_t* pixels);

}  // namespace quendle
