#include "screens/ScreenNames.h"

#include <algorithm>

#include "base/Text.h"

namespace quendle {

bool IsLayer(std::string_view screen) {
  return EqualsNoCase(screen, kToolsScreenName) || EqualsNoCase(screen, kCursorsScreenName);
}

bool IsTutorial(std::string_view screen) { return ContainsNoCase(screen, kTutorialWord); }

bool IsNeverSaved(std::string_view screen) {
  return std::ranges::any_of(kUnsavedWords,
                             [&](std::string_view word) { return ContainsNoCase(screen, word); });
}

}  // namespace quendle
