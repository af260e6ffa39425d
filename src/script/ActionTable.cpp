#include "script/ActionTable.h"

#include <utility>

namespace quendle {

const ActionText& ActionTable::Get(std::string_view text) {
  auto found = texts_.find(text);
  if (found == texts_.end()) {
    std::unique_ptr<ActionText> made(new ActionText(text, this));
    found = texts_.emplace(std::string(text), std::move(made)).first;
  }
  return *found->second;
}

}  // namespace quendle
