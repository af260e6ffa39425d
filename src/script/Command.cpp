#include "script/Command.h"

#include <utility>

#include "base/SF_Strings.h"
#include "base/Text.h"
#include "base/WorkDepth.h"
#include "script/Program.h"
#include "script/ScriptVariables.h"

namespace quendle {
namespace {

// The line at `position`; past the last line is fatal.
const ScriptLine& LineAt(const std::vector<ScriptLine>& lines, std::size_t position) {
  if (position > lines.size()) {
    throw FatalError(
        "the script ends inside a block that isn't closed (a block needs one "
        "statement and a line \"end\" or \"endif\")",
        lines.empty() ? FilePlace{} : lines.back().place);
  }
  return lines[position - 1];
}

bool EndsBranch(std::string_view line) {
  return ContainsNoCase(line, "endif") || ContainsNoCase(line, "elseif") ||
         ContainsNoCase(line, "else");
}

// The branch word that an `if` node pushes for a line, or an empty text when the line has none.
std::string_view BranchWord(std::string_view line) {
  if (ContainsNoCase(line, "elseif")) return "boolelseif1";
  if (ContainsNoCase(line, "else")) return "boolelse1";
  if (ContainsNoCase(line, "if")) return "boolif1";
  return "";
}

// Takes the pushed branch word off the stack.
NodeType PopBranchWord(std::string& stack) {
  for (NodeType type : {NodeType::kBoolIf, NodeType::kBoolElseIf, NodeType::kBoolElse}) {
    if (ContainsNoCase(stack, NodeTypeName(type))) {
      stack = SF_remove(stack, NodeTypeName(type));
      return type;
    }
  }
  return NodeType::kNone;
}

std::string WithoutBlockWord(const std::string& line) {
  for (std::string_view word : {"elseif", "else", "if"}) {
    if (ContainsNoCase(line, word)) return SF_remove(line, word);
  }
  return line;
}

}  // namespace

std::string_view NodeTypeName(NodeType type) {
  switch (type) {
    case NodeType::kNone:
      return "";
    case NodeType::kBegin:
      return "begin";
    case NodeType::kIf:
      return "if";
    case NodeType::kBoolIf:
      return "boolif1";
    case NodeType::kBoolElseIf:
      return "boolelseif1";
    case NodeType::kBoolElse:
      return "boolelse1";
    case NodeType::kAction:
      return "action";
  }
  return "";
}

void Command::Parse(const std::vector<ScriptLine>& lines, std::size_t& position, std::string& stack,
                    WorkDepth& depth) {
  const ScriptLine& line = LineAt(lines, position);
  const DepthGuard guard(depth, Work::kBlock, line.text, nullptr, &line.place);
  guard.KeepWithin(kDeepestBlocks, "blocks");
  place_ = line.place;
  std::vector<std::string> words = SplitTokens(line.text, ' ');
  if (words.empty()) {
    throw FatalError("a blank line stands where a statement is expected", place_);
  }
  if (ContainsNoCase(stack, "bool")) {
    ParseCondition(lines, position, stack, depth);
  } else if (EqualsNoCase(words[0], "begin")) {
    ParseBegin(lines, position, stack, depth);
  } else if (words[0] == "if") {
    ParseIf(lines, position, stack, depth);
  } else {
    type_ = NodeType::kAction;
    text_ = line.text;
    statement_.emplace(line.text, line.place);
  }
}

void Command::ParseCondition(const std::vector<ScriptLine>& lines, std::size_t& position,
                             std::string& stack, WorkDepth& depth) {
  type_ = PopBranchWord(stack);
  text_ = WithoutBlockWord(LineAt(lines, position).text);
  CompileCondition();
  ++position;
  while (!EndsBranch(LineAt(lines, position).text)) {
    Command child;
    child.Parse(lines, position, stack, depth);
    children_.push_back(std::move(child));
    ++position;
  }
}

void Command::ParseBegin(const std::vector<ScriptLine>& lines, std::size_t& position,
                         std::string& stack, WorkDepth& depth) {
  type_ = NodeType::kBegin;
  stack.insert(0, "begin");
  // The test sees the `begin` line itself first, so the line behind it is always a statement.
  const ScriptLine* tested = &LineAt(lines, position);
  ++position;
  while (!ContainsNoCase(tested->text, "end")) {
    Command child;
    child.Parse(lines, position, stack, depth);
    children_.push_back(std::move(child));
    ++position;
    tested = &LineAt(lines, position);
  }
  stack = SF_remove(stack, "begin");
}

void Command::ParseIf(const std::vector<ScriptLine>& lines, std::size_t& position,
                      std::string& stack, WorkDepth& depth) {
  type_ = NodeType::kIf;
  stack.insert(0, "if");
  // A branch stops on the line that must be looked at next, so the position isn't advanced here.
  while (!ContainsNoCase(LineAt(lines, position).text, "end")) {
    stack.insert(0, BranchWord(LineAt(lines, position).text));
    Command child;
    child.Parse(lines, position, stack, depth);
    children_.push_back(std::move(child));
  }
  stack = SF_remove(stack, "if");
}

void Command::CompileCondition() {
  std::vector<std::string> words = SplitTokens(text_, ' ');
  condition_.word_count = words.size();
  if (words.size() < 3) return;
  condition_.names_action = ScriptVariables::Has(words[0]);
  condition_.pattern.emplace(words[2]);
}

bool Command::Holds(const ScriptVariables& variables) const {
  if (!condition_.pattern) {
    throw FatalError("a condition needs three words, as in \"if action = *mouseclick\", and \"" +
                         text_ + "\" has " + std::to_string(condition_.word_count),
                     place_);
  }
  if (!condition_.names_action) {
    throw FatalError("a condition can only test the variable \"action\": \"" + text_ + "\"",
                     place_);
  }
  return condition_.pattern->Matches(variables.Action());
}

Answer Command::Execute(const ScriptVariables& variables, ScriptTarget& target) const {
  return Program(*this).Run(variables, target);
}

void Command::PrintCommand(std::vector<std::string>& lines) const {
  switch (type_) {
    case NodeType::kBegin:
      lines.emplace_back("begin");
      break;
    case NodeType::kBoolIf:
      lines.push_back("if" + text_);
      break;
    case NodeType::kBoolElseIf:
      lines.push_back("elseif" + text_);
      break;
    case NodeType::kBoolElse:
      lines.push_back("else" + text_);
      break;
    case NodeType::kAction:
      lines.push_back(text_);
      break;
    case NodeType::kIf:
    case NodeType::kNone:
      break;
  }
  for (const Command& child : children_) child.PrintCommand(lines);
  if (type_ == NodeType::kBegin) lines.emplace_back("end");
  if (type_ == NodeType::kIf) lines.emplace_back("endif");
}

}  // namespace quendle
