// The three difficulty radio buttons, which two dialogs show under different texts.
#pragma once

#include <string>

#include "platform/Form.h"

namespace quendle {

// Sets optEasy for "Easy", optHard for "Hard" and optMedium for every other word, case ignored.
void ShowDifficulty(Form& form, const std::string& level);

// "Easy", "Hard" or "Normal", as the radio buttons stand.
std::string ChosenDifficulty(Form& form);

}  // namespace quendle
