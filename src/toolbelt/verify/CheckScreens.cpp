#include <algorithm>

#include "base/Text.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

bool HoldsPatient(const ModelObject& screen) {
  return std::ranges::any_of(screen.children, [](const ModelChild& child) {
    return child.object != nullptr && child.object->IsType("patient") &&
           !child.object->IsNamed("doctor");
  });
}

bool HoldsAny(const std::string& name, std::initializer_list<std::string_view> words) {
  return std::ranges::any_of(words, [&](std::string_view w) { return ContainsNoCase(name, w); });
}

void CheckName(const CheckContext& context, const ModelObject& screen) {
  const std::string& name = screen.name;
  const auto tell = [&](Check check, const std::string& text) {
    context.Tell(check, screen, screen.name_place, "the screen \"" + name + "\" " + text);
  };
  const bool patient = HoldsPatient(screen);
  const bool bar = HoldsAny(name, {"hall", "room"});
  if (!patient && screen.children_known &&
      !HoldsAny(name, {"empty", "hall", "elevator", "screen"})) {
    tell(Check::kNoPatient, "is a patient's room by its name and has no patient");
  }
  if (patient && !bar) tell(Check::kNoBar, "has a patient and, by its name, no tool bar");
  if (screen.IsType("subgame")) {
    if (bar) tell(Check::kBarOverGame, "is an arcade game and, by its name, has the tool bar");
    return;  // never saved anyway
  }
  for (const char* word : {"tutorial", "cursors", "square", "shooter"}) {
    // A tutorial is meant to begin anew.
    if (!ContainsNoCase(name, word) || FindNoCase(name, "tutorial") == 0) continue;
    tell(Check::kNotSaved, std::string("holds \"") + word + "\", and such a screen isn't saved");
  }
}

}  // namespace

void CheckScreens(const CheckContext& context) {
  const std::set<std::string> reached = context.flow.ReachableScreens();
  for (const ModelObjectRef& screen : context.model.screens) {
    if (screen->IsNamed("tools") || screen->IsNamed("cursors")) continue;
    CheckName(context, *screen);
    if (reached.contains(FoldCase(screen->name))) continue;
    context.Tell(Check::kUnreachable, *screen, screen->name_place,
                 "no message leads from \"introscreen\" to \"" + screen->name + "\"");
  }
}

}  // namespace quendle
