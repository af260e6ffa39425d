#include "shell/SettingsFiles.h"

#include "base/ContentFiles.h"
#include "base/Settings.h"
#include "base/Text.h"

namespace quendle {

void SettingsFiles::ReadOptions() {
  const std::string personalize = OptionalLine("Personalize.txt").value_or("");
  settings_.PersonalizeOn = EqualsNoCase(personalize, "on");

  const std::string level = OptionalLine("DifficultyLevel.txt").value_or("");
  settings_.DifficultyLevel = "normal";
  for (const char* known : {"Easy", "Hard"}) {
    if (EqualsNoCase(level, known)) settings_.DifficultyLevel = known;
  }

  settings_.GraphicsMode = OptionalLine("GraphicsMode.txt").value_or("") == "16" ? 16 : 32;
}

void SettingsFiles::SaveOptions() {
  files_.WriteOneLine(PathOf("personalize.txt"), settings_.PersonalizeOn ? "On" : "Off");
  files_.WriteOneLine(PathOf("GraphicsMode.txt"), settings_.GraphicsMode == 32 ? "32" : "16");
  std::string level = "Normal";
  for (const char* known : {"Easy", "Hard"}) {
    if (EqualsNoCase(settings_.DifficultyLevel, known)) level = known;
  }
  files_.WriteOneLine(PathOf("DifficultyLevel.txt"), level);
}

void SettingsFiles::ReadGameMode() {
  const std::string path = PathOf("GameMode.txt");
  if (!files_.FileExistsAt(path)) files_.WriteOneLine(path, "Normal");
  if (EqualsNoCase(RequiredLine("GameMode.txt", "the game mode"), "Safe")) {
    settings_.SafeMode = true;
  }
}

bool SettingsFiles::DialogModeExists() const {
  return files_.FileExistsAt(PathOf("DialogMode.txt"));
}

bool SettingsFiles::GameRunningIsOn() const {
  if (!files_.FileExistsAt(PathOf("GameRunning.txt"))) return false;
  return EqualsNoCase(RequiredLine("GameRunning.txt", "the word On or Off"), "on");
}

bool SettingsFiles::LastRunEndedInOrder() const {
  return !EqualsNoCase(OptionalLine("GameRunning.txt").value_or(""), "on");
}

void SettingsFiles::WriteGameRunning(bool on) {
  files_.WriteOneLine(PathOf("GameRunning.txt"), on ? "On" : "Off");
}

std::string SettingsFiles::PathOf(const std::string& name) const {
  return settings_.BaseDirectory + "\\" + name;
}

std::optional<std::string> SettingsFiles::OptionalLine(const std::string& name) const {
  if (!files_.FileExistsAt(PathOf(name))) return std::nullopt;
  auto stream = files_.OpenTextFileChecked(PathOf(name), OpenMode::kRead, false);
  if (stream->AtEndOfStream()) return std::nullopt;
  return stream->ReadLine(name);
}

std::string SettingsFiles::RequiredLine(const std::string& name,
                                        const std::string& expected) const {
  return files_.OpenTextFileChecked(PathOf(name), OpenMode::kRead, false)->ReadLine(expected);
}

}  // namespace quendle
