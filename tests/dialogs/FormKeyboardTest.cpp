#include <gtest/gtest.h>

#include "dialogs/FormBench.h"
#include "dialogs/frmOptionsMenu.h"

namespace quendle {
namespace {

struct FormKeyboard : testing::Test, FormBench {
  RecordingPrompt prompt;
  frmOptionsMenu dialog{Services(), prompt};
  FormKeyboard() { dialog.Show(); }
  Form& form = dialog.Record();

  std::string After(FormKey key) {
    host.Key(key);
    return FocusName(form);
  }
};

TEST_F(FormKeyboard, NothingHasTheFocusUntilAKeyIsUsed) {
  EXPECT_EQ(FocusName(form), "(none)");
  EXPECT_EQ(After(FormKey::kSpace), "(none)");
}

TEST_F(FormKeyboard, TabWalksTheControlsAndEachGroupIsOneStop) {
  std::vector<std::string> walk;
  for (int i = 0; i < 12; ++i) walk.push_back(After(FormKey::kTab));
  EXPECT_EQ(walk, (std::vector<std::string>{"optMedium", "optOff", "opt32Bit", "chkResetGame",
                                            "Label2", "Label3", "ok-highlight",
                                            "minimise-highlight", "maximise-highlight",
                                            "close-highlight", "optMedium", "optOff"}));
}

TEST_F(FormKeyboard, BackTabWalksTheOtherWay) {
  EXPECT_EQ(After(FormKey::kBackTab), "close-highlight");
  EXPECT_EQ(After(FormKey::kBackTab), "maximise-highlight");
  for (int i = 0; i < 4; ++i) host.Key(FormKey::kBackTab);
  EXPECT_EQ(FocusName(form), "Label2");
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close");
}

TEST_F(FormKeyboard, AButtonWithTheFocusIsHighlightedUntilTheFocusGoesOn) {
  for (int i = 0; i < 7; ++i) host.Key(FormKey::kTab);
  EXPECT_EQ(SeenPictures(form), "ok-highlight minimise maximise close");
  host.Key(FormKey::kTab);
  EXPECT_EQ(SeenPictures(form), "ok minimise-highlight maximise close");
  host.OverForm();
  EXPECT_EQ(FocusName(form), "minimise") << "the focus stays on the picture that is seen";
}

TEST_F(FormKeyboard, ArrowsMoveInsideTheGroupAndSet) {
  host.Key(FormKey::kTab);
  EXPECT_EQ(After(FormKey::kDown), "optHard");
  EXPECT_EQ(ValueOf(form, "optHard"), 1);
  EXPECT_EQ(ValueOf(form, "optMedium"), 0);
  EXPECT_EQ(After(FormKey::kRight), "optEasy") << "round the end of the group";
  EXPECT_EQ(After(FormKey::kUp), "optHard");
  EXPECT_EQ(After(FormKey::kLeft), "optMedium");
  EXPECT_EQ(ValueOf(form, "optOff"), 1) << "other groups stay";
}

TEST_F(FormKeyboard, ArrowsElsewhereWalk) {
  for (int i = 0; i < 4; ++i) host.Key(FormKey::kTab);
  EXPECT_EQ(FocusName(form), "chkResetGame");
  EXPECT_EQ(After(FormKey::kDown), "Label2");
  EXPECT_EQ(After(FormKey::kUp), "chkResetGame");
}

TEST_F(FormKeyboard, SpaceTogglesACheckOpensALinkAndPressesAButton) {
  for (int i = 0; i < 4; ++i) host.Key(FormKey::kTab);
  host.Key(FormKey::kSpace);
  EXPECT_EQ(ValueOf(form, "chkResetGame"), 1);
  host.Key(FormKey::kSpace);
  EXPECT_EQ(ValueOf(form, "chkResetGame"), 0);
  host.Key(FormKey::kTab);
  host.Key(FormKey::kSpace);
  EXPECT_EQ(system.opened, std::vector<std::string>{settings.WebAddress});
  for (int i = 0; i < 4; ++i) host.Key(FormKey::kTab);
  host.Key(FormKey::kSpace);
  EXPECT_EQ(system.beeps, 1);
}

TEST_F(FormKeyboard, SpaceSetsARadioButton) {
  host.Key(FormKey::kTab);
  form.Find("optMedium")->value = 0;
  host.Key(FormKey::kSpace);
  EXPECT_EQ(ValueOf(form, "optMedium"), 1);
}

TEST_F(FormKeyboard, EnterIsOk) {
  host.Key(FormKey::kTab);
  host.Key(FormKey::kUp);
  host.Key(FormKey::kEnter);
  EXPECT_EQ(settings.DifficultyLevel, "Easy");
  EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"});
}

TEST_F(FormKeyboard, EnterPressesTheButtonOrLinkThatHasTheFocus) {
  host.Key(FormKey::kBackTab);
  host.Key(FormKey::kBackTab);
  host.Key(FormKey::kEnter);
  EXPECT_EQ(system.beeps, 1);
  for (int i = 0; i < 3; ++i) host.Key(FormKey::kBackTab);
  host.Key(FormKey::kEnter);
  EXPECT_EQ(system.opened, std::vector<std::string>{"mailto:" + settings.SupportAddress});
  EXPECT_TRUE(form.visible);
}

TEST_F(FormKeyboard, EscapeClosesWithoutStoring) {
  host.Press("optHard");
  host.Key(FormKey::kEscape);
  EXPECT_FALSE(form.visible);
  EXPECT_EQ(settings.DifficultyLevel, "normal");
  EXPECT_EQ(prompt.calls, std::vector<std::string>{"Show"});
}

TEST_F(FormKeyboard, AnOpenedFormBeginsWithoutFocusHighlightAndHover) {
  host.Over("Label2");
  host.Over("Picture1", 1);
  host.Key(FormKey::kTab);
  host.Key(FormKey::kEscape);
  dialog.Show();
  EXPECT_EQ(FocusName(form), "(none)");
  EXPECT_EQ(SeenPictures(form), "ok minimise maximise close");
  EXPECT_FALSE(form.Find("Label2")->hover);
}

TEST_F(FormKeyboard, APressOnAnOptionTakesTheFocus) {
  host.Press("opt16Bit");
  EXPECT_EQ(FocusName(form), "opt16Bit");
  EXPECT_EQ(After(FormKey::kTab), "chkResetGame");
}

}  // namespace
}  // namespace quendle
