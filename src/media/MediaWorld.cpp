#include "media/MediaWorld.h"

#include "base/Text.h"
#include "media/SoundState.h"

namespace quendle {

SurfaceRef MediaWorld::FindGlobalPicture(std::string_view name) const {
  for (const auto& entry : PictureRegistry) {
    if (EqualsNoCase(entry.value.Name, name)) return entry.value.Picture;
  }
  return nullptr;
}

std::shared_ptr<SoundState> MediaWorld::FindGlobalSound(std::string_view name) const {
  const std::shared_ptr<SoundState>* found = GlobalSounds.Find(name);
  return found == nullptr ? nullptr : *found;
}

}  // namespace quendle
