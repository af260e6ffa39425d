#pragma once

#include <cstdint>
#include <vector>

#include "script/Command.h"

namespace quendle {

class BranchListener;

// A tree of commands as a list of steps, side by side in memory: what an event has to look at.
class Program {
 public:
  Program() = default;
  // The nodes below `root` must outlive the program and stay where they are.
  explicit Program(const Command& root);

  // Runs the steps. The answer is that of the root node: a condition's "true" or "false", "true"
  // for an if, nothing for a block or an action.
  Answer Run(const ScriptVariables& variables, ScriptTarget& target) const;

  static constexpr std::uint32_t kNoAct = UINT32_MAX;
  // The step of the first statement that a run carries out, kNoAct if there is none. It hangs on
  // the text alone, so that who gets the same text again can go on from there.
  std::uint32_t FirstAct(const ScriptVariables& variables) const;
  // The rest of a run from there on, without a listener.
  void RunFrom(std::uint32_t act, const ScriptVariables& variables, ScriptTarget& target) const;

 private:
  enum class Kind : std::uint8_t { kChoose, kAct, kJump };
  struct Step {
    const Statement* statement = nullptr;  // of kAct
    std::uint32_t target = 0;              // of kJump; of kChoose its place among choices_
    Kind kind = Kind::kJump;
  };
  // A branch: its condition (null for an else) and where it goes on.
  struct Branch {
    const Command* condition = nullptr;
    const Pattern* pattern = nullptr;  // null where the condition must be asked itself
    std::uint32_t target = 0;
  };
  struct Choice {
    std::uint32_t otherwise = 0;  // where no branch matches
    std::vector<Branch> branches;
  };

  void Emit(const Command& node);
  void EmitChildren(const Command& node);
  // One choice among the branches; `node` itself is the only branch of a condition node.
  void EmitChoice(const Command* first, std::size_t count);
  std::uint32_t Next() const { return static_cast<std::uint32_t>(steps_.size()); }
  static void Act(const Step& step, ScriptTarget& target);
  // Where the branch begins that the text leads to.
  static std::uint32_t Choose(const Choice& choice, const ScriptVariables& variables);
  static void Tell(const Choice& choice, std::uint32_t target, BranchListener& listener);

  std::vector<Step> steps_;
  std::vector<Choice> choices_;
  NodeType root_ = NodeType::kNone;
};

}  // namespace quendle
