#pragma once

namespace quendle {

class ObjectFactory;

// Makes the type words of the play areas known. All play areas that the factory makes share one
// SubgameWorld, which lives as long as the factory or one of them.
void RegisterPlayAreas(ObjectFactory& factory);

}  // namespace quendle
