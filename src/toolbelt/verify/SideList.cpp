#include "toolbelt/verify/SideList.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "base/TextStream.h"

namespace quendle {
namespace {

std::string Comparable(std::string_view path) {
  std::string text = FoldCase(path);
  std::ranges::replace(text, '/', '\\');
  return text;
}

std::vector<std::string> Codes() {
  std::vector<std::string> codes;
  for (const CheckRow& row : CheckTable()) codes.emplace_back(row.code);
  return codes;
}

// The first word of `text`, which keeps the rest.
std::string TakeWord(std::string_view& text) {
  text = TrimBlanks(text);
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string word(text.substr(0, end));
  text = TrimBlanks(text.substr(end));
  return word;
}

}  // namespace

bool MatchesGlob(std::string_view pattern, std::string_view text) {
  std::size_t p = 0, t = 0, star = std::string_view::npos, resume = 0;
  while (t < text.size()) {
    if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == text[t]) && pattern[p] != '*') {
      ++p, ++t;
    } else if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = t;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      t = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

SideList::SideList(std::string_view text, std::string file) {
  TextReader reader{std::string(text), std::move(file)};
  while (!reader.AtEndOfStream()) {
    const std::string line = reader.ReadLine("a line");
    std::string_view rest = TrimBlanks(line);
    if (rest.empty() || rest.starts_with('#')) continue;
    const std::string code = TakeWord(rest);
    const std::string pattern = TakeWord(rest);
    const CheckRow* row = FindCheck(code);
    if (row == nullptr) {
      faults_.push_back({Check::kSideListLine, "", reader.Place(),
                         "\"" + code + "\" is no code" + DidYouMean(code, Codes()), ""});
    } else if (pattern.empty() || rest.empty()) {
      faults_.push_back({Check::kSideListLine, "", reader.Place(),
                         "a line reads CODE PATH REASON; this one has no reason", ""});
    } else {
      lines_.push_back({row, Comparable(pattern), std::string(rest), reader.Place()});
    }
  }
}

void SideList::Apply(Findings& findings) const {
  std::vector<bool> used(lines_.size(), false);
  for (Finding& finding : findings.All()) {
    const std::string file = Comparable(finding.place.file);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (lines_[i].row->check != finding.check || !MatchesGlob(lines_[i].pattern, file)) continue;
      used[i] = true;
      if (finding.silenced.empty()) finding.silenced = lines_[i].reason;
    }
  }
  for (const Finding& fault : faults_) {
    findings.Add(fault.check, fault.object, fault.place, fault.text);
  }
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (used[i]) continue;
    findings.Add(Check::kSideListIdle, "", lines_[i].place,
                 "the line silences nothing: there is no " + std::string(lines_[i].row->code) +
                     " at such a path");
  }
}

}  // namespace quendle
