#pragma once

namespace quendle {

class Statement;

// What a script acts on.
class ScriptTarget {
 public:
  virtual ~ScriptTarget() = default;
  // Carries out one statement. Verifying, nothing changes and `result` tells whether it could be
  // carried out.
  virtual void Interpret(const Statement& statement, bool verifying, bool& result) = 0;
};

}  // namespace quendle
