#pragma once

#include "platform/PictureSaver.h"

namespace quendle {

class FileSystem;

// Writes pictures as bitmap files of the game's file system.
class BitmapPictureSaver : public PictureSaver {
 public:
  // `files` outlives the saver.
  explicit BitmapPictureSaver(FileSystem& files) : files_(files) {}
  bool SavePicture(const std::string& path, const Picture& picture) override;

 private:
  FileSystem& files_;
};

}  // namespace quendle
