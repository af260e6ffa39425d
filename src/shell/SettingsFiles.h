#pragma once

#include <optional>
#include <string>

namespace quendle {

class ContentFiles;
struct Settings;

// The six settings files in the application's folder. Each holds one line; words and file names
// are compared without regard to case. A file that is there and can't be read is fatal.
class SettingsFiles {
 public:
  // Both must outlive this object.
  SettingsFiles(ContentFiles& files, Settings& settings) : files_(files), settings_(settings) {}

  // Reads "Personalize.txt", "DifficultyLevel.txt" and "GraphicsMode.txt". A file that is missing
  // or empty, or another word, gives the default: off, "normal", 32.
  void ReadOptions();

  // Writes the three from the settings. As all files written here, one that the disk refuses is
  // kept in memory and tried again.
  void SaveOptions();

  // Sets SafeMode if "GameMode.txt" says "Safe", and never clears it; a missing file is made first.
  // An empty one is fatal.
  void ReadGameMode();

  // True if the difficulty question has been answered.
  bool DialogModeExists() const;

  // True if "GameRunning.txt" says that the last run did not end in order. A missing file is a
  // clean end, an empty one is fatal.
  bool GameRunningIsOn() const;

  // Marks the run as going on ("On") or ended in order ("Off").
  void WriteGameRunning(bool on);

 private:
  std::string PathOf(const std::string& name) const;
  // The first line; nothing when the file is missing or empty.
  std::optional<std::string> OptionalLine(const std::string& name) const;
  // The first line; nothing when the file is missing, and an empty one is fatal.
  std::optional<std::string> RequiredLine(const std::string& name,
                                          const std::string& expected) const;

  ContentFiles& files_;
  Settings& settings_;
};

}  // namespace quendle
