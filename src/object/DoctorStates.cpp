#include "object/DoctorStates.h"

namespace quendle {

const char* NameOf(DoctorState state) {
  switch (state) {
    case DoctorState::kTryAgain:
      return "tryagain";
    case DoctorState::kStartOver:
      return "startover";
    case DoctorState::kAlreadyHaveOne:
      return "alreadyhaveone";
    case DoctorState::kTooMany:
      return "toomany";
    case DoctorState::kHelpToolItem:
      return "helptoolitem";
    case DoctorState::kHelpMedicalBook:
      return "helpmedicalbook";
    case DoctorState::kHelpElevator:
      return "helpelevator";
    case DoctorState::kHelpToolRoom:
      return "helptoolroom";
    case DoctorState::kHelpPatientRoom:
      return "helppatientroom";
  }
  return "";
}

std::string MessageTo(DoctorState state) {
  return "toobj_" + std::string(kDoctorName) + "_runstate_" + NameOf(state);
}

}  // namespace quendle
