#include "script/ScriptState.h"

#include <algorithm>

#include "base/Text.h"

namespace quendle {

Answer ScriptState::Execute(const ScriptVariables& variables, ScriptTarget& target) const {
  return program_.Run(variables, target);
}

void ScriptState::Parse(const std::vector<ScriptLine>& lines, WorkDepth& depth) {
  std::size_t position = 1;
  std::string stack;
  root_ = std::make_unique<Command>();
  root_->Parse(lines, position, stack, depth);
  program_ = Program(*root_);
}

bool ScriptState::VerifyParse(const std::vector<std::string>& lines) const {
  std::vector<std::string> printed;
  PrintScript(printed);
  return printed.size() >= lines.size() &&
         std::equal(lines.begin(), lines.end(), printed.begin(),
                    [](const auto& a, const auto& b) { return EqualsNoCase(a, b); });
}

}  // namespace quendle
