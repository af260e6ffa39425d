#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "script/Command.h"
#include "script/Program.h"

namespace quendle {

// One whole script: parsed once at load, never changed, run many times. Shared by every object
// that names it when it is a global script.
class ScriptState {
 public:
  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }

  // Runs the script on `target`. The caller keeps this object alive during the run.
  Answer Execute(const ScriptVariables& variables, ScriptTarget& target) const;

  // Parses the one statement at line 1, a `begin` block; lines behind its end are never read.
  void Parse(const std::vector<ScriptLine>& lines, WorkDepth& depth);

  // True if the script prints back as `lines`, up to their count, case ignored.
  bool VerifyParse(const std::vector<std::string>& lines) const;

  // Appends the script as source lines.
  void PrintScript(std::vector<std::string>& lines) const { root_->PrintCommand(lines); }

  const Command& Root() const { return *root_; }
  const Program& Steps() const { return program_; }

 private:
  Program program_;                                              // of root_
  std::unique_ptr<Command> root_ = std::make_unique<Command>();  // stays where it is
  std::string name_;
};

}  // namespace quendle
