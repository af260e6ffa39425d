#include "screens/ScreenNames.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"

namespace quendle {

bool IsLayer(std::string_view screen) {
  return EqualsNoCase(screen, kToolsScreenName) || EqualsNoCase(screen, kCursorsScreenName);
}

bool IsTutorial(std::string_view screen) { return ContainsNoCase(screen, kTutorialWord); }

bool IsNeverSaved(std::string_view screen) {
  return std::any_of(std::begin(kUnsavedWords), std::end(kUnsavedWords),
                     [&](std::string_view word) { return ContainsNoCase(screen, word); });
}

}  // namespace quendle
