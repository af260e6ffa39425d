#pragma once

#include <string>
#include <vector>

#include "platform/Geometry.h"

namespace quendle {

class GameLogicLayer;
struct ObjectWorld;

// A named rectangle on the frame, in its pixels.
struct NamedArea {
  std::string name;
  Rect area;
};

// An object that lies under the pointer, as it is now.
struct ObjectUnder {
  std::string path;  // "SCREEN/child/..."
  std::string type;
  bool hidden = false;  // not visible: it takes no events
  bool hit = false;     // a click here is on it
  std::string state;
  std::vector<std::string> history;
  std::string script;  // of the state; empty for none
  std::string region;  // that a click here finds; empty for none
  Rect area;
  std::string animation;
  std::vector<NamedArea> frames;   // now shown
  std::vector<NamedArea> regions;  // of those frames
  int timer = 0;                   // id; 0 for none
  int interval = 0;                // milliseconds
  int due = 0;                     // milliseconds from now
  std::string sound;               // that it began last
  bool sounding = false;
};

// What lies under a point of the frame, topmost first: the objects that a click there is on, and
// those of which a shown frame covers the point. Layers that take no events now, and the pointer's
// own picture, don't count. Changes nothing.
std::vector<ObjectUnder> ObjectsUnder(Point at, const GameLogicLayer& logic,
                                      const ObjectWorld& world);

}  // namespace quendle
