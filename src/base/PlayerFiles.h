#pragma once

#include <array>
#include <string>

namespace quendle {

class ContentFiles;

// The files that play leaves in the application's folder, by name. Case is ignored; where
// the option is first written, its file is made in small letters.
inline constexpr const char* kSavedGameFile = "userdata.txt";
inline constexpr const char* kAutosaveFile = "autosave.txt";
inline constexpr const char* kHelpMemoryFile = "HelpSys.txt";
inline constexpr const char* kGameRunningFile = "GameRunning.txt";
inline constexpr const char* kGameModeFile = "GameMode.txt";
inline constexpr const char* kPersonalizeFile = "Personalize.txt";
inline constexpr const char* kPersonalizeFileWritten = "personalize.txt";
inline constexpr const char* kDifficultyLevelFile = "DifficultyLevel.txt";
inline constexpr const char* kGraphicsModeFile = "GraphicsMode.txt";
inline constexpr const char* kDialogModeFile = "DialogMode.txt";
inline constexpr const char* kEventLogFile = "general.txt";

// The last saves, the newest first, and what was set aside because it couldn't be read.
inline constexpr std::array kKeptSaves = {"userdata.txt.1", "userdata.txt.2", "userdata.txt.3"};
inline constexpr const char* kDamagedSavedGameFile = "userdata-damaged.txt";
inline constexpr const char* kDamagedAutosaveFile = "autosave-damaged.txt";
// On which fault starts with the autosave have failed.
inline constexpr const char* kTriedFile = "autosave-tried.txt";

// All that a run reads at its start.
inline constexpr std::array kPlayerFiles = {
    kSavedGameFile,   kAutosaveFile,        kHelpMemoryFile,   kGameRunningFile, kGameModeFile,
    kPersonalizeFile, kDifficultyLevelFile, kGraphicsModeFile, kDialogModeFile};

// The full path of one of them.
std::string PlayerPath(const ContentFiles& files, const std::string& name);

// The reset of a game: deletes the saved game, and the autosave as well, or the next start would
// bring the old game back; so with what was kept of older saves. A file that can't be deleted is
// fatal.
void DeleteSavedGame(const ContentFiles& files);

}  // namespace quendle
