#include "shell/AutosaveFiles.h"

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"

namespace quendle {
namespace {

constexpr const char* kSetAside = "autosave-tried.txt";

}  // namespace

std::string AutosaveFiles::ChooseSavedGame(bool last_run_ended_in_order) const {
  if (last_run_ended_in_order || !files_.FileExistsAt(PlayerPath(files_, kAutosaveFile)))
    return kSavedGameFile;
  files_.CopyFile(PlayerPath(files_, kAutosaveFile), PlayerPath(files_, kSetAside));
  files_.DeleteFileIfPresent(PlayerPath(files_, kAutosaveFile));
  return kSetAside;
}

bool AutosaveFiles::IsSetAside(const std::string& chosen) { return chosen == kSetAside; }

void AutosaveFiles::ForgetSetAside() const {
  files_.DeleteFileIfPresent(PlayerPath(files_, kSetAside));
}

}  // namespace quendle
