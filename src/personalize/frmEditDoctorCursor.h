#pragma once

#include <cstdint>
#include <memory>

#include "media/MemoryBitmap.h"
#include "personalize/WizardForm.h"

namespace quendle {

class frmDone;
class frmPartitionPicture;

// Stage 3 of the wizard: four arrows move the face over the doctor's suit, and both together become
// the picture from which the game draws the player's own figure.
class frmEditDoctorCursor : public WizardForm {
 public:
  // Stage 2 owns this one.
  frmEditDoctorCursor(const PersonalizeServices& services, frmPartitionPicture& partition);
  ~frmEditDoctorCursor() override;

  // Starts the stage with the face over the middle of the suit. A face or suit that can't be read
  // is fatal.
  void CompositePicture();

 protected:
  void CloseWindow() override;
  void Previous() override;
  void Next() override;

 private:
  std::unique_ptr<MemoryBitmap> Load(const char* name);
  void Move(int x, int y);
  void RedrawComposite();

  frmPartitionPicture& partition_;
  std::int16_t face_x_ = 0;
  std::int16_t face_y_ = 0;
  std::unique_ptr<MemoryBitmap> suit_;
  std::unique_ptr<MemoryBitmap> face_;
  std::unique_ptr<MemoryBitmap> canvas_;
  // Made when it is first gone on to.
  std::unique_ptr<frmDone> done_;
};

}  // namespace quendle
