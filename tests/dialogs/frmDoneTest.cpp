#include "dialogs/frmDone.h"

#include <gtest/gtest.h>

#include "dialogs/FormBench.h"

namespace quendle {
namespace {

class frmDoneTest : public ::testing::Test, public FormBench {
 protected:
  frmDoneTest() { form.Show(); }
  RecordingPrompt prompt;
  frmDone form{Services(), prompt};
};

TEST_F(frmDoneTest, ShowsItsTexts) {
  EXPECT_EQ(form.Record().caption, "Thank You!");
  EXPECT_EQ(TextOf(form.Record(), "Label1"), "Stage 4 of 4");
  EXPECT_EQ(TextOf(form.Record(), "Label4"), "You are done!");
  EXPECT_EQ(TextOf(form.Record(), "Label3"),
            "Remember, you can always turn off the photo-personalization feature in the "
            "\"Game Options\" menu. ");
}

TEST_F(frmDoneTest, OkTakesThePhotographIntoTheGame) {
  host.Press("Picture1", 1);
  EXPECT_TRUE(settings.PersonalizeOn);
  EXPECT_FALSE(form.Record().visible);
  EXPECT_EQ(prompt.calls, (std::vector<std::string>{"Show"}));
}

TEST_F(frmDoneTest, ClosingLeavesTheSettingAsItWas) {
  host.Press("Picture1", 7);
  EXPECT_FALSE(settings.PersonalizeOn);
  EXPECT_FALSE(form.Record().visible);
  EXPECT_EQ(prompt.calls, (std::vector<std::string>{"Show"}));
}

}  // namespace
}  // namespace quendle
