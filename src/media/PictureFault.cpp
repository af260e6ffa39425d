#include "media/PictureFault.h"

#include "base/ContentFiles.h"
#include "base/FatalError.h"
#include "media/MediaWorld.h"
#include "platform/Gdi.h"
#include "platform/Ports.h"

namespace quendle {

void FailOnPicture(const MediaWorld& world, const std::string& path) {
  const FilePlace place{world.content.DisplayName(path), 0};
  if (!world.content.FileExistsAt(path)) {
    throw FatalError::WithBox("File " + path + " not found", place);
  }
  const std::string reason = world.ports.gdi.WhyNotLoaded();
  if (reason.empty()) throw FatalError("the display gives no room for the picture", place);
  throw FatalError("the picture can't be read: " + reason, place);
}

}  // namespace quendle
