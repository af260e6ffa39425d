#pragma once

#include <memory>
#include <string>

#include "personalize/WizardForm.h"

namespace quendle {

class frmPartitionPicture;

// Stage 1 of the wizard: a photograph is chosen, or dropped on the window, and seen. Here the
// photograph of the child can be taken out of the game again, too.
class frmSelectPicture : public WizardForm {
 public:
  explicit frmSelectPicture(const PersonalizeServices& services);
  ~frmSelectPicture() override;

  // Puts the stage on screen.
  void Open();

  void Press(Control& control, Point at) override;
  bool TakesDrops() const override { return true; }
  // Takes the file as if it had been chosen.
  void Drop(const std::string& native_path) override;

 protected:
  void Previous() override { BackToPrompt(); }
  void Next() override;

 private:
  void Browse();
  void TakePicture(const std::string& path);
  void ShowPreview(SharedPicture picture);
  void OfferRemoval();
  void RemovePhotograph();

  std::string path_;  // of the chosen file; empty until one is chosen
  // Made when it is first gone on to.
  std::unique_ptr<frmPartitionPicture> partition_;
};

}  // namespace quendle
