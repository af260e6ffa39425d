#pragma once

#include <cstdint>
#include <string>

namespace quendle {

// The settings words of one run.
struct Settings {
  std::int16_t GameEdition = 2;  // 1 is the sibling edition
  std::string ProductName = "Wumbly";
  bool PersonalizeOn = false;
  bool SafeMode = false;
  std::string DifficultyLevel = "normal";  // "Easy", "Hard", "normal" or "Normal"; case ignored
  std::int16_t GraphicsMode = 32;          // colour depth asked for, 16 or 32
  bool FullIllnessScripts = true;
  // The application's folder, without a separator at its end.
  std::string BaseDirectory;

  std::string WebAddress = "https://www.quendle.example/wumbly";
  std::string SupportAddress = "support@quendle.example";
};

}  // namespace quendle
