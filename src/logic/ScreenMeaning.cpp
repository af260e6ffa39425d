#include "logic/ScreenMeaning.h"

#include "base/Text.h"

namespace quendle {

bool ShowsToolBar(std::string_view screen) {
  return ContainsNoCase(screen, "hall") || ContainsNoCase(screen, "room");
}

std::optional<HelpPlace> HelpPlaceOf(std::string_view screen) {
  const auto holds = [&](std::string_view word) { return ContainsNoCase(screen, word); };
  if (EqualsNoCase(screen, "floor1hall1")) return HelpPlace::kMedicalBook;
  if (EqualsNoCase(screen, "elevator")) return HelpPlace::kElevator;
  if (holds("empty")) {
    return holds("general") ? std::nullopt : std::optional(HelpPlace::kToolRoom);
  }
  if (holds("hall") || holds("elevator") || holds("screen")) return std::nullopt;
  return HelpPlace::kPatientRoom;
}

DoctorState HelpAt(HelpPlace place) {
  switch (place) {
    case HelpPlace::kMedicalBook:
      return DoctorState::kHelpMedicalBook;
    case HelpPlace::kPatientRoom:
      return DoctorState::kHelpPatientRoom;
    case HelpPlace::kToolRoom:
      return DoctorState::kHelpToolRoom;
    case HelpPlace::kElevator:
      return DoctorState::kHelpElevator;
  }
  return DoctorState::kHelpPatientRoom;
}

}  // namespace quendle
