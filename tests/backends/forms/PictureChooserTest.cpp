#include "backends/forms/PictureChooser.h"

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace quendle {
namespace {

class TinyPictures : public PictureLoader {
 public:
  LoadedPicture LoadPicture(const std::string& native_path, PictureLimit) override {
    asked.push_back(std::filesystem::path(native_path).filename().string());
    if (native_path.find("broken") != std::string::npos) return {nullptr, "It is damaged."};
    return {std::make_shared<const Picture>(
                Picture{{400, 200}, std::vector<std::uint32_t>(400 * 200, 0x123456)}),
            {}};
  }
  std::vector<std::string> asked;
};

class PictureChooserTest : public ::testing::Test {
 protected:
  PictureChooserTest() {
    folder.Make("inside/c.jpg");
    folder.Make("a.jpg");
    folder.Make("b.gif");
    folder.Make("broken.jpg");
  }
  PictureChooser& Open() {
    chooser.emplace("Choose", "*.jpg;*.gif", folder.Path(), loader);
    return *chooser;
  }
  // The names under the tiles.
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const Control& control : chooser->Record().controls) {
      if (control.name == "name" && control.visible) names.push_back(control.text);
    }
    return names;
  }
  void Press(const std::string& name, int index = 0) {
    chooser->Press(*chooser->Record().Find(name, index), {});
  }
  std::string Path(const std::string& name) { return (folder.Path() / name).string(); }

  TemporaryFolder folder;
  TinyPictures loader;
  std::optional<PictureChooser> chooser;
};

using Names_ = std::vector<std::string>;

TEST_F(PictureChooserTest, ShowsTheFolderAboveFoldersAndPictures) {
  Open();
  EXPECT_EQ(Names(), (Names_{"(folder above)", "inside", "a.jpg", "b.gif", "broken.jpg"}));
}

TEST_F(PictureChooserTest, ReadsOneSmallPictureAtATimeAndEachOnce) {
  PictureChooser& form = Open();
  EXPECT_TRUE(form.ReadNextPicture());
  EXPECT_EQ(loader.asked, (Names_{"a.jpg"}));
  const Control& tile = *form.Record().Find("tile", 2);
  ASSERT_NE(tile.image, nullptr);
  EXPECT_EQ(tile.image->size, (Size{148, 74})) << "small, in its own shape";
  EXPECT_EQ(tile.area.Width(), 148);
  EXPECT_TRUE(form.ReadNextPicture());
  EXPECT_TRUE(form.ReadNextPicture());
  EXPECT_FALSE(form.ReadNextPicture());
  EXPECT_EQ(loader.asked.size(), 3u) << "a broken one isn't tried again";
  EXPECT_EQ(form.Record().Find("tile", 4)->image, nullptr);
}

TEST_F(PictureChooserTest, APressMarksAndOkTakes) {
  PictureChooser& form = Open();
  Press("ok");
  EXPECT_FALSE(form.Answer().has_value()) << "nothing is marked yet";
  Press("tile", 3);
  EXPECT_FALSE(form.Answer().has_value());
  EXPECT_TRUE(form.Record().Find("mark")->visible);
  Press("ok");
  EXPECT_EQ(form.Answer(), Path("b.gif"));
}

TEST_F(PictureChooserTest, ASecondPressTakes) {
  PictureChooser& form = Open();
  Press("tile", 2);
  Press("tile", 2);
  EXPECT_EQ(form.Answer(), Path("a.jpg"));
}

TEST_F(PictureChooserTest, FoldersOpenAndLeadBackUp) {
  PictureChooser& form = Open();
  Press("tile", 1);
  EXPECT_EQ(Names(), (Names_{"(folder above)", "c.jpg"}));
  Press("tile", 0);
  EXPECT_EQ(form.Folder(), folder.Path());
}

TEST_F(PictureChooserTest, CancelEscAndCloseGiveNothing) {
  Open();
  Press("cancel");
  EXPECT_EQ(chooser->Answer(), "");
  Open().Key(FormKey::kEscape);
  EXPECT_EQ(chooser->Answer(), "");
  Open().QueryClose();
  EXPECT_EQ(chooser->Answer(), "");
}

TEST_F(PictureChooserTest, TheKeyboardMarksAndTakes) {
  PictureChooser& form = Open();
  for (FormKey key : {FormKey::kRight, FormKey::kRight, FormKey::kRight, FormKey::kLeft,
                      FormKey::kRight, FormKey::kEnter}) {
    form.Key(key);
  }
  EXPECT_EQ(form.Answer(), Path("a.jpg"));
}

TEST_F(PictureChooserTest, ADroppedFileIsTakenAtOnce) {
  Open().Drop("/photos/dropped.jpg");
  EXPECT_EQ(chooser->Answer(), "/photos/dropped.jpg");
}

TEST_F(PictureChooserTest, ManyPicturesScrollByRows) {
  for (int i = 10; i < 40; ++i) folder.Make("m" + std::to_string(i) + ".jpg");
  PictureChooser& form = Open();
  Control& bar = *form.Record().Find("VScroll1");
  EXPECT_TRUE(bar.visible);
  EXPECT_EQ(bar.maximum, 6) << "35 entries are nine rows of four, three are seen";
  form.Set(bar, 99);
  EXPECT_EQ(bar.value, 6);
  EXPECT_EQ(Names().back(), "m39.jpg");
  Press("tile", 10);
  Press("ok");
  EXPECT_EQ(form.Answer(), Path("m39.jpg"));
}

}  // namespace
}  // namespace quendle
