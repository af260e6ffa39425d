#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "base/KeyedList.h"
#include "platform/DirectDraw.h"

namespace quendle {

class ContentFiles;
class EventSink;
class SoundState;
struct Ports;
struct Settings;

// A surface shared by name.
struct PictureReference {
  std::string Name;
  SurfaceRef Picture;
};

// Turns an 8-bit channel into its bits of a surface's pixel: value / divisor * multiplier. Not
// known while the divisor is 0.
struct ChannelScale {
  std::int32_t multiplier = 0;
  std::int32_t divisor = 0;
  friend bool operator==(const ChannelScale&, const ChannelScale&) = default;
};

struct ColorScales {
  ChannelScale red;
  ChannelScale green;
  ChannelScale blue;
};

// What drawing and sound share during one run. The references must outlive it.
struct MediaWorld {
  MediaWorld(Settings& run_settings, Ports& run_ports, ContentFiles& content_files)
      : settings(run_settings), ports(run_ports), content(content_files) {}

  Settings& settings;
  Ports& ports;
  ContentFiles& content;
  EventSink* log = nullptr;  // the event log, once there is one

  // The drawing path, fixed before the first object is loaded.
  bool UseDirectX = true;  // all drawing goes through surfaces
  bool FullScreen = true;  // the display is owned in exclusive mode
  // The colour key: a packed colour in the window path, a value in the off-screen surface's own
  // pixel format in the DirectDraw path.
  std::int32_t TransparentColor = 0;
  SurfaceRef primary_surface;     // the visible surface
  SurfaceRef off_screen_surface;  // the 800 by 600 surface on which a frame is composed
  ColorScales scales;

  KeyedList<PictureReference> PictureRegistry{"picture"};
  KeyedList<std::shared_ptr<SoundState>> GlobalSounds{"sound state"};

  // Pictures that objects of the DirectDraw path show now, by path in small letters: objects with
  // one picture share its surface, and the last of them frees it.
  std::map<std::string, std::weak_ptr<Surface>> shown_pictures;

  // The first surface registered under that name, or nothing.
  SurfaceRef FindGlobalPicture(std::string_view name) const;
  // The global sound state of that name, or nothing.
  std::shared_ptr<SoundState> FindGlobalSound(std::string_view name) const;
};

}  // namespace quendle
