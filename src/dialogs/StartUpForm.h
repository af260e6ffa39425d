#pragma once

namespace quendle {

// What the dialogs need of the start-up form, which stands above them.
class StartUpForm {
 public:
  virtual ~StartUpForm() = default;
  // Puts the start-up form back on screen.
  virtual void Show() = 0;
  // The Play action: asks what is still open, then opens the game. May end the process.
  virtual void btnNormal_Click() = 0;
  // Saves the options and ends the process: ProcessEnds.
  [[noreturn]] virtual void Unload() = 0;
  // Writes the three option files from the settings; a failed write is fatal.
  virtual void SaveOptions() = 0;
};

}  // namespace quendle
