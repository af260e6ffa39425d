#include "shell/TandrelPrompt.h"

#include "base/ContentFiles.h"
#include "base/ProcessEnds.h"
#include "base/Settings.h"
#include "dialogs/FormLayout.h"
#include "dialogs/frmDifficultyMenu.h"
#include "dialogs/frmOptionsMenu.h"
#include "dialogs/frmSafeMode.h"
#include "personalize/frmSelectPicture.h"
#include "platform/Boxes.h"
#include "platform/Ports.h"
#include "platform/SystemServices.h"
#include "shell/GameStarter.h"

namespace quendle {
namespace {

constexpr int kMinimisePicture = 7;
constexpr int kOldestSystem = 5;
constexpr std::int16_t kSiblingEdition = 1;
constexpr const char* kOptionsNotSaved =
    "What was chosen could not be kept: the disk is full, or it may not be written to.";

}  // namespace

TandrelPrompt::TandrelPrompt(FormServices services, Ports& ports, GameStarter& starter,
                             std::int16_t edition)
    : PictureForm(services, "TandrelPrompt", {420, 470}),
      ports_(ports),
      boxes_(ports.boxes),
      starter_(starter),
      edition_(edition),
      settings_files_(services.files, services.settings) {}

TandrelPrompt::~TandrelPrompt() = default;

void TandrelPrompt::Load() {
  Settings& settings = services_.settings;
  settings.SafeMode = false;
  ChooseEdition();
  BuildForm();
  EndIfAnotherInstanceRuns();
  AskAboutOldSystem();
  settings_files_.ReadOptions();
  SyncOptionsDialog();
  settings_files_.ReadGameMode();
  if (!settings.SafeMode && settings_files_.GameRunningIsOn()) {
    AskAfterCrash();
  } else {
    Show();
  }
}

void TandrelPrompt::Unload() {
  SaveOptions();
  if (services_.files.HasUnsaved()) {
    boxes_.MessageBox(services_.settings.ProductName, kOptionsNotSaved);
  }
  throw ProcessEnds{false};
}

void TandrelPrompt::Show() { SetShown(true); }

void TandrelPrompt::btnNormal_Click() {
  if (settings_files_.DialogModeExists()) {
    processGameState("normalMode");
  } else {
    ShowDifficultyDialog();
  }
}

void TandrelPrompt::SaveOptions() { settings_files_.SaveOptions(); }

void TandrelPrompt::SetButtonHighlight(std::int16_t index) {
  if (index % 2 != 0) HighlightButton(index);
}

void TandrelPrompt::BuildForm() {
  const Settings& settings = services_.settings;
  form_.caption = settings.ProductName;
  AddLabel(form_, "Label1", "Please Select an Option...", {18, 13, 306, 41}).font_size =
      kTitleFontSize;
  AddButtons({
      {1, "play", "Play", {40, 54, 380, 164}, [this] { btnNormal_Click(); }},
      {3, "personalize", "Personalize", {60, 178, 360, 244}, [this] { ShowPersonalizeDialog(); }},
      {5, "options", "Options", {60, 256, 360, 322}, [this] { ShowOptionsDialog(); }},
      {13,
       "link",
       settings.ProductName + " on the Web",
       {110, 336, 310, 376},
       [this] { services_.system.OpenInShell(services_.settings.WebAddress); }},
  });
  AddLink(form_, "Label2", settings.WebAddress, {24, 394, 396, 418});
  AddLink(form_, "Label3", settings.SupportAddress, {24, 424, 396, 448});
  AddTitleButtons(kMinimisePicture, [this] { Unload(); });
  PositionTitleButtons(form_, kMinimisePicture);
  PairButtonPictures(form_, 1, LastPicture());
  SetButtonHighlight(-1);
  LoadBorders(form_);
  Register();
}

void TandrelPrompt::ChooseEdition() {
  Settings& settings = services_.settings;
  settings.GameEdition = edition_;
  settings.ProductName = "Wumbly";
  if (edition_ == kSiblingEdition) {
    settings.ProductName = "Tandrel";
    settings.WebAddress = "https://www.quendle.example/tandrel";
  }
}

void TandrelPrompt::EndIfAnotherInstanceRuns() {
  if (!services_.system.PreviousInstanceRuns()) return;
  const std::string& product = services_.settings.ProductName;
  boxes_.MessageBox(product, "Another version of " + product + " is already running");
  throw ProcessEnds{false};
}

void TandrelPrompt::AskAboutOldSystem() {
  if (services_.system.MajorVersion() >= kOldestSystem) return;
  const Settings& settings = services_.settings;
  const std::string question =
      settings.ProductName +
      " is designed to run on Windows 2000 and Windows XP.\n"
      "At this time, the game is not guaranteed to run on Windows 95/98/ME.\n"
      "Contact " +
      settings.SupportAddress +
      " with any questions.\n"
      "Would you like to continue trying to run the game?";
  if (!boxes_.YesNoBox(settings.ProductName, question)) throw ProcessEnds{false};
}

void TandrelPrompt::AskAfterCrash() {
  SetShown(false);
  if (!safe_mode_) safe_mode_ = std::make_unique<frmSafeMode>(services_, *this);
  safe_mode_->Show();
}

void TandrelPrompt::SyncOptionsDialog() {
  if (!options_) options_ = std::make_unique<frmOptionsMenu>(services_, *this);
  options_->SyncControls();
}

void TandrelPrompt::ShowOptionsDialog() {
  SyncOptionsDialog();
  SetShown(false);
  options_->Show();
}

void TandrelPrompt::ShowPersonalizeDialog() {
  if (!select_picture_) {
    select_picture_ = std::make_unique<frmSelectPicture>(PersonalizeServices{
        services_, *this, boxes_, ports_.gdi, ports_.picture_loader, ports_.picture_saver});
  }
  SetShown(false);
  select_picture_->Open();
}

void TandrelPrompt::ShowDifficultyDialog() {
  if (!difficulty_) difficulty_ = std::make_unique<frmDifficultyMenu>(services_, *this);
  difficulty_->SyncControls();
  SetShown(false);
  difficulty_->Show();
}

void TandrelPrompt::processGameState(std::string_view) {
  SaveOptions();
  if (services_.settings.SafeMode) services_.settings.DifficultyLevel = "Easy";
  SetShown(false);
  starter_.OpenGameWindow();
}

}  // namespace quendle
