#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Picture.h"
#include "platform/PictureLoader.h"

namespace quendle {

// More points than any camera's picture that a family will have; what a decoder asks for grows
// with them.
inline constexpr std::int64_t kMostPicturePoints = 50'000'000;

// A decoded picture, or what is wrong with it as one or two whole sentences for the player.
struct DecodedPicture {
  Picture picture;
  std::string problem;  // empty when the picture was read
};

// Decodes a JPEG, GIF (its first picture) or bitmap file by what the bytes are. A camera's note of
// how it was held is followed; transparent points stand on white. A cut or damaged file, one of
// another kind, and one of more than kMostPicturePoints points give a problem. One beyond the limit
// is shrunk row by row as it is decoded.
DecodedPicture DecodePicture(std::string_view bytes, PictureLimit limit = {});

}  // namespace quendle
