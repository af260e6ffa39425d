#include "backends/raster/BitmapPictureSaver.h"

#include "backends/raster/BitmapWriter.h"
#include "platform/FileSystem.h"

namespace quendle {

bool BitmapPictureSaver::SavePicture(const std::string& path, const Picture& picture) {
  if (picture.Empty()) return false;
  return static_cast<bool>(files_.Write(
      path, WriteBitmapFile(picture.size.width, picture.size.height, picture.words.data())));
}

}  // namespace quendle
