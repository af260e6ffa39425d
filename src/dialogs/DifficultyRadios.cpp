#include "dialogs/DifficultyRadios.h"

#include "base/Text.h"
#include "dialogs/FormLayout.h"

namespace quendle {

void ShowDifficulty(Form& form, const std::string& level) {
  if (EqualsNoCase(level, "Easy")) {
    SetRadio(form, "optEasy");
  } else if (EqualsNoCase(level, "Hard")) {
    SetRadio(form, "optHard");
  } else {
    SetRadio(form, "optMedium");
  }
}

std::string ChosenDifficulty(Form& form) {
  if (IsSet(form, "optEasy")) return "Easy";
  if (IsSet(form, "optHard")) return "Hard";
  return "Normal";
}

}  // namespace quendle
