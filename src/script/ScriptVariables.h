#pragma once

#include <string_view>

#include "base/Text.h"
#include "script/ActionText.h"

namespace quendle {

// The variables of one script run: exactly one, "action".
class ScriptVariables {
 public:
  // `action` must outlive this object.
  explicit ScriptVariables(const ActionText& action) : action_(action) {}
  // The value of the variable "action", the only one there is.
  const ActionText& Action() const { return action_; }
  // True if a variable of that name exists, case ignored.
  static bool Has(std::string_view name) { return EqualsNoCase(name, "action"); }

 private:
  const ActionText& action_;
};

}  // namespace quendle
