#include "toolbelt/verify/ScriptWalk.h"

#include <algorithm>
#include <utility>

#include "base/FatalError.h"
#include "base/Text.h"
#include "object/StatementTokens.h"
#include "script/Pattern.h"

namespace quendle {
namespace {

// The states in which a script answers events; all states for one that only messages run.
StateSet StatesOf(const ModelObject& object, const ModelScript& script) {
  StateSet states;
  for (const ObjState& state : object.states) {
    if (EqualsNoCase(state.ScriptState(), script.name)) states.insert(state.Name());
  }
  if (states.empty()) {
    const std::vector<std::string> all = object.StateNames();
    states.insert(all.begin(), all.end());
  }
  if (states.empty()) states.emplace();
  return states;
}

StateSet RegionsOf(const ModelObject& object) {
  StateSet regions{""};
  for (const ModelFrame& frame : object.frames) {
    for (const Region& region : frame.regions) regions.insert(region.Name());
  }
  return regions;
}

bool LeadsToAState(StatementMeaning meaning) {
  switch (meaning) {
    case StatementMeaning::kState:
    case StatementMeaning::kPassingState:
      return true;
    case StatementMeaning::kMessage:
    case StatementMeaning::kSound:
    case StatementMeaning::kNothing:
      return false;
  }
  return false;
}

class Walker {
 public:
  Walker(const ModelObject& object,
         const std::function<void(const Command&, const StateSet&)>& visit,
         const ActionText* action = nullptr)
      : object_(object), visit_(visit), action_(action) {}

  // Gives the states behind the node.
  StateSet Walk(const Command& node, StateSet states) {
    switch (node.Type()) {
      case NodeType::kAction:
        visit_(node, states);
        return Turned(*node.ActionStatement(), states);
      case NodeType::kIf:
        return WalkChoice(node, states);
      default:
        for (const Command& child : node.Children()) states = Walk(child, std::move(states));
        return states;
    }
  }

 private:
  StateSet WalkChoice(const Command& node, const StateSet& states) {
    if (action_ != nullptr) return WalkTaken(node, states);
    StateSet behind;
    bool always = false;  // some branch is taken
    for (const Command& branch : node.Children()) {
      StateSet turned = Walk(branch, states);
      behind.merge(turned);
      always = always || branch.Type() == NodeType::kBoolElse;
    }
    if (!always) behind.insert(states.begin(), states.end());
    return behind;
  }

  StateSet WalkTaken(const Command& node, const StateSet& states) {
    for (const Command& branch : node.Children()) {
      const Pattern* pattern = branch.DecidingPattern();
      const bool taken = branch.Type() == NodeType::kBoolElse ||
                         (pattern != nullptr && pattern->Matches(*action_));
      if (taken) return Walk(branch, states);
    }
    return states;
  }

  StateSet Turned(const Statement& statement, const StateSet& states) const {
    if (!LeadsToAState(statement.Meaning()) || !statement.HasArgument()) return states;
    StateSet turned;
    for (const std::string& state : states) {
      for (const std::string& next : ExpandWord(object_, statement.Argument(), {state})) {
        const ObjState* found = object_.State(next);
        turned.insert(found == nullptr ? state : found->Name());
      }
    }
    return turned.empty() ? states : turned;
  }

  const ModelObject& object_;
  const std::function<void(const Command&, const StateSet&)>& visit_;
  const ActionText* action_;  // null when every branch is walked
};

}  // namespace

void WalkScript(const ModelObject& object, const ModelScript& script, const Command& root,
                const std::function<void(const Command&, const StateSet&)>& visit) {
  Walker(object, visit).Walk(root, StatesOf(object, script));
}

StateSet WalkEvent(const ModelObject& object, const Command& root, const ActionText& action,
                   const StateSet& states,
                   const std::function<void(const Command&, const StateSet&)>& visit) {
  return Walker(object, visit, &action).Walk(root, states);
}

std::vector<std::string> ExpandWord(const ModelObject& object, const std::string& word,
                                    const StateSet& states) {
  if (word.find('<') == std::string::npos) return {word};
  const bool by_region = ContainsNoCase(word, "<currentregion>");
  const StateSet regions = by_region ? RegionsOf(object) : StateSet{""};
  std::vector<std::string> words;
  for (const std::string& state : states) {
    for (const std::string& region : regions) {
      std::string expanded;
      try {
        expanded = SubstituteTokens(word, {object.name, object.type, region, state});
      } catch (const FatalError&) {
        continue;  // a number beyond all states
      }
      const bool known = std::ranges::any_of(
          words, [&](const std::string& other) { return EqualsNoCase(other, expanded); });
      if (!known) words.push_back(expanded);
    }
  }
  return words;
}

bool CountsUp(const std::string& word) { return ContainsNoCase(word, "<incrementstate>"); }

}  // namespace quendle
