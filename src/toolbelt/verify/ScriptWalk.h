#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolbelt/verify/ContentModel.h"

namespace quendle {

// Calls `visit` for every statement of a script, in source order.
void ForEachStatement(const Command& node, const std::function<void(const Command&)>& visit);

// A word of a statement as one of the object's states makes it.
struct ExpandedWord {
  std::string word;
  bool counts_up = false;  // made by "<incrementstate>", which may pass the last state
};

// All that the second word of a statement can become: tokens stand for the object, for each state
// in which the script runs, and for each region. One word where it holds no token.
std::vector<ExpandedWord> ExpandWord(const ModelObject& object, const ModelScript& script,
                                     const std::string& word);

}  // namespace quendle
