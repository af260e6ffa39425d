#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "script/ActionText.h"

namespace quendle {

// All action texts of a run, each made once. Content has few: cursors times events times regions.
class ActionTable {
 public:
  // The text, case respected; valid as long as the table.
  const ActionText& Get(std::string_view text);

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>()(text);
    }
  };
  std::unordered_map<std::string, std::unique_ptr<ActionText>, Hash, std::equal_to<>> texts_;
};

}  // namespace quendle
