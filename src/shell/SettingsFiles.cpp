#include "shell/SettingsFiles.h"

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"
#include "base/Settings.h"
#include "base/Text.h"

namespace quendle {

void SettingsFiles::ReadOptions() {
  const std::string personalize = OptionalLine(kPersonalizeFile).value_or("");
  settings_.PersonalizeOn = EqualsNoCase(personalize, "on");

  const std::string level = OptionalLine(kDifficultyLevelFile).value_or("");
  settings_.DifficultyLevel = "normal";
  for (const char* known : {"Easy", "Hard"}) {
    if (EqualsNoCase(level, known)) settings_.DifficultyLevel = known;
  }

  settings_.GraphicsMode = OptionalLine(kGraphicsModeFile).value_or("") == "16" ? 16 : 32;
}

void SettingsFiles::SaveOptions() {
  files_.WriteOneLine(PathOf(kPersonalizeFileWritten), settings_.PersonalizeOn ? "On" : "Off");
  files_.WriteOneLine(PathOf(kGraphicsModeFile), settings_.GraphicsMode == 32 ? "32" : "16");
  std::string level = "Normal";
  for (const char* known : {"Easy", "Hard"}) {
    if (EqualsNoCase(settings_.DifficultyLevel, known)) level = known;
  }
  files_.WriteOneLine(PathOf(kDifficultyLevelFile), level);
}

void SettingsFiles::ReadGameMode() {
  const std::optional<std::string> mode = RequiredLine(kGameModeFile, "the game mode");
  if (!mode) files_.WriteOneLine(PathOf(kGameModeFile), "Normal");
  if (EqualsNoCase(mode.value_or("Normal"), "Safe")) settings_.SafeMode = true;
}

bool SettingsFiles::DialogModeExists() const {
  return files_.FileExistsAt(PathOf(kDialogModeFile));
}

bool SettingsFiles::GameRunningIsOn() const {
  return EqualsNoCase(RequiredLine(kGameRunningFile, "the word On or Off").value_or(""), "on");
}

void SettingsFiles::WriteGameRunning(bool on) {
  files_.WriteOneLine(PathOf(kGameRunningFile), on ? "On" : "Off");
}

std::string SettingsFiles::PathOf(const std::string& name) const {
  return PlayerPath(files_, name);
}

std::optional<std::string> SettingsFiles::OptionalLine(const std::string& name) const {
  auto stream = files_.OpenPlayerFile(PathOf(name));
  if (stream == nullptr || stream->AtEndOfStream()) return std::nullopt;
  return stream->ReadLine(name);
}

std::optional<std::string> SettingsFiles::RequiredLine(const std::string& name,
                                                       const std::string& expected) const {
  auto stream = files_.OpenPlayerFile(PathOf(name));
  if (stream == nullptr) return std::nullopt;
  return stream->ReadLine(expected);
}

}  // namespace quendle
