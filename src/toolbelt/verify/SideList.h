#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolbelt/verify/Finding.h"

namespace quendle {

// The author's list of findings that are meant: one line each, CODE PATH REASON. The path is that
// of the finding, with "*" for any letters and "?" for one; case and the kind of slash don't
// matter. A line that begins with "#" is a comment.
class SideList {
 public:
  // `text` is the whole list, `file` its name in findings.
  SideList(std::string_view text, std::string file);

  // Marks the findings that the list silences; tells of lines that are wrong or silence nothing.
  void Apply(Findings& findings) const;

 private:
  struct Line {
    const CheckRow* row;
    std::string pattern;  // in small letters, parted by backslashes
    std::string reason;
    FilePlace place;
  };
  std::vector<Line> lines_;
  std::vector<Finding> faults_;
};

// True if `pattern` fits the whole of `text`: "*" takes any letters, "?" one.
bool MatchesGlob(std::string_view pattern, std::string_view text);

}  // namespace quendle
