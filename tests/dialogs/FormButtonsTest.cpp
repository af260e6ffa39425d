#include <gtest/gtest.h>

#include "dialogs/FormBench.h"
#include "dialogs/PictureForm.h"

namespace quendle {
namespace {

using Log = std::vector<std::string>;

class ThreeButtons : public PictureForm {
 public:
  explicit ThreeButtons(FormServices services) : PictureForm(services, "ThreeButtons", {400, 300}) {
    AddButtons({
        {13, "c", "Third", {}, [this] { log.push_back("third"); }},
        {1, "a", "First", {}, [this] { log.push_back("first"); }},
        {5, "b", "Second", {}, [this] { log.push_back("second"); }},
    });
    AddTitleButtons(7, [this] { log.push_back("close"); });
  }
  void QueryClose() override {}
  Log PressOn(int index) {
    Control control;
    control.kind = ControlKind::kPicture;
    control.index = index;
    Press(control, {});
    return std::exchange(log, {});
  }
  int Last() const { return LastPicture(); }
  Log log;
};

struct FormButtonsTest : testing::Test, FormBench {
  ThreeButtons form{Services()};
};

TEST_F(FormButtonsTest, AnEvenElementActsLikeItsOddPartner) {
  for (int index : {1, 2}) EXPECT_EQ(form.PressOn(index), Log{"first"}) << index;
  for (int index : {5, 6}) EXPECT_EQ(form.PressOn(index), Log{"second"}) << index;
  for (int index : {11, 12}) EXPECT_EQ(form.PressOn(index), Log{"close"}) << index;
  for (int index : {13, 14}) EXPECT_EQ(form.PressOn(index), Log{"third"}) << index;
}

TEST_F(FormButtonsTest, AnElementBehindAButtonIsThatButtonAndOneBeforeAllIsNone) {
  EXPECT_EQ(form.PressOn(3), Log{"first"}) << "there is no button 3";
  EXPECT_EQ(form.PressOn(99), Log{"third"});
  for (int index : {0, -1}) EXPECT_EQ(form.PressOn(index), Log{}) << index;
}

TEST_F(FormButtonsTest, TheTitleBarMinimisesBeepsAndCloses) {
  EXPECT_EQ(form.PressOn(7), Log{});
  EXPECT_EQ(form.Record().window_state, WindowState::kMinimised);
  EXPECT_EQ(system.beeps, 0);
  EXPECT_EQ(form.PressOn(10), Log{});
  EXPECT_EQ(system.beeps, 1);
  EXPECT_EQ(form.PressOn(11), Log{"close"});
}

TEST_F(FormButtonsTest, TheLastElementIsTheHighlightOfTheLastButton) {
  EXPECT_EQ(form.Last(), 14);
  form.PointerOver(*form.Record().Find("Picture1", 13));
  EXPECT_TRUE(form.Record().Find("Picture1", 14)->visible);
  form.PointerOverForm();
  EXPECT_FALSE(form.Record().Find("Picture1", 14)->visible);
}

}  // namespace
}  // namespace quendle
