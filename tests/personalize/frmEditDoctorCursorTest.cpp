#include "personalize/frmEditDoctorCursor.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "personalize/FaceCut.h"
#include "personalize/WizardBench.h"
#include "support/Fatal.h"

namespace quendle {
namespace {

constexpr std::uint32_t kGrey = 0xC8C8C8;
const std::vector<Point> kOutline = {{60, 20}, {140, 35}, {171, 90}, {120, 163}, {50, 150}};

class frmEditDoctorCursorTest : public ::testing::Test, public WizardBench {
 protected:
  // Suit and face laid together pixel by pixel.
  Picture ExpectedDoctor(int face_x, int face_y) {
    const Picture face = Written("face.bmp");
    Picture doctor{{64, 128}, {}};
    for (int y = 0; y < 128; ++y) {
      for (int x = 0; x < 64; ++x) {
        std::uint32_t word = y < 32 ? kGrey : ColorAt(x, y - 32);
        const Point at{x - 16 - face_x, y - face_y};
        const bool on_face = at.x >= 0 && at.x < 32 && at.y >= 0 && at.y < 32;
        if (on_face && face.At(at.x, at.y) != kGrey) word = face.At(at.x, at.y);
        doctor.words.push_back(word);
      }
    }
    return doctor;
  }
  Picture Canvas() { return *At("Picture1", 0).image; }
};

TEST_F(frmEditDoctorCursorTest, ShowsItsTextsAndTheCanvasOf64By128) {
  ToEditor(kOutline);
  EXPECT_EQ(host.InView()->caption, "Move the Head Onto the Doctor's Suit");
  EXPECT_EQ(At("Label1").text, "Stage 3 of 4");
  EXPECT_EQ(At("Label2").text, "Move the face so that it aligns with the doctor's coat. ");
  EXPECT_EQ(At("Picture1", 0).area.Width(), 64);
  EXPECT_EQ(At("Picture1", 0).area.Height(), 128);
}

TEST_F(frmEditDoctorCursorTest, TheFaceStartsOverTheMiddleOfTheSuit) {
  ToEditor(kOutline);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(0, 0));
}

TEST_F(frmEditDoctorCursorTest, TheArrowsMoveTheFaceByOnePixel) {
  ToEditor(kOutline);
  for (int index : {17, 18, 17, 5, 17}) PressPicture(index);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(0, 3));
  for (int index : {15, 16, 15, 13}) PressPicture(index);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(2, 3));
  for (int i = 0; i < 9; ++i) PressPicture(14);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(-7, 3));
}

TEST_F(frmEditDoctorCursorTest, TheFaceIsCutOffByTheEdgesOfTheCanvas) {
  ToEditor(kOutline);
  PressPicture(5);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(0, -1));
  for (int i = 0; i < 40; ++i) PressPicture(6);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(0, -41)) << "it has left the canvas";
  for (int i = 0; i < 30; ++i) PressPicture(15);
  for (int i = 0; i < 60; ++i) PressPicture(17);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(30, 19));
}

TEST_F(frmEditDoctorCursorTest, OnlySixteenBitsLimitTheFace) {
  EXPECT_EQ(MovedFace(32766, 1), 32767);
  EXPECT_EQ(MovedFace(32767, 1), 32767);
  EXPECT_EQ(MovedFace(-32768, -1), -32768);
}

TEST_F(frmEditDoctorCursorTest, NextSavesTheDoctorAndTellsThatAllIsDone) {
  ToEditor(kOutline);
  PressPicture(17);
  PressPicture(3);
  EXPECT_TRUE(Written("doctor.bmp") == ExpectedDoctor(0, 1));
  EXPECT_EQ(InView(), "frmDone");
}

TEST_F(frmEditDoctorCursorTest, PreviousGoesBackToAFreshOutlineAndEachStartCentresTheFace) {
  ToEditor(kOutline);
  PressPicture(17);
  PressPicture(15);
  PressPicture(1);
  EXPECT_EQ(InView(), "frmPartitionPicture");
  EXPECT_EQ(Lines(), 0);
  Click(kOutline);
  PressPicture(3);
  EXPECT_TRUE(Canvas() == ExpectedDoctor(0, 0));
}

TEST_F(frmEditDoctorCursorTest, ClosingShowsTheStartUpFormAndSavesNothing) {
  ToEditor(kOutline);
  PressPicture(11);
  EXPECT_EQ(prompt.calls, (std::vector<std::string>{"Show"}));
  EXPECT_EQ(files.Get(std::string(kFolder) + "doctor.bmp"), std::nullopt);
}

TEST_F(frmEditDoctorCursorTest, AMissingOrDamagedSuitIsFatal) {
  ToPartition();
  Click(kOutline);
  files.Put(std::string(kFolder) + "doctorsuit.bmp", "BM nonsense");
  EXPECT_THAT(FatalOf([&] { PressPicture(3); }),
              testing::HasSubstr("doctorsuit.bmp: the picture can't be read: "));
}

TEST_F(frmEditDoctorCursorTest, AFaceThatCanNotBeReadIsFatalAndNamed) {
  ToPartition();
  Click(kOutline);
  faults.Plan("LoadImageA", 0, 0, false);
  EXPECT_THAT(FatalOf([&] { PressPicture(3); }),
              testing::HasSubstr("face.bmp: the picture can't be read: "));
}

TEST_F(frmEditDoctorCursorTest, OnlyTheTwoPicturesAreWrittenAndTheyHoldNothingButPixels) {
  const std::vector<std::string> before = files.Paths();
  files.Record(true);
  ToEditor(kOutline);
  PressPicture(3);
  PressPicture(1);  // the last OK
  std::vector<std::string> added;
  for (const std::string& path : files.Paths()) {
    if (std::ranges::find(before, path) == before.end()) added.push_back(path);
  }
  const std::string folder = std::string("/clinic") + kFolder;
  EXPECT_EQ(added, (std::vector<std::string>{folder + "doctor.bmp", folder + "face.bmp"}));
  for (const auto& operation : files.Operations()) {
    if (operation.name == "exists" || operation.name == "read") continue;
    EXPECT_TRUE(operation.path == added[0] || operation.path == added[1])
        << operation.name << " " << operation.path;
  }
  // Headers of 54 bytes, the pixels, and no byte more.
  EXPECT_EQ(files.Get(added[0])->size(), 54u + 64 * 128 * 3);
  EXPECT_EQ(files.Get(added[1])->size(), 54u + 32 * 32 * 3);
  EXPECT_EQ(files.Get(added[1])->substr(6, 4), std::string(4, '\0')) << "the reserved words";
}

}  // namespace
}  // namespace quendle
