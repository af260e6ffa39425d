#include "backends/forms/FileListing.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/TemporaryFolder.h"

namespace quendle {
namespace {

// A variable of the environment for the time of a test.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : name_(name) {
    const char* now = std::getenv(name);
    before_ = now == nullptr ? "" : now;
    setenv(name, value.c_str(), 1);
  }
  ~Variable() { before_.empty() ? unsetenv(name_) : setenv(name_, before_.c_str(), 1); }

 private:
  const char* name_;
  std::string before_;
};

TEST(FileListing, PatternsIgnoreCaseAndStarStandsForAnyText) {
  const std::string all = "*.jpg;*.jpeg;*.bmp;*.gif";
  for (const char* name : {"a.jpg", "A.JPG", "summer.2025.jpeg", ".gif"}) {
    EXPECT_TRUE(FitsPattern(name, all)) << name;
  }
  for (const char* name : {"a.png", "jpg", "a.jpg.txt", ""}) {
    EXPECT_FALSE(FitsPattern(name, all)) << name;
  }
  EXPECT_TRUE(FitsPattern("a.jpeg", "*.jp*g"));
  EXPECT_TRUE(FitsPattern("a.jpg", "*.jp*g"));
}

TEST(FileListing, FoldersComeFirstThenFittingFilesByNameAndNothingHidden) {
  TemporaryFolder folder;
  for (const char* name : {"b.jpg", "A.JPG", "notes.txt", ".secret.jpg", "zoo/x.jpg"}) {
    folder.Make(name);
  }
  std::vector<std::string> names;
  for (const ListedFile& file : ListFolder(folder.Path(), "*.jpg")) {
    names.push_back((file.folder ? "+" : "") + file.path.filename().string());
  }
  const std::string above = "+" + folder.Path().parent_path().filename().string();
  EXPECT_EQ(names, (std::vector<std::string>{above, "+zoo", "A.JPG", "b.jpg"}));
}

TEST(FileListing, AFolderThatCantBeReadLeadsBackUp) {
  const auto listed = ListFolder("/nowhere/at/all", "*");
  ASSERT_EQ(listed.size(), 1u);
  EXPECT_EQ(listed[0].path, "/nowhere/at");
}

TEST(FileListing, PicturesAreWhereTheDesktopSaysElseInPicturesElseAtHome) {
  TemporaryFolder home;
  const Variable home_variable("HOME", home.Path().string());
  const Variable config("XDG_CONFIG_HOME", "");
  EXPECT_EQ(PicturesFolder(), home.Path());
  home.Make("Pictures/a.jpg");
  EXPECT_EQ(PicturesFolder(), home.Path() / "Pictures");
  home.Make("Bilder/a.jpg");
  home.Make(".config/user-dirs.dirs", "# ours\nXDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
  EXPECT_EQ(PicturesFolder(), home.Path() / "Bilder");
}

}  // namespace
}  // namespace quendle
