#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quendle {

// A picture with transparency: words 0xAARRGGBB, row by row from the top.
struct SheerPicture {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

// Makes a picture ready for keyed drawing: pixels of less than half alpha become exactly the ground
// colour 200,200,200, all others are opaque. An opaque pixel that the key would hit, at 32 or at 16
// bits a pixel, is moved to the nearest colour that it leaves alone. The result has alpha 0.
void KeyPicture(SheerPicture& picture);

}  // namespace quendle
