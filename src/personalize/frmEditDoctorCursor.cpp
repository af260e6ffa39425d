#include "personalize/frmEditDoctorCursor.h"

#include "base/ContentFiles.h"
#include "base/FatalError.h"
#include "dialogs/FormLayout.h"
#include "dialogs/frmDone.h"
#include "media/Graphics.h"
#include "personalize/FaceCut.h"
#include "personalize/PersonFiles.h"
#include "personalize/frmPartitionPicture.h"

namespace quendle {
namespace {

constexpr Size kCanvasSize{64, 128};
constexpr Size kSuitSize{64, 96};
constexpr Point kSuitPlace{0, 32};
constexpr Point kOrigin{0, 0};
// The face starts in the middle of the canvas.
constexpr int kFaceLeft = 16;
constexpr Rect kLargeView{36, 86, 228, 470};  // three times the canvas
constexpr Rect kSmallView{398, 340, 462, 468};
constexpr int kArrow = 64;
constexpr Point kArrows{430, 196};  // the middle of the four

Rect ArrowPlace(int columns, int rows) {
  const int left = kArrows.x + columns * (kArrow + 4) - kArrow / 2;
  const int top = kArrows.y + rows * (kArrow + 4) - kArrow / 2;
  return {left, top, left + kArrow, top + kArrow};
}

void Clear(Gdi& gdi, ContextHandle context) {
  const RegionHandle all = gdi.CreateRectRgn({0, 0, kCanvasSize.width, kCanvasSize.height});
  gdi.FillRgn(context, all, kPersonKey);
  gdi.DeleteRegion(all);
}

}  // namespace

frmEditDoctorCursor::frmEditDoctorCursor(const PersonalizeServices& services,
                                         frmPartitionPicture& partition)
    : WizardForm(services, "frmEditDoctorCursor", {600, 556}),
      partition_(partition),
      canvas_(std::make_unique<MemoryBitmap>(services.gdi, kCanvasSize)) {
  form_.caption = "Move the Head Onto the Doctor's Suit";
  AddLabel(form_, "Label1", "Stage 3 of 4", {0, 0, 0, 28}).font_size = kTitleFontSize;
  AddLabel(form_, "Label2", "Move the face so that it aligns with the doctor's coat. ",
           {24, 50, 576, 78});
  AddImage(form_, "imgLarge", 0, kLargeView).enabled = false;
  AddLabel(form_, "lblSize", "In the game:", {292, 340, 392, 364});
  AddImage(form_, "Picture1", 0, kSmallView).enabled = false;
  AddImage(form_, "Picture2", 0, {0, 0, kSuitSize.width, kSuitSize.height}).visible = false;
  AddImage(form_, "Picture3", 0, {0, 0, kFaceSize.width, kFaceSize.height}).visible = false;
  AddButtons({
      {5, "up", "Up", ArrowPlace(0, -1), [this] { Move(0, -1); }},
      {13, "left", "Left", ArrowPlace(-1, 0), [this] { Move(-1, 0); }},
      {15, "right", "Right", ArrowPlace(1, 0), [this] { Move(1, 0); }},
      {17, "down", "Down", ArrowPlace(0, 1), [this] { Move(0, 1); }},
  });
  Finish();
}

frmEditDoctorCursor::~frmEditDoctorCursor() = default;

void frmEditDoctorCursor::CompositePicture() {
  face_x_ = 0;
  face_y_ = 0;
  Show();
  face_ = Load(kFaceFile);
  suit_ = Load(kSuitFile);
  RedrawComposite();
}

void frmEditDoctorCursor::Previous() {
  SetShown(false);
  partition_.Show();
  partition_.ResetLines();
}

void frmEditDoctorCursor::CloseWindow() {
  partition_.ReleasePhotograph();
  WizardForm::CloseWindow();
}

void frmEditDoctorCursor::Next() {
  SavePersonPicture(personalize_, kDoctorFile, canvas_->Read());
  partition_.ReleasePhotograph();
  SetShown(false);
  if (!done_) done_ = std::make_unique<frmDone>(services_, personalize_.prompt);
  done_->Show();
}

std::unique_ptr<MemoryBitmap> frmEditDoctorCursor::Load(const char* name) {
  Gdi& gdi = personalize_.gdi;
  const std::string path = PersonFile(personalize_, name);
  const BitmapHandle bitmap = gdi.LoadImageA(path);
  if (bitmap == 0) {
    throw FatalError("the picture can't be read: " + gdi.WhyNotLoaded(),
                     {services_.files.DisplayName(path), 0});
  }
  return std::make_unique<MemoryBitmap>(gdi, 0, bitmap);
}

void frmEditDoctorCursor::Move(int x, int y) {
  face_x_ = MovedFace(face_x_, x);
  face_y_ = MovedFace(face_y_, y);
  RedrawComposite();
}

void frmEditDoctorCursor::RedrawComposite() {
  Gdi& gdi = personalize_.gdi;
  Clear(gdi, canvas_->Context());
  gdi.BitBlt(canvas_->Context(), kSuitPlace, kSuitSize, suit_->Context(), kOrigin, RasterOp::kCopy);
  TransparentCopy(gdi, canvas_->Context(), face_->Context(), {face_x_ + kFaceLeft, face_y_},
                  kFaceSize, kPersonKey);
  auto seen = std::make_shared<const Picture>(canvas_->Read());
  form_.Find("Picture1", 0)->image = seen;
  form_.Find("imgLarge")->image = seen;
  Changed();
}

}  // namespace quendle
