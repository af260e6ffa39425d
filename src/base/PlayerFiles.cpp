#include "base/PlayerFiles.h"

#include "base/ContentFiles.h"

namespace quendle {

std::string PlayerPath(const ContentFiles& files, const std::string& name) {
  return files.BaseDirectory() + "\\" + name;
}

void DeleteSavedGame(const ContentFiles& files) {
  for (const char* name : kKeptSaves) files.DeleteFileIfPresent(PlayerPath(files, name));
  for (const char* name :
       {kTriedFile, kDamagedSavedGameFile, kDamagedAutosaveFile, kSavedGameFile, kAutosaveFile}) {
    files.DeleteFileIfPresent(PlayerPath(files, name));
  }
}

}  // namespace quendle
