#include "personalize/frmSelectPicture.h"

#include <algorithm>
#include <utility>

#include "dialogs/FormLayout.h"
#include "personalize/PersonFiles.h"
#include "personalize/frmPartitionPicture.h"
#include "platform/Boxes.h"
#include "platform/PictureLoader.h"

namespace quendle {
namespace {

constexpr Rect kPreview{306, 98, 576, 346};
// Twice the room of the preview: enough for a display that shows the form enlarged.
constexpr PictureLimit kPreviewLimit{540, 540};
constexpr const char* kRemoveLink = "lblRemove";

const std::vector<FileFilter>& PictureFilters() {
  static const std::vector<FileFilter> kFilters = {
      {"All Image Files (*.jpg, *.jpeg, *.bmp, *.gif)", "*.jpg;*.jpeg;*.bmp;*.gif"},
      {"JPEG Files (*.jpg, *.jpeg)", "*.jp*g"},
      {"Bitmap Files (*.bmp)", "*.bmp"},
      {"GIF Files (*.gif)", "*.gif"},
  };
  return kFilters;
}

// The largest place in the middle of `room` with the shape of a picture; small ones aren't grown.
Rect PlaceInMiddle(Size picture, const Rect& room) {
  const double part = std::min({1.0, static_cast<double>(room.Width()) / picture.width,
                                static_cast<double>(room.Height()) / picture.height});
  const int width = std::max(static_cast<int>(picture.width * part), 1);
  const int height = std::max(static_cast<int>(picture.height * part), 1);
  const int left = room.left + (room.Width() - width) / 2;
  const int top = room.top + (room.Height() - height) / 2;
  return {left, top, left + width, top + height};
}

}  // namespace

frmSelectPicture::frmSelectPicture(const PersonalizeServices& services)
    : WizardForm(services, "frmSelectPicture", {600, 462}) {
  form_.caption = WizardName();
  AddLabel(form_, "Label1", "Stage 1 of 4", {0, 0, 0, 28}).font_size = kTitleFontSize;
  AddLabel(form_, "Label4", "Select a Picture", {20, 52, 290, 82}).font_size = kTitleFontSize;
  AddLabel(form_, "lblHelp",
           "Choose a photograph in which your child looks into the camera. In the next stage you "
           "draw a line around the face.\n \nYou can also drop a photograph on this window.\n \n"
           "It stays on this computer: nothing is sent anywhere.",
           {20, 92, 284, 280});
  AddButtons({{5, "browse", "Browse...", {20, 290, 284, 350}, [this] { Browse(); }}});
  AddFrame(form_, "Frame1", "", {296, 78, 586, 354});
  AddLabel(form_, "lblEmpty", "Your photograph is shown here.", {328, 206, 576, 236});
  AddImage(form_, "Image1", 0, kPreview).visible = false;
  AddLink(form_, kRemoveLink, "Remove my photograph from the game", {306, 358, 586, 382});
  Finish();
}

frmSelectPicture::~frmSelectPicture() = default;

void frmSelectPicture::Open() {
  OfferRemoval();
  Show();
}

// A family that has put no photograph in is not asked to take it out.
void frmSelectPicture::OfferRemoval() {
  form_.Find(kRemoveLink)->visible = PhotographCanBeRemoved(personalize_);
}

void frmSelectPicture::Press(Control& control, Point at) {
  if (control.name == kRemoveLink) {
    RemovePhotograph();
  } else {
    PictureForm::Press(control, at);
  }
}

void frmSelectPicture::Drop(const std::string& native_path) { TakePicture(native_path); }

void frmSelectPicture::Next() {
  SetShown(false);
  if (!partition_) partition_ = std::make_unique<frmPartitionPicture>(personalize_, *this);
  partition_->ResetLines();
  partition_->Show();
  partition_->LoadImage(path_);
}

void frmSelectPicture::Browse() {
  const std::string path = personalize_.boxes.ChooseFile(WizardName(), PictureFilters());
  if (!path.empty()) TakePicture(path);
}

// A file that is refused leaves the photograph before it in place.
void frmSelectPicture::TakePicture(const std::string& path) {
  LoadedPicture loaded = personalize_.loader.LoadPicture(path, kPreviewLimit);
  if (loaded.picture == nullptr) {
    Tell(loaded.problem);
    return;
  }
  path_ = path;
  ShowPreview(std::move(loaded.picture));
}

void frmSelectPicture::ShowPreview(SharedPicture picture) {
  Control& image = *form_.Find("Image1");
  image.visible = picture != nullptr;
  form_.Find("lblEmpty")->visible = picture == nullptr;
  if (picture != nullptr) image.area = PlaceInMiddle(picture->size, kPreview);
  image.image = std::move(picture);
  Changed();
}

void frmSelectPicture::RemovePhotograph() {
  if (!Ask("Remove your photograph from the game? The drawn child takes its place again.")) return;
  RestoreDefaultPerson(personalize_);
  OfferRemoval();
  path_.clear();
  ShowPreview(nullptr);
  Tell("Your photograph is no longer in the game.");
}

}  // namespace quendle
