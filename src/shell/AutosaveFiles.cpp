#include "shell/AutosaveFiles.h"

#include "base/ContentFiles.h"

namespace quendle {
namespace {

constexpr const char* kSavedGame = "userdata.txt";
constexpr const char* kAutosave = "autosave.txt";
constexpr const char* kSetAside = "autosave-tried.txt";

}  // namespace

std::string AutosaveFiles::PathOf(const char* name) const {
  return files_.BaseDirectory() + "\\" + name;
}

std::string AutosaveFiles::ChooseSavedGame(bool last_run_ended_in_order) const {
  if (last_run_ended_in_order || !files_.FileExistsAt(PathOf(kAutosave))) return kSavedGame;
  files_.CopyFile(PathOf(kAutosave), PathOf(kSetAside));
  files_.DeleteFileIfPresent(PathOf(kAutosave));
  return kSetAside;
}

bool AutosaveFiles::IsSetAside(const std::string& chosen) { return chosen == kSetAside; }

void AutosaveFiles::ForgetSetAside() const { files_.DeleteFileIfPresent(PathOf(kSetAside)); }

}  // namespace quendle
