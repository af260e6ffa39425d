#include "shell/SavedGames.h"

#include <string_view>
#include <utility>

#include "base/ContentFiles.h"
#include "base/FatalError.h"
#include "base/PlayerFiles.h"
#include "base/TextStream.h"
#include "base/WorkDepth.h"
#include "screens/ScreenKeeper.h"

namespace quendle {
namespace {

constexpr const char* kEndIsLost =
    "The end of the last game could not be read, so the game goes on a little earlier.";
constexpr const char* kSaveIsLost =
    "The saved game could not be read, so the game goes on from the one that was saved before it.";

// How often starts have failed on the autosave, behind the line of their fault.
constexpr std::string_view kOnce = "once\r\n";
constexpr std::string_view kTwice = "twice\r\n";

}  // namespace

SavedGames::Choice SavedGames::Choose() const {
  const std::optional<std::string> autosave = Open(kAutosaveFile);
  if (!autosave) return ChooseWithoutAutosave();
  if (IsGood(*autosave, kAutosaveFile)) {
    if (!HasFailedTwice()) return {kAutosaveFile, ""};
    Choice choice = ChooseInPlaceOfAutosave();
    choice.on_trial = true;
    return choice;
  }
  GiveUpAutosave();
  Choice choice = ChooseInPlaceOfAutosave();
  choice.sentence = kEndIsLost;
  return choice;
}

SavedGames::Choice SavedGames::ChooseInPlaceOfAutosave() const {
  // The newest kept save was good when the lost game began or ended: it isn't older than the saved
  // game.
  if (std::optional<std::string> kept = NewestKept()) return {*kept, ""};
  return ChooseWithoutAutosave();
}

SavedGames::Choice SavedGames::ChooseWithoutAutosave() const {
  if (!forgiving_) return {kSavedGameFile, ""};
  const std::optional<std::string> saved = Open(kSavedGameFile);
  if (!saved || IsGood(*saved, kSavedGameFile)) return {kSavedGameFile, ""};
  return ChooseInPlaceOfSavedGame(*saved);
}

SavedGames::Choice SavedGames::ChooseInPlaceOfSavedGame(const std::string& damaged) const {
  const std::optional<std::string> kept = NewestKept();
  if (!kept) return {kSavedGameFile, ""};
  if (files_.TryWrite(PathOf(kDamagedSavedGameFile), damaged)) {
    if (const FileAnswer good = files_.Read(PathOf(*kept))) {
      files_.TryWrite(PathOf(kSavedGameFile), *good);
    }
  }
  return {*kept, kSaveIsLost};
}

void SavedGames::StartHasGoneWell(Choice& choice) const {
  if (choice.on_trial) {
    GiveUpAutosave();
    choice.sentence = kEndIsLost;
  }
  files_.TryDelete(PathOf(kTriedFile));
  KeepGood(choice.file);
}

void SavedGames::StartHasFailed(const Choice& choice, const std::string& fault) const {
  if (choice.on_trial) files_.TryDelete(PathOf(kTriedFile));
  if (choice.file != kAutosaveFile) return;
  std::string line = fault.substr(0, fault.find_first_of("\r\n")) + "\r\n";
  const bool again = files_.Read(PathOf(kTriedFile)).value_or("").starts_with(line);
  files_.TryWrite(PathOf(kTriedFile), line.append(again ? kTwice : kOnce));
}

bool SavedGames::HasFailedTwice() const {
  return files_.Read(PathOf(kTriedFile)).value_or("").ends_with(kTwice);
}

void SavedGames::KeepGood(const std::string& file) const {
  if (!forgiving_) return;
  const FileAnswer good = files_.Read(PathOf(file));
  if (!good || files_.Read(PathOf(kKeptSaves.front())) == *good) return;
  // From the oldest on, so that a stop in between loses none.
  for (std::size_t i = kKeptSaves.size() - 1; i > 0; --i) {
    const FileAnswer newer = files_.Read(PathOf(kKeptSaves[i - 1]));
    if (newer && !files_.TryWrite(PathOf(kKeptSaves[i]), *newer)) return;
  }
  files_.TryWrite(PathOf(kKeptSaves.front()), *good);
}

void SavedGames::GiveUpAutosave() const {
  const FileAnswer autosave = files_.Read(PathOf(kAutosaveFile));
  if (!autosave || !files_.TryWrite(PathOf(kDamagedAutosaveFile), *autosave)) return;
  files_.TryDelete(PathOf(kAutosaveFile));
}

std::optional<std::string> SavedGames::NewestKept() const {
  if (!forgiving_) return std::nullopt;
  for (const char* name : kKeptSaves) {
    const FileAnswer kept = files_.Read(PathOf(name));
    if (kept && IsGood(*kept, name)) return name;
  }
  return std::nullopt;
}

std::string SavedGames::PathOf(const std::string& name) const { return PlayerPath(files_, name); }

std::optional<std::string> SavedGames::Open(const char* name) const {
  return files_.ReadPlayerFile(PathOf(name));
}

// The one place beside the outermost frame that catches a fault: a trial reading, whose result is
// thrown away.
bool SavedGames::IsGood(const std::string& bytes, const char* name) const {
  TextReader stream(bytes, name);
  WorkDepth depth;
  GameObjectMemento::List list{"saved screen"};
  try {
    ScreenKeeper::ReadSavedGame(stream, depth, list);
    return true;
  } catch (const FatalError& error) {
    files_.NoteDamage(error.what());
    return false;
  }
}

}  // namespace quendle
