#include "toolbelt/verify/ScriptWalk.h"

#include <algorithm>
#include <set>

#include "base/FatalError.h"
#include "base/Text.h"
#include "object/StatementTokens.h"

namespace quendle {
namespace {

// The states in which a script answers events; all states for one that only messages run.
std::vector<std::string> StatesOf(const ModelObject& object, const ModelScript& script) {
  std::vector<std::string> states;
  for (const ObjState& state : object.states) {
    if (EqualsNoCase(state.ScriptState(), script.name)) states.push_back(state.Name());
  }
  if (states.empty()) states = object.StateNames();
  if (states.empty()) states.emplace_back();
  return states;
}

std::set<std::string> RegionsOf(const ModelObject& object) {
  std::set<std::string> regions{""};
  for (const ModelFrame& frame : object.frames) {
    for (const Region& region : frame.regions) regions.insert(region.Name());
  }
  return regions;
}

}  // namespace

void ForEachStatement(const Command& node, const std::function<void(const Command&)>& visit) {
  if (node.Type() == NodeType::kAction) visit(node);
  for (const Command& child : node.Children()) ForEachStatement(child, visit);
}

std::vector<ExpandedWord> ExpandWord(const ModelObject& object, const ModelScript& script,
                                     const std::string& word) {
  if (word.find('<') == std::string::npos) return {{word, false}};
  const bool counts_up = ContainsNoCase(word, "<incrementstate>");
  const bool by_region = ContainsNoCase(word, "<currentregion>");
  std::vector<ExpandedWord> words;
  for (const std::string& state : StatesOf(object, script)) {
    for (const std::string& region : by_region ? RegionsOf(object) : std::set<std::string>{""}) {
      std::string expanded;
      try {
        expanded = SubstituteTokens(word, {object.name, object.type, region, state});
      } catch (const FatalError&) {
        continue;  // a number beyond all states
      }
      const bool known = std::ranges::any_of(
          words, [&](const ExpandedWord& other) { return EqualsNoCase(other.word, expanded); });
      if (!known) words.push_back({expanded, counts_up});
    }
  }
  return words;
}

}  // namespace quendle
