#include "logic/ScreenVerbs.h"

#include "base/FirstFit.h"
#include "screens/ScreenNames.h"

namespace quendle {
namespace {

constexpr FitRow<ScreenVerb> kRows[] = {
    {Fit::kHolds, "addglobalobj", ScreenVerb::kAddGlobalObj},
    {Fit::kIs, "inctoolcounter", ScreenVerb::kScrollOn},
    {Fit::kIs, "dectoolcounter", ScreenVerb::kScrollBack},
};

// Behind the rows for all screens and behind what climbs.
constexpr FitRow<ScreenVerb> kBarRows[] = {
    {Fit::kHolds, "removeallchildren", ScreenVerb::kRemoveAll},
    {Fit::kHolds, "removechildren", ScreenVerb::kRemoveMost},
    {Fit::kHolds, "addchild?", ScreenVerb::kAnswerOffer},
};

bool SpeaksOfTools(std::string_view message) {
  return ContainsNoCase(message, "tool") && !ContainsNoCase(message, "removeobj") &&
         !ContainsNoCase(message, "runscript") && !ContainsNoCase(message, "toobj");
}

}  // namespace

ScreenVerb ScreenVerbOf(std::string_view message, std::string_view screen_name) {
  const ScreenVerb verb = FirstFit(kRows, message, ScreenVerb::kInner);
  if (verb != ScreenVerb::kInner) return verb;
  if (SpeaksOfTools(message) || ContainsNoCase(message, "subgame")) return ScreenVerb::kClimb;
  if (!EqualsNoCase(screen_name, kToolsScreenName)) return ScreenVerb::kInner;
  return FirstFit(kBarRows, message, ScreenVerb::kInner);
}

}  // namespace quendle
