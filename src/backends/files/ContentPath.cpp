#include "backends/files/ContentPath.h"

#include <algorithm>

#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr std::size_t kLongestPath = 4096;
// A colon is a drive letter; a NUL byte would cut the name for the system.
constexpr std::string_view kForbidden{":\0", 2};

bool IsSeparator(char c) { return kSeparators.find(c) != std::string_view::npos; }

// What stands behind the base directory; nothing for a path that isn't below it.
std::optional<std::string_view> BelowBase(std::string_view path, std::string_view base) {
  while (!base.empty() && IsSeparator(base.back())) base.remove_suffix(1);
  if (path.size() <= base.size() || !EqualsNoCase(path.substr(0, base.size()), base)) {
    return std::nullopt;
  }
  path.remove_prefix(base.size());
  if (!IsSeparator(path.front()) || IsSeparator(path.back())) return std::nullopt;
  return path;
}

}  // namespace

std::optional<ContentPath> SplitContentPath(std::string_view path,
                                            std::string_view base_directory) {
  if (path.size() > kLongestPath) return std::nullopt;
  std::optional<std::string_view> below = BelowBase(path, base_directory);
  if (!below || below->find_first_of(kForbidden) != std::string_view::npos) return std::nullopt;
  ContentPath components;
  for (std::size_t begin = 0; begin <= below->size();) {
    std::size_t end = std::min(below->find_first_of(kSeparators, begin), below->size());
    std::string_view component = below->substr(begin, end - begin);
    if (component == "..") return std::nullopt;
    if (!component.empty() && component != ".") components.emplace_back(component);
    begin = end + 1;
  }
  if (components.empty() || below->ends_with("\\.") || below->ends_with("/.")) return std::nullopt;
  return components;
}

}  // namespace quendle
