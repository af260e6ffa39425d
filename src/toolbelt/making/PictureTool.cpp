#include "toolbelt/making/PictureTool.h"

#include <fstream>

#include "backends/raster/BitmapWriter.h"
#include "toolbelt/PngFile.h"

namespace quendle {

void MakeKeyedBitmap(const std::string& png_path, const std::string& bitmap_path) {
  SheerPicture picture = ReadPng(png_path);
  KeyPicture(picture);
  const std::string bytes = WriteBitmapFile(picture.width, picture.height, picture.pixels.data());
  std::ofstream file(bitmap_path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw PictureError(bitmap_path + ": can't be written");
}

}  // namespace quendle
