#pragma once

#include <string_view>

namespace quendle {

// What an object does with a message, by its first word.
enum class ObjectVerb {
  kShowObj,
  kRunScript,
  kUserAction,
  kHideType,
  kHideObj,
  kAddGlobalObj,
  kShowType,
  kToType,
  kToObj,
  kRunState,
  kChangeState,
  kRemoveObj,
  kClimb  // to the parent, as it is
};

// What a first word means to an object. The order in which words are tried, and whether a word is
// looked for anywhere in the verb or must be the whole of it, is part of the format.
ObjectVerb ObjectVerbOf(std::string_view first_word);

// The message is for the children that its second word names, and ends there when there are none.
bool EndsAtChildren(ObjectVerb verb);

// What a script that a message runs gets as its action.
inline constexpr const char* kRunScriptAction = "nothing";

}  // namespace quendle
