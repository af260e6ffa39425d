#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/SeededRandom.h"
#include "object/GameObjectInterface.h"
#include "platform/Geometry.h"

namespace quendle {

class DriveSession;

// Makes up events as commands of `quendle drive`, seeing what is on the screen.
class WildEvents {
 public:
  explicit WildEvents(std::uint64_t seed) : random_(seed) {}

  // The next event of a running game.
  std::string Next(DriveSession& session);

 private:
  // A whole number from 0 up to but not including `count`.
  int Pick(int count);
  std::string PointerEvent(DriveSession& session);
  Point PlaceAnywhere();
  Point PlaceAtAnObject(DriveSession& session);
  std::string FormEvent();

  SeededRandom random_;
};

}  // namespace quendle
