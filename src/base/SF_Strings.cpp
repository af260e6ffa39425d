#include "base/SF_Strings.h"

#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::size_t kMissing = std::string_view::npos;

std::size_t Locate(std::string_view haystack, std::string_view needle) {
  return needle.empty() ? kMissing : FindNoCase(haystack, needle);
}

}  // namespace

bool SF_isNothing(std::string_view text) { return text.empty(); }

int SF_InstrRev(std::string_view haystack, std::string_view needle) {
  if (Locate(haystack, needle) == kMissing) return 0;
  for (std::size_t start = haystack.size(); start-- > 0;) {
    if (std::size_t found = FindNoCase(haystack, needle, start); found != kMissing) {
      return static_cast<int>(found) + 1;
    }
  }
  return 0;
}

std::string SF_remove(std::string_view haystack, std::string_view needle) {
  if (Locate(haystack, needle) == kMissing) return std::string(haystack);
  return SF_splitLeft(haystack, needle) + SF_splitRight(haystack, needle);
}

std::string SF_replace(std::string_view haystack, std::string_view needle,
                       std::string_view new_needle) {
  if (Locate(haystack, needle) == kMissing || EqualsNoCase(needle, new_needle)) {
    return std::string(haystack);
  }
  return SF_splitLeft(haystack, needle).append(new_needle) + SF_splitRight(haystack, needle);
}

std::string SF_splitLeft(std::string_view haystack, std::string_view needle) {
  return std::string(haystack.substr(0, Locate(haystack, needle)));
}

std::string SF_splitRight(std::string_view haystack, std::string_view needle) {
  std::size_t found = Locate(haystack, needle);
  if (found == kMissing) return std::string(haystack);
  return std::string(haystack.substr(found + needle.size()));
}

}  // namespace quendle
