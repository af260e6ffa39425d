// What a screen means to the rules of the game, by its name.
#pragma once

#include <optional>
#include <string_view>

#include "object/DoctorStates.h"

namespace quendle {

// The tool bar is in view with it.
bool ShowsToolBar(std::string_view screen);

// A screen where the doctor helps once in a game, the first time it is entered.
enum class HelpPlace { kMedicalBook, kPatientRoom, kToolRoom, kElevator };

// No name is of two kinds.
std::optional<HelpPlace> HelpPlaceOf(std::string_view screen);
// What the doctor says there.
DoctorState HelpAt(HelpPlace place);

}  // namespace quendle
