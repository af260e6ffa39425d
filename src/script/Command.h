#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/FatalError.h"
#include "script/Pattern.h"
#include "script/Statement.h"

namespace quendle {

class ScriptTarget;
class ScriptVariables;
class WorkDepth;

// One line of a script with its origin: lines of a subscript keep that file's place.
struct ScriptLine {
  std::string text;
  FilePlace place;
};

enum class NodeType { kNone, kBegin, kIf, kBoolIf, kBoolElseIf, kBoolElse, kAction };

// "begin", "if", "boolif1", "boolelseif1", "boolelse1" or "action"; empty for kNone.
std::string_view NodeTypeName(NodeType type);

// What a node answers when it has run.
enum class Answer { kEmpty, kTrue, kFalse };

// Blocks inside one another in a script: more are fatal. A branch counts as one, and so does the
// chain of branches that it belongs to.
inline constexpr int kDeepestBlocks = 60;

// A statement of a parsed script with the statements inside it.
//
// Block words are recognised by searching a line for them, and content is written against that: in
// a `begin` block any later line that holds "end" closes the block, in a branch any line that holds
// "endif", "elseif" or "else" ends the branch.
class Command {
 public:
  // Parses the statement at `position` (from 1). On return `position` stands on the closing line
  // of a block, and is unchanged for an action. `stack` holds the open block words, the innermost
  // in front. A blank line, or a block that isn't closed, is fatal.
  void Parse(const std::vector<ScriptLine>& lines, std::size_t& position, std::string& stack,
             WorkDepth& depth);

  // Runs the node. A condition on another variable than "action" or of fewer than three words is
  // fatal.
  Answer Execute(const ScriptVariables& variables, ScriptTarget& target) const;

  // Of a condition: whether it holds. The same faults are fatal.
  bool Holds(const ScriptVariables& variables) const;
  // Of a condition on "action": its pattern. Null for any other node.
  const Pattern* DecidingPattern() const {
    return condition_.names_action ? &*condition_.pattern : nullptr;
  }
  // Of an action: what it does.
  const Statement* ActionStatement() const { return &*statement_; }

  // Appends the node as source lines.
  void PrintCommand(std::vector<std::string>& lines) const;

  NodeType Type() const { return type_; }
  // Source text: of a condition what is left without the block word, of an action the whole line.
  const std::string& Text() const { return text_; }
  const FilePlace& Place() const { return place_; }
  const std::vector<Command>& Children() const { return children_; }

 private:
  struct Condition {
    std::size_t word_count = 0;
    bool names_action = false;
    std::optional<Pattern> pattern;
  };

  void ParseCondition(const std::vector<ScriptLine>& lines, std::size_t& position,
                      std::string& stack, WorkDepth& depth);
  void ParseBegin(const std::vector<ScriptLine>& lines, std::size_t& position, std::string& stack,
                  WorkDepth& depth);
  void ParseIf(const std::vector<ScriptLine>& lines, std::size_t& position, std::string& stack,
               WorkDepth& depth);
  void CompileCondition();

  NodeType type_ = NodeType::kNone;
  std::string text_;
  FilePlace place_;
  std::vector<Command> children_;
  Condition condition_;                 // of a boolif1 or boolelseif1
  std::optional<Statement> statement_;  // of an action
};

}  // namespace quendle
