#include "personalize/frmPartitionPicture.h"

#include <algorithm>
#include <utility>

#include "dialogs/FormLayout.h"
#include "personalize/FaceCut.h"
#include "personalize/PersonFiles.h"
#include "personalize/frmEditDoctorCursor.h"
#include "personalize/frmSelectPicture.h"
#include "platform/Boxes.h"
#include "platform/PictureLoader.h"

namespace quendle {
namespace {

constexpr Rect kWholeView{18, 104, 762, 500};
constexpr int kBarWidth = 22;
constexpr int kBarGap = 4;
constexpr int kLineWidth = 3;
constexpr Color kLineColor = PackColor(0xE6, 0x3C, 0x28);
constexpr std::size_t kFewestPoints = 3;
// Points of the outline are 16-bit twips, so they reach 2184 pixels into a photograph. One that
// must be made smaller anyhow is brought to a size that is handy to work on.
constexpr PictureLimit kReachable{2184, 1200};
// A step of a scroll bar moves the photograph by one pixel, so that every pixel comes into view.
constexpr int kScrollStep = kTwipsPerPixel;

// How far the picture begins inside a view that is wider than it.
int Centred(int view, int picture) { return std::max(view - picture, 0) / 2; }

// Faces are mostly found in the middle and a little above it: there a photograph begins.
void SetBar(Control& bar, bool shown, int beyond, int part, const Rect& area) {
  bar.visible = shown;
  bar.maximum = shown ? beyond : 0;
  bar.value = bar.maximum / part;
  bar.area = area;
}

}  // namespace

frmPartitionPicture::frmPartitionPicture(const PersonalizeServices& services,
                                         frmSelectPicture& select)
    : WizardForm(services, "frmPartitionPicture", {780, 590}), select_(select), view_(kWholeView) {
  form_.caption = "Draw Points Around the Face";
  AddLabel(form_, "Label1", form_.caption, {0, 0, 0, 28}).font_size = kTitleFontSize;
  AddLabel(form_, "Label3", " Stage 2 of 4", {18, 50, 150, 74});
  AddLabel(form_, "Label4",
           "    Locate the face in the picture and click around the edges to form an outline. ",
           {130, 50, 762, 74});
  AddLabel(form_, "lblHelp",
           "Click all the way round: the outline closes by itself. The bars move the photograph.",
           {130, 74, 762, 98});
  AddButtons({
      {5, "undo", "Undo", {222, 520, 382, 572}, [this] { UndoLine(); }},
      {13, "reset", "Start over", {398, 520, 558, 572}, [this] { ResetLines(); }},
  });
  AddScroll(form_, "HScroll1", {}).visible = false;
  AddScroll(form_, "VScroll1", {}).visible = false;
  AddImage(form_, "Picture2", 0, {0, 75, kFaceSize.width, 75 + kFaceSize.height}).visible = false;
  Finish();
  // In front of everything but the lines, which are added behind it.
  AddImage(form_, "Image1", 0, kWholeView).visible = false;
}

frmPartitionPicture::~frmPartitionPicture() = default;

void frmPartitionPicture::ReleasePhotograph() {
  picture_.reset();
  photograph_.reset();
  Image().image.reset();
  Image().visible = false;
}

void frmPartitionPicture::LoadImage(const std::string& path) {
  if (path.empty()) {
    BackToSelection();
    Tell("Please choose a photograph first: press Browse.");
    return;
  }
  LoadedPicture loaded = personalize_.loader.LoadPicture(path, kReachable);
  if (loaded.picture == nullptr) {
    BackToSelection();
    Tell(loaded.problem);
    return;
  }
  picture_ = std::move(loaded.picture);
  Gdi& gdi = personalize_.gdi;
  photograph_ = std::make_unique<MemoryBitmap>(gdi, 0, gdi.CreatePictureBitmap(*picture_));
  Image().image = picture_;
  Image().visible = true;
  FitScrollBars();
  Changed();
}

void frmPartitionPicture::ResetLines() {
  outline_.Clear();
  DropUnusedShapes();
}

void frmPartitionPicture::AskRegionName() {
  const std::string name = personalize_.boxes.InputBox(WizardName(), "Region Name: ");
  if (name.empty()) return;
  region_name_ = name;
  region_flag_ = 1;
}

void frmPartitionPicture::Press(Control& control, Point at) {
  if (control.name == "Image1") {
    AddPoint(at);
  } else {
    PictureForm::Press(control, at);
  }
}

void frmPartitionPicture::Set(Control& control, int value) {
  if (control.kind != ControlKind::kScroll) return;
  control.value = std::clamp(value, 0, control.maximum);
  ScrollTo();
  Changed();
}

void frmPartitionPicture::CloseWindow() {
  ReleasePhotograph();
  WizardForm::CloseWindow();
}

void frmPartitionPicture::BackToSelection() {
  ReleasePhotograph();
  SetShown(false);
  select_.Open();
}

void frmPartitionPicture::Next() {
  if (!OutlineIsWanted()) return;
  auto face = std::make_shared<const Picture>(
      CutFace(personalize_.gdi, photograph_->Context(), outline_.PixelPoints()));
  form_.Find("Picture2")->image = face;
  SavePersonPicture(personalize_, kFaceFile, *face);
  SetShown(false);
  if (!edit_) edit_ = std::make_unique<frmEditDoctorCursor>(personalize_, *this);
  edit_->CompositePicture();
}

// Tells of an outline that can't be cut and asks about one that holds nothing.
bool frmPartitionPicture::OutlineIsWanted() {
  const std::size_t points = outline_.Lines().size();
  if (points > kMostPoints) {
    Tell("The outline has " + std::to_string(points) + " points, and " +
         std::to_string(kMostPoints) +
         " are the most. Please take some back with Undo, or begin again with Start over.");
    return false;
  }
  if (points >= kFewestPoints) return true;
  return Ask(
      "There is no outline around the face yet: it needs at least three points. Go on without a "
      "face?");
}

void frmPartitionPicture::UndoLine() {
  outline_.Undo();
  DropUnusedShapes();
}

void frmPartitionPicture::AddPoint(Point pixel) {
  const bool inside = picture_ != nullptr && pixel.x >= 0 && pixel.y >= 0 &&
                      pixel.x < picture_->size.width && pixel.y < picture_->size.height;
  if (!inside) return;
  ShowLine(outline_.Add(pixel.x * kTwipsPerPixel, pixel.y * kTwipsPerPixel));
  Changed();
}

void frmPartitionPicture::ShowLine(const PolygonLine& line) {
  Control& shape = form_.controls.emplace_back();
  shape.name = "Line1";
  shape.index = line.shape;
  shape.kind = ControlKind::kLine;
  shape.color = kLineColor;
  shape.thickness = kLineWidth;
  PlaceLine(line);
}

// The picture's left and top turn a place in the picture into one in the window.
void frmPartitionPicture::PlaceLine(const PolygonLine& line) {
  Control& shape = *form_.Find("Line1", line.shape);
  const Rect& image = Image().area;
  shape.clip = view_;
  shape.area = {image.left + line.previous_x / kTwipsPerPixel,
                image.top + line.previous_y / kTwipsPerPixel, image.left + line.x / kTwipsPerPixel,
                image.top + line.y / kTwipsPerPixel};
}

void frmPartitionPicture::DropUnusedShapes() {
  std::erase_if(form_.controls, [this](const Control& control) {
    return control.name == "Line1" && control.index >= outline_.LineCount();
  });
  Changed();
}

// A bar takes room from the view, so that the other one may be needed too.
void frmPartitionPicture::FitScrollBars() {
  const Size size = picture_->size;
  view_ = kWholeView;
  const int room = kBarWidth + kBarGap;
  bool lying = false;
  bool standing = false;
  for (int i = 0; i < 2; ++i) {
    lying = size.width > kWholeView.Width() - (standing ? room : 0);
    standing = size.height > kWholeView.Height() - (lying ? room : 0);
  }
  if (standing) view_.right -= room;
  if (lying) view_.bottom -= room;
  SetBar(*form_.Find("HScroll1"), lying, size.width - view_.Width(), 2,
         {view_.left, view_.bottom + kBarGap, view_.right, view_.bottom + room});
  SetBar(*form_.Find("VScroll1"), standing, size.height - view_.Height(), 3,
         {view_.right + kBarGap, view_.top, view_.right + room, view_.bottom});
  ScrollTo();
}

// Moves the picture to where the scroll bars stand, and the outline with it.
void frmPartitionPicture::ScrollTo() {
  scroll_x_ = form_.Find("HScroll1")->value * kScrollStep;
  scroll_y_ = form_.Find("VScroll1")->value * kScrollStep;
  const Size size = picture_->size;
  const int left = view_.left + Centred(view_.Width(), size.width) - scroll_x_ / kTwipsPerPixel;
  const int top = view_.top + Centred(view_.Height(), size.height) - scroll_y_ / kTwipsPerPixel;
  Image().area = {left, top, left + size.width, top + size.height};
  Image().clip = view_;
  RepositionLines();
}

void frmPartitionPicture::RepositionLines() {
  for (const PolygonLine& line : outline_.Lines()) PlaceLine(line);
}

}  // namespace quendle
