#pragma once

#include <memory>
#include <string>

#include "media/MemoryBitmap.h"
#include "personalize/Outline.h"
#include "personalize/WizardForm.h"

namespace quendle {

class frmEditDoctorCursor;
class frmSelectPicture;

// Stage 2 of the wizard: a line is clicked around the face in the photograph, and the face inside
// it becomes the 32 by 32 picture of the game.
class frmPartitionPicture : public WizardForm {
 public:
  // Stage 1 owns this one.
  frmPartitionPicture(const PersonalizeServices& services, frmSelectPicture& select);
  ~frmPartitionPicture() override;

  // Loads a photograph and fits the scroll bars. Without a path, or when the file can't be used, it
  // goes back to stage 1 and tells so there.
  void LoadImage(const std::string& path);
  // Gives the memory of the photograph back; the next visit loads it again.
  void ReleasePhotograph();
  // Removes the whole outline.
  void ResetLines();
  // Names the outline; an empty answer changes nothing. No button leads here.
  void AskRegionName();

  // Nothing asks for the two: a face has no name in play.
  const std::string& RegionName() const { return region_name_; }
  std::int16_t RegionFlag() const { return region_flag_; }

  void Press(Control& control, Point at) override;
  void Set(Control& control, int value) override;

 protected:
  void CloseWindow() override;
  void Previous() override { BackToSelection(); }
  void Next() override;

 private:
  void BackToSelection();
  bool OutlineIsWanted();
  void UndoLine();
  void AddPoint(Point pixel);
  void ShowLine(const PolygonLine& line);
  void PlaceLine(const PolygonLine& line);
  void DropUnusedShapes();
  void FitScrollBars();
  void ScrollTo();
  void RepositionLines();
  Control& Image() { return *form_.Find("Image1"); }

  frmSelectPicture& select_;
  Outline outline_;
  SharedPicture picture_;                     // what Image1 shows
  std::unique_ptr<MemoryBitmap> photograph_;  // the same, to be cut
  Rect view_;                                 // where the photograph is seen
  std::int32_t scroll_x_ = 0;                 // twips
  std::int32_t scroll_y_ = 0;
  std::string region_name_;
  std::int16_t region_flag_ = 0;
  // Made when it is first gone on to.
  std::unique_ptr<frmEditDoctorCursor> edit_;
};

}  // namespace quendle
