#pragma once

namespace quendle {

class DShowObj;

// Something that owns the player which its sound states share.
class SoundPlayerSource {
 public:
  virtual ~SoundPlayerSource() = default;
  // The player, or null when there is none (now).
  virtual DShowObj* GetDShowObj() = 0;
};

}  // namespace quendle
