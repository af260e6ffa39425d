#pragma once

#include "platform/PictureLoader.h"

namespace quendle {

// Reads picture files of the system. Folders, pipes and devices are told apart first: only
// whole regular files of at most 200 MB are read.
class PictureDecoderLoader : public PictureLoader {
 public:
  LoadedPicture LoadPicture(const std::string& native_path, PictureLimit limit) override;
};

}  // namespace quendle
