#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "dialogs/PictureForm.h"
#include "dialogs/StartUpForm.h"
#include "shell/SettingsFiles.h"

namespace quendle {

class Boxes;
class GameStarter;
class frmDifficultyMenu;
class frmOptionsMenu;
class frmSafeMode;
class frmSelectPicture;
struct Ports;

// The start-up form: tests that the game may run, reads the settings files, offers Play,
// Personalize, Options and links, and opens the game. It works in the application's folder, so
// Settings::BaseDirectory must be set before Load. Leaving it throws ProcessEnds{false}.
class TandrelPrompt : public PictureForm, public StartUpForm {
 public:
  // `edition` is 2 for the product itself and 1 for its sibling. All references outlive the form.
  TandrelPrompt(FormServices services, Ports& ports, GameStarter& starter, std::int16_t edition);
  ~TandrelPrompt() override;

  // From process start to the waiting form, or to the question after a crash. Throws ProcessEnds
  // when another instance runs or the player declines an old system.
  void Load();

  // The window is destroyed without being asked to close: saves the options and ends the process.
  [[noreturn]] void Unload() override;

  void Show() override;
  void btnNormal_Click() override;
  void SaveOptions() override;
  void QueryClose() override { Unload(); }

  // Highlights the button of an odd index, a negative odd one clears; an even one is ignored.
  void SetButtonHighlight(std::int16_t index);

  SettingsFiles& Files() { return settings_files_; }

 private:
  void BuildForm();
  void ChooseEdition();
  void EndIfAnotherInstanceRuns();
  void AskAboutOldSystem();
  void AskAfterCrash();
  void SyncOptionsDialog();
  void ShowOptionsDialog();
  void ShowPersonalizeDialog();
  void ShowDifficultyDialog();
  void processGameState(std::string_view mode);

  Ports& ports_;
  Boxes& boxes_;
  GameStarter& starter_;
  std::int16_t edition_;
  SettingsFiles settings_files_;
  // Made on first use, kept until the run ends.
  std::unique_ptr<frmOptionsMenu> options_;
  std::unique_ptr<frmDifficultyMenu> difficulty_;
  std::unique_ptr<frmSafeMode> safe_mode_;
  std::unique_ptr<frmSelectPicture> select_picture_;
};

}  // namespace quendle
