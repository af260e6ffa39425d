#include "logic/MenuVerbs.h"

#include "base/Text.h"

namespace quendle {

MenuVerb MenuVerbOf(std::string_view message) {
  return ContainsNoCase(message, "scorevalue") ? MenuVerb::kScore : MenuVerb::kInner;
}

}  // namespace quendle
