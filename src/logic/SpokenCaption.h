#pragma once

#include <string>

namespace quendle {

class Captions;
class GameLogicLayer;
struct ObjectWorld;

// The sentence of the sound that plays now, of any object of the live screens, the global objects
// and the global sounds; of several the one that began last. An empty text when none of them has a
// sentence.
std::string SpokenCaption(const Captions& captions, const GameLogicLayer& logic,
                          const ObjectWorld& world);

}  // namespace quendle
