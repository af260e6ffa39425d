#pragma once

#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "base/FatalError.h"
#include "toolbelt/verify/CheckTable.h"

namespace quendle {

// One thing that `quendle verify` found.
struct Finding {
  Check check;
  std::string object;  // "dogroom/dog", or empty for what belongs to no object
  FilePlace place;     // as the game names the file: parted by backslashes, 8-bit
  std::string text;
  std::string silenced;  // the reason of the side list; empty for a finding that counts
};

// Collects findings. The same text at the same place counts once, whatever object came upon it.
class Findings {
 public:
  void Add(Check check, std::string object, FilePlace place, std::string text);
  std::vector<Finding>& All() { return findings_; }
  const std::vector<Finding>& All() const { return findings_; }
  // Objects in that order, those without an object first; within each by file, line and code.
  void Sort(const std::vector<std::string>& objects);

 private:
  std::vector<Finding> findings_;
  // Check, folded file, line and text of each: a tree can have hundreds of thousands.
  std::set<std::tuple<Check, std::string, int, std::string>> known_;
};

}  // namespace quendle
