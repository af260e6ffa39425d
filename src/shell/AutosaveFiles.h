#pragma once

#include <string>

namespace quendle {

class ContentFiles;

// The autosave of a run that didn't end in order, beside the saved game.
//
// It is loaded once: ChooseSavedGame sets it aside before it is tried, so that a start that fails
// on it is followed by one without it.
class AutosaveFiles {
 public:
  explicit AutosaveFiles(const ContentFiles& files) : files_(files) {}

  // The file that the game loads: the autosave of a run that didn't end in order, set aside under
  // another name, or else the saved game.
  std::string ChooseSavedGame(bool last_run_ended_in_order) const;
  // Whether the chosen file is an autosave.
  static bool IsSetAside(const std::string& chosen);
  // The start went well and has made an autosave of its own: the one set aside is needed no more.
  void ForgetSetAside() const;

 private:
  const ContentFiles& files_;
};

}  // namespace quendle
