#pragma once

#include <string>

namespace quendle {

// `quendle picture`: makes a keyed 24-bit bitmap of a PNG file. Throws PictureError.
void MakeKeyedBitmap(const std::string& png_path, const std::string& bitmap_path);

}  // namespace quendle
