// The wizard's texts and choices, and the pictures that it needs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "personalize/WizardBench.h"
#include "support/Fatal.h"

namespace quendle {
namespace {

const std::vector<Point> kOutline = {{60, 20}, {140, 35}, {171, 90}, {120, 163}, {50, 150}};

class WizardTexts : public ::testing::Test, public WizardBench {};
class WizardPictures : public ::testing::Test, public WizardBench {};

TEST_F(WizardTexts, OfTheSecondStage) {
  ToPartition();
  EXPECT_EQ(host.InView()->caption, "Draw Points Around the Face");
  EXPECT_EQ(At("Label3").text, " Stage 2 of 4");
  EXPECT_EQ(At("Label4").text,
            "    Locate the face in the picture and click around the edges to form an outline. ");
}

// Boxes that note what can be chosen.
class NotedFilters : public ScriptedBoxes {
 public:
  std::string ChooseFile(const std::string& title,
                         const std::vector<FileFilter>& filters) override {
    for (const FileFilter& filter : filters) lines.push_back(filter.name + " = " + filter.pattern);
    return ScriptedBoxes::ChooseFile(title, filters);
  }
  std::vector<std::string> lines;
};

TEST_F(WizardTexts, OfTheChooserAreFourKindsOfPicturesWithTheirPatterns) {
  NotedFilters chooser;
  frmSelectPicture form(
      PersonalizeServices{Services(), prompt, chooser, backend.gdi, loader, saver});
  form.Open();
  PressPicture(5);
  EXPECT_THAT(chooser.lines,
              testing::ElementsAre(
                  "All Image Files (*.jpg, *.jpeg, *.bmp, *.gif) = *.jpg;*.jpeg;*.bmp;*.gif",
                  "JPEG Files (*.jpg, *.jpeg) = *.jp*g", "Bitmap Files (*.bmp) = *.bmp",
                  "GIF Files (*.gif) = *.gif"));
}

TEST_F(WizardPictures, WithoutASuitThereIsNoThirdStage) {
  files.Remove(settings.BaseDirectory + kFolder + "doctorsuit.bmp");
  ToPartition();
  Click(kOutline);
  EXPECT_THAT(FatalOf([&] { PressPicture(3); }),
              testing::AllOf(testing::HasSubstr("Info\\GlobalReferences\\images\\person\\"),
                             testing::HasSubstr("doctorsuit.bmp: the picture can't be read: ")));
}

// A saver that leaves what nobody can read.
class BrokenSaver : public PictureSaver {
 public:
  explicit BrokenSaver(MemoryFileSystem& files) : files_(files) {}
  bool SavePicture(const std::string& path, const Picture&) override {
    return static_cast<bool>(files_.Write(path, "BM nonsense"));
  }

 private:
  MemoryFileSystem& files_;
};

TEST_F(WizardPictures, AFaceThatCannotBeReadEndsTheWizard) {
  BrokenSaver broken(files);
  frmSelectPicture form(
      PersonalizeServices{Services(), prompt, boxes, backend.gdi, loader, broken});
  form.Open();
  ToPartition();
  Click(kOutline);
  EXPECT_THAT(FatalOf([&] { PressPicture(3); }),
              testing::HasSubstr("face.bmp: the picture can't be read: "));
}

}  // namespace
}  // namespace quendle
