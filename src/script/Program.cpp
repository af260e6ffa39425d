#include "script/Program.h"

#include <utility>

#include "script/ActionText.h"
#include "script/ScriptTarget.h"
#include "script/ScriptVariables.h"

namespace quendle {

Program::Program(const Command& root) : root_(root.Type()) {
  Emit(root);
  steps_.shrink_to_fit();
}

void Program::Emit(const Command& node) {
  switch (node.Type()) {
    case NodeType::kAction:
      steps_.push_back({node.ActionStatement(), 0, Kind::kAct});
      break;
    case NodeType::kIf:
      EmitChoice(node.Children().data(), node.Children().size());
      break;
    case NodeType::kBoolIf:
    case NodeType::kBoolElseIf:
      EmitChoice(&node, 1);
      break;
    case NodeType::kBegin:
    case NodeType::kBoolElse:
      EmitChildren(node);
      break;
    case NodeType::kNone:
      break;
  }
}

void Program::EmitChildren(const Command& node) {
  for (const Command& child : node.Children()) Emit(child);
}

void Program::EmitChoice(const Command* first, std::size_t count) {
  const std::size_t place = choices_.size();
  choices_.emplace_back();
  steps_.push_back({nullptr, static_cast<std::uint32_t>(place), Kind::kChoose});
  std::vector<std::uint32_t> jumps_to_end;
  for (const Command* node = first; node != first + count; ++node) {
    const bool unconditional = node->Type() == NodeType::kBoolElse;
    // A condition that can't be evaluated has no deciding pattern: it must be asked, so as to say
    // so.
    choices_[place].branches.push_back(
        {unconditional ? nullptr : node, node->DecidingPattern(), Next()});
    EmitChildren(*node);
    jumps_to_end.push_back(Next());
    steps_.push_back({nullptr, 0, Kind::kJump});
  }
  choices_[place].otherwise = Next();
  for (std::uint32_t jump : jumps_to_end) steps_[jump].target = Next();
}

std::uint32_t Program::Choose(const Choice& choice, const ScriptVariables& variables) {
  for (const Branch& branch : choice.branches) {
    const bool matches = branch.condition == nullptr ||
                         (branch.pattern != nullptr ? branch.pattern->Matches(variables.Action())
                                                    : branch.condition->Holds(variables));
    if (matches) return branch.target;
  }
  return choice.otherwise;
}

void Program::Tell(const Choice& choice, std::uint32_t target, BranchListener& listener) {
  for (const Branch& branch : choice.branches) {
    if (branch.target == target) {
      listener.Chosen(branch.condition, true);
      return;
    }
  }
  listener.Chosen(nullptr, false);
}

std::uint32_t Program::FirstAct(const ScriptVariables& variables) const {
  for (std::uint32_t at = 0; at < steps_.size();) {
    const Step& step = steps_[at];
    if (step.kind == Kind::kAct) return at;
    at = step.kind == Kind::kChoose ? Choose(choices_[step.target], variables) : step.target;
  }
  return kNoAct;
}

void Program::RunFrom(std::uint32_t act, const ScriptVariables& variables,
                      ScriptTarget& target) const {
  for (std::uint32_t at = act; at < steps_.size();) {
    const Step& step = steps_[at];
    if (step.kind == Kind::kAct) {
      Act(step, target);
      ++at;
    } else {
      at = step.kind == Kind::kChoose ? Choose(choices_[step.target], variables) : step.target;
    }
  }
}

void Program::Act(const Step& step, ScriptTarget& target) {
  bool unused = false;
  target.Interpret(*step.statement, false, unused);
}

Answer Program::Run(const ScriptVariables& variables, ScriptTarget& target) const {
  const std::size_t count = steps_.size();
  bool matched = true;
  for (std::size_t at = 0; at < count;) {
    const Step& step = steps_[at];
    if (step.kind == Kind::kAct) {
      Act(step, target);
      ++at;
    } else if (step.kind == Kind::kChoose) {
      const Choice& choice = choices_[step.target];
      const std::uint32_t next = Choose(choice, variables);
      if (variables.Listener() != nullptr) Tell(choice, next, *variables.Listener());
      if (at == 0) matched = next != choices_[0].otherwise;
      at = next;
    } else {
      at = step.target;
    }
  }
  switch (root_) {
    case NodeType::kIf:
    case NodeType::kBoolElse:
      return Answer::kTrue;
    case NodeType::kBoolIf:
    case NodeType::kBoolElseIf:
      return matched ? Answer::kTrue : Answer::kFalse;
    default:
      return Answer::kEmpty;
  }
}

}  // namespace quendle
