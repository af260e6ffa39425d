#pragma once

#include <string_view>

#include "base/Text.h"
#include "script/ActionText.h"

namespace quendle {

class Command;

// A tool that hears which branch a script takes.
class BranchListener {
 public:
  virtual ~BranchListener() = default;
  // `condition` is null for an else; without a match none is taken.
  virtual void Chosen(const Command* condition, bool matched) = 0;
};

// The variables of one script run: exactly one, "action".
class ScriptVariables {
 public:
  // `action` must outlive this object, and so must `listener`, which may be null.
  explicit ScriptVariables(const ActionText& action, BranchListener* listener = nullptr)
      : action_(action), listener_(listener) {}
  // The value of the variable "action", the only one there is.
  const ActionText& Action() const { return action_; }
  BranchListener* Listener() const { return listener_; }
  // True if a variable of that name exists, case ignored.
  static bool Has(std::string_view name) { return EqualsNoCase(name, "action"); }

 private:
  const ActionText& action_;
  BranchListener* listener_;
};

}  // namespace quendle
