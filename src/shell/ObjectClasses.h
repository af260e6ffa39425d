#pragma once

namespace quendle {

class ObjectFactory;

// Fills the factory with the class of every type word.
void RegisterObjectClasses(ObjectFactory& factory);

}  // namespace quendle
