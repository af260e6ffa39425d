#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "toolbelt/verify/ContentModel.h"

namespace quendle {

class ActionText;

// States in which an object can be.
using StateSet = std::set<std::string>;

// Calls `visit` for every statement of a script, in source order, with the states in which the
// object can be when it runs: those that name the script, as `change` and `runstate` above have
// turned them.
void WalkScript(const ModelObject& object, const ModelScript& script, const Command& root,
                const std::function<void(const Command&, const StateSet&)>& visit);

// The same for the statements that one event runs: of each choice the branch that `action` takes.
// `states` are those in which the object can be when the event comes; gives those behind it.
StateSet WalkEvent(const ModelObject& object, const Command& root, const ActionText& action,
                   const StateSet& states,
                   const std::function<void(const Command&, const StateSet&)>& visit);

// All that the second word of a statement can become: tokens stand for the object, for each of the
// states, and for each region. One word where it holds no token.
std::vector<std::string> ExpandWord(const ModelObject& object, const std::string& word,
                                    const StateSet& states);

// True for a word that may lead past the last state: the object then stays where it is.
bool CountsUp(const std::string& word);

}  // namespace quendle
