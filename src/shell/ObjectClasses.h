#pragma once

#include <optional>
#include <string_view>

namespace quendle {

class ObjectFactory;

// What an object is, by its type word.
enum class ObjectClass {
  kScreen,
  kButton,
  kPatient,
  kMenu,
  kTool,
  kBodyView,
  kSubgame,
  kPointSystem,
  kPlayArea
};

// Nothing for an unknown word. Case is ignored.
std::optional<ObjectClass> ObjectClassOf(std::string_view type_word);

// Fills the factory with the class of every type word.
void RegisterObjectClasses(ObjectFactory& factory);

}  // namespace quendle
