#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

#include "toolbelt/making/KeyedPicture.h"

namespace quendle {

// A picture file that can't be read or written; the text names the file and the reason.
class PictureError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Reads a PNG file of at most 4096 by 4096 pixels. Throws PictureError.
SheerPicture ReadPng(const std::string& path);

// Writes words 0x00RRGGBB, row by row from the top, as an opaque PNG file. Throws PictureError.
void WritePng(const std::string& path, int width, int height, const std::uint32_t* pixels);

}  // namespace quendle
