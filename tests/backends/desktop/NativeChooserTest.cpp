#include "backends/desktop/NativeChooser.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "support/TemporaryFolder.h"

namespace quendle {
namespace {

using Names_ = std::vector<std::string>;

TEST(NativeChooser, HelpersGetTitleFolderAndFilters) {
  const std::vector<FileFilter> filters = {{"All", "*.jpg;*.gif"}, {"GIF", "*.gif"}};
  EXPECT_EQ(ChooserCommand("zenity", "T", filters, "/p"),
            (Names_{"zenity", "--file-selection", "--title=T", "--filename=/p/",
                    "--file-filter=All | *.jpg *.gif", "--file-filter=GIF | *.gif"}));
  EXPECT_EQ(
      ChooserCommand("kdialog", "T", filters, "/p"),
      (Names_{"kdialog", "--title", "T", "--getopenfilename", "/p", "*.jpg *.gif|All\n*.gif|GIF"}));
}

// Runs a helper of the test's own instead of the desktop's.
class NativeChooserRun : public ::testing::Test {
 protected:
  NativeChooserRun() : before_(std::getenv("PATH")) {
    setenv("PATH", (folder.Path().string() + ":" + before_).c_str(), 1);
    unsetenv("XDG_CURRENT_DESKTOP");
  }
  ~NativeChooserRun() override { setenv("PATH", before_.c_str(), 1); }
  void Helper(const std::string& script) {
    folder.Make("zenity", "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(folder.Path() / "zenity", std::filesystem::perms::owner_all);
  }
  static void Wait(NativeChooser& chooser) {
    while (chooser.IsRunning()) usleep(1000);
  }
  TemporaryFolder folder;
  std::string before_;
};

TEST_F(NativeChooserRun, TheChosenPathIsReadWholeWithItsBlanks) {
  Helper("echo '/photos/Lena in the garden.jpg'");
  NativeChooser chooser("T", {}, "/");
  Wait(chooser);
  EXPECT_TRUE(chooser.Served());
  EXPECT_EQ(chooser.Answer(), "/photos/Lena in the garden.jpg");
}

TEST_F(NativeChooserRun, CancellingIsAnAnswerAndAFailureIsNone) {
  Helper("exit 1");
  NativeChooser cancelled("T", {}, "/");
  Wait(cancelled);
  EXPECT_TRUE(cancelled.Served());
  EXPECT_EQ(cancelled.Answer(), "");
  Helper("exit 255");
  NativeChooser failed("T", {}, "/");
  Wait(failed);
  EXPECT_FALSE(failed.Served());
}

}  // namespace
}  // namespace quendle
