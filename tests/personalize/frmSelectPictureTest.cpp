#include "personalize/frmSelectPicture.h"

#include <gtest/gtest.h>

#include "personalize/WizardBench.h"

namespace quendle {
namespace {

class frmSelectPictureTest : public ::testing::Test, public WizardBench {};

TEST_F(frmSelectPictureTest, ShowsItsTexts) {
  EXPECT_EQ(host.InView()->caption, "Personalize Wumbly");
  EXPECT_EQ(At("Label1").text, "Stage 1 of 4");
  EXPECT_EQ(At("Label4").text, "Select a Picture");
}

TEST_F(frmSelectPictureTest, BrowseAsksWithTitleAndFiltersAndShowsThePreview) {
  Choose("/photos/child.jpg");
  ASSERT_EQ(boxes.Shown().size(), 1u);
  EXPECT_EQ(boxes.Shown()[0].kind, "file");
  EXPECT_EQ(boxes.Shown()[0].title, "Personalize Wumbly");
  EXPECT_EQ(boxes.Shown()[0].text,
            "All Image Files (*.jpg, *.jpeg, *.bmp, *.gif)\nJPEG Files (*.jpg, *.jpeg)\n"
            "Bitmap Files (*.bmp)\nGIF Files (*.gif)");
  EXPECT_TRUE(At("Image1").visible);
  EXPECT_EQ(At("Image1").image->size, (Size{600, 300}));
  const Rect& area = At("Image1").area;
  EXPECT_EQ(area.Width(), 2 * area.Height()) << "the preview keeps its shape";
}

TEST_F(frmSelectPictureTest, CancellingKeepsTheLastPreview) {
  Choose("/photos/child.jpg");
  const SharedPicture preview = At("Image1").image;
  Choose("cancel");
  EXPECT_EQ(At("Image1").image, preview);
  EXPECT_EQ(loader.asked.size(), 1u);
  EXPECT_EQ(boxes.Shown().size(), 2u) << "the two choosers alone";
  PressPicture(3);
  EXPECT_EQ(loader.asked.back(), "/photos/child.jpg");
  EXPECT_EQ(InView(), "frmPartitionPicture");
}

TEST_F(frmSelectPictureTest, AFileThatIsRefusedIsToldAndTheOneBeforeStays) {
  Choose("/photos/child.jpg");
  Choose("/photos/broken.jpg");
  EXPECT_EQ(boxes.Shown().back().kind, "message");
  EXPECT_EQ(boxes.Shown().back().text, "It can't be used.");
  EXPECT_EQ(InView(), "frmSelectPicture");
  PressPicture(3);
  EXPECT_EQ(loader.asked.back(), "/photos/child.jpg");
  EXPECT_TRUE(At("Image1").visible);
}

TEST_F(frmSelectPictureTest, NextWithoutAPhotographTellsSoAndComesBack) {
  PressPicture(3);
  EXPECT_EQ(InView(), "frmSelectPicture");
  EXPECT_EQ(boxes.Shown().back().text, "Please choose a photograph first: press Browse.");
  EXPECT_TRUE(loader.asked.empty());
  ToPartition();
  EXPECT_EQ(InView(), "frmPartitionPicture") << "the wizard is still usable";
}

TEST_F(frmSelectPictureTest, APhotographThatIsGoneByThenIsToldAndItComesBack) {
  Choose("/photos/child.jpg");
  loader.pictures.clear();
  PressPicture(3);
  EXPECT_EQ(boxes.Shown().back().text, "It can't be used.");
  EXPECT_EQ(InView(), "frmSelectPicture");
}

TEST_F(frmSelectPictureTest, ADroppedPhotographIsTakenLikeAChosenOne) {
  host.Drop("/photos/child.jpg");
  EXPECT_TRUE(At("Image1").visible);
  host.Drop("/photos/other.txt");
  EXPECT_EQ(boxes.Shown().back().text, "It can't be used.");
  PressPicture(3);
  EXPECT_EQ(InView(), "frmPartitionPicture");
}

TEST_F(frmSelectPictureTest, NothingCanBeDroppedOnTheOtherStages) {
  ToPartition();
  const std::size_t asked = loader.asked.size();
  EXPECT_FALSE(host.Drop("/photos/child.jpg"));
  Click({{1, 1}, {20, 2}, {3, 30}});
  PressPicture(3);
  ASSERT_EQ(InView(), "frmEditDoctorCursor");
  EXPECT_FALSE(host.Drop("/photos/child.jpg"));
  EXPECT_EQ(loader.asked.size(), asked);
}

TEST_F(frmSelectPictureTest, GoingBackFromStage2ShowsTheSamePreview) {
  ToPartition();
  PressPicture(1);
  EXPECT_EQ(InView(), "frmSelectPicture");
  EXPECT_TRUE(At("Image1").visible);
}

TEST_F(frmSelectPictureTest, EveryStageEndsWhenTheSystemEndsTheProgram) {
  EXPECT_THROW(host.EndProgram(), ProcessEnds);
  ToPartition();
  ASSERT_EQ(InView(), "frmPartitionPicture");
  EXPECT_THROW(host.EndProgram(), ProcessEnds);
  Click({{1, 1}, {20, 2}, {3, 30}});
  PressPicture(3);
  ASSERT_EQ(InView(), "frmEditDoctorCursor");
  EXPECT_THROW(host.EndProgram(), ProcessEnds);
  PressPicture(3);
  ASSERT_EQ(InView(), "frmDone");
  EXPECT_THROW(host.EndProgram(), ProcessEnds);
  EXPECT_FALSE(settings.PersonalizeOn);
  EXPECT_EQ(prompt.calls, std::vector<std::string>(4, "Unload"));
}

TEST_F(frmSelectPictureTest, PreviousAndCloseLeadBackToTheStartUpForm) {
  for (int index : {1, 2, 11, 12}) {
    select.Open();
    PressPicture(index);
    EXPECT_EQ(InView(), "(none)") << index;
  }
  select.Open();
  host.Close();
  EXPECT_EQ(prompt.calls.size(), 5u);
}

TEST_F(frmSelectPictureTest, EnterGoesOn) {
  Choose("/photos/child.jpg");
  host.Key(FormKey::kEnter);
  EXPECT_EQ(InView(), "frmPartitionPicture");
}

class RemovingAPhotograph : public frmSelectPictureTest {
 protected:
  RemovingAPhotograph() {
    PutPicture("face-default.bmp", *ColorfulPicture({32, 32}));
    PutPicture("doctor-default.bmp", *ColorfulPicture({64, 128}));
    PutPicture("face.bmp", *ColorfulPicture({3, 3}));
    PutPicture("doctor.bmp", *ColorfulPicture({4, 4}));
    select.Open();
  }
};

TEST_F(RemovingAPhotograph, BringsTheDrawnChildBack) {
  Choose("/photos/child.jpg");
  ASSERT_TRUE(host.Press("lblRemove"));
  EXPECT_TRUE(Written("face.bmp") == *ColorfulPicture({32, 32}));
  EXPECT_TRUE(Written("doctor.bmp") == *ColorfulPicture({64, 128}));
  EXPECT_FALSE(At("Image1").visible) << "the preview goes too";
  EXPECT_EQ(boxes.Shown().back().text, "Your photograph is no longer in the game.");
  EXPECT_TRUE(system.opened.empty()) << "the link leads nowhere";
  PressPicture(3);
  EXPECT_EQ(InView(), "frmSelectPicture") << "and its path is forgotten";
}

TEST_F(RemovingAPhotograph, IsAskedFirst) {
  boxes.QueueAnswer("no");
  host.Press("lblRemove");
  EXPECT_TRUE(Written("face.bmp") == *ColorfulPicture({3, 3}));
}

TEST_F(RemovingAPhotograph, IsOfferedOnlyWhileThereIsOne) {
  EXPECT_TRUE(At("lblRemove").visible);
  host.Press("lblRemove");
  EXPECT_FALSE(At("lblRemove").visible);
  select.Open();
  EXPECT_FALSE(At("lblRemove").visible);
  PutPicture("doctor.bmp", *ColorfulPicture({4, 4}));
  select.Open();
  EXPECT_TRUE(At("lblRemove").visible) << "one of the two is enough";
}

TEST_F(RemovingAPhotograph, OfADamagedPictureIsOfferedToo) {
  host.Press("lblRemove");
  files.Put(std::string(kFolder) + "face.bmp", "BM nonsense");
  select.Open();
  EXPECT_TRUE(At("lblRemove").visible);
  EXPECT_TRUE(host.Press("lblRemove"));
  EXPECT_TRUE(Written("face.bmp") == *ColorfulPicture({32, 32}));
}

TEST_F(frmSelectPictureTest, WithoutADrawnChildToComeBackNothingIsOffered) {
  EXPECT_FALSE(host.Press("lblRemove"));
}

}  // namespace
}  // namespace quendle
