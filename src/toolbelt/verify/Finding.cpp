#include "toolbelt/verify/Finding.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "base/Text.h"

namespace quendle {

void Findings::Add(Check check, std::string object, FilePlace place, std::string text) {
  if (!known_.emplace(check, FoldCase(place.file), place.line, text).second) return;
  findings_.push_back({check, std::move(object), std::move(place), std::move(text), ""});
}

void Findings::Sort(const std::vector<std::string>& objects) {
  std::map<std::string, std::size_t> order{{"", 0}};
  for (const std::string& object : objects) order.try_emplace(object, order.size());
  for (const Finding& finding : findings_) order.try_emplace(finding.object, order.size());
  std::ranges::stable_sort(findings_, {}, [&order](const Finding& finding) {
    return std::tuple(order[finding.object], FoldCase(finding.place.file), finding.place.line,
                      finding.check);
  });
}

}  // namespace quendle
