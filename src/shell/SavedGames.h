#pragma once

#include <optional>
#include <string>

namespace quendle {

class ContentFiles;

// Which saved game a start loads: the autosave, where there is one, or else the saved game. An
// orderly end removes the autosave after it has saved, so one that is there is the newer of the
// two. It stays where it is until the next one takes its place, and is given up only when it was
// itself what failed: it can't be read, or two starts in a row have failed on it with the same
// fault, and the next one, without it, goes well.
//
// Forgiving, it keeps the last three good saves as well, and goes on with one of them in place of a
// saved game that can't be read.
class SavedGames {
 public:
  struct Choice {
    std::string file;       // by name, missing for a new game
    std::string sentence;   // what the family is told; empty when all is well
    bool on_trial = false;  // the autosave is left out, to see whether it is what fails
  };

  SavedGames(const ContentFiles& files, bool forgiving) : files_(files), forgiving_(forgiving) {}

  // A file that is there and can't be opened is fatal, and so stays untouched.
  Choice Choose() const;
  // The first screen stands: judges what was on trial, and keeps what was loaded.
  void StartHasGoneWell(Choice& choice) const;
  // The start has ended with that fault, before its first screen.
  void StartHasFailed(const Choice& choice, const std::string& fault) const;
  // Keeps this file, which is good, among the last three; nothing unless forgiving.
  void KeepGood(const std::string& file) const;

 private:
  std::string PathOf(const std::string& name) const;
  // The bytes of a file that is there; one that can't be opened is fatal.
  std::optional<std::string> Open(const char* name) const;
  bool IsGood(const std::string& bytes, const char* name) const;
  // The newest kept save that can be read; nothing without one.
  std::optional<std::string> NewestKept() const;
  bool HasFailedTwice() const;
  void GiveUpAutosave() const;
  Choice ChooseInPlaceOfAutosave() const;
  Choice ChooseWithoutAutosave() const;
  Choice ChooseInPlaceOfSavedGame(const std::string& damaged) const;

  const ContentFiles& files_;
  bool forgiving_;
};

}  // namespace quendle
