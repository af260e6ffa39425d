#pragma once

#include <array>
#include <string>
#include <string_view>

namespace quendle {

// The name of the object that speaks for the game.
inline constexpr std::string_view kDoctorName = "doctor";

// The states in which the game itself lets the doctor speak; all of them pass.
enum class DoctorState {
  kTryAgain,   // a patient was hurt on Easy
  kStartOver,  // a patient was hurt
  kAlreadyHaveOne,
  kTooMany,
  kHelpToolItem,
  kHelpMedicalBook,
  kHelpElevator,
  kHelpToolRoom,
  kHelpPatientRoom
};

inline constexpr std::array kDoctorStates = {
    DoctorState::kTryAgain,     DoctorState::kStartOver,    DoctorState::kAlreadyHaveOne,
    DoctorState::kTooMany,      DoctorState::kHelpToolItem, DoctorState::kHelpMedicalBook,
    DoctorState::kHelpElevator, DoctorState::kHelpToolRoom, DoctorState::kHelpPatientRoom,
};

// The name of the state.
const char* NameOf(DoctorState state);
// The message that leads the doctor there.
std::string MessageTo(DoctorState state);

}  // namespace quendle
