#include "backends/forms/CaptionLayer.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "backends/forms/CaptionSetting.h"
#include "backends/headless/VirtualClock.h"
#include "platform/Faults.h"
#include "support/BlockFonts.h"

namespace quendle {
namespace {

class Speaker : public CaptionSource {
 public:
  bool HasCaptions() override { return any; }
  Caption SpokenNow() override {
    ++asked;
    return caption;
  }
  bool any = true;
  Caption caption;
  int asked = 0;
};

struct CaptionLayerBench : testing::Test {
  CaptionLayerBench() { layer.SetSource(&speaker); }

  bool Press(FunctionKey key) { return layer.TakeKey(key); }
  void Pass(int milliseconds) { clock.AdvanceTo(clock.Monotonic() + Milliseconds(milliseconds)); }
  // What stands over the frame now, in pixels of the output; empty for nothing.
  Rect Seen(bool anew = false) {
    if (const LayerContents* contents = layer.Update(view, anew)) seen = *contents;
    if (seen.pictures.empty()) return {};
    const LayerPicture& picture = seen.pictures[0];
    const Size size = picture.canvas.PixelSize();
    return {picture.at.x, picture.at.y, picture.at.x + size.width, picture.at.y + size.height};
  }

  Faults faults;
  MemoryFileSystem files{"C:\\game", &faults};
  VirtualClock clock;
  BlockFonts fonts;
  TextPainter text{fonts};
  CaptionSetting setting{files, "C:\\game"};
  Speaker speaker;
  CaptionLayer layer{text, clock, setting};
  LayerView view{{800, 600}, {0, 0, 800, 600}, std::nullopt};
  LayerContents seen;
};

using CaptionLayerTest = CaptionLayerBench;
const Rect kNothing;

TEST_F(CaptionLayerTest, OffNothingIsShownAndNobodyIsAsked) {
  speaker.caption.text = "Hello!";
  EXPECT_EQ(Seen(), kNothing);
  EXPECT_EQ(speaker.asked, 0);
}

TEST_F(CaptionLayerTest, ASentenceStandsAtTheBottomInTheMiddleWhileItIsSaid) {
  layer.SetOn(true);
  EXPECT_EQ(Seen(), kNothing);
  speaker.caption.text = "Hello!";
  const Rect area = Seen();
  EXPECT_GT(area.Width(), 50);
  EXPECT_NEAR(area.left + area.right, 800, 1);
  EXPECT_EQ(area.bottom, 590);
  speaker.caption.text.clear();
  EXPECT_EQ(Seen(), kNothing);
}

TEST_F(CaptionLayerTest, NothingIsPaintedTwice) {
  layer.SetOn(true);
  speaker.caption.text = "Hello!";
  EXPECT_NE(layer.Update(view, false), nullptr);
  EXPECT_EQ(layer.Update(view, false), nullptr);
  EXPECT_NE(layer.Update(view, true), nullptr) << "the device lost it";
}

TEST_F(CaptionLayerTest, ItStandsAboveWhatIsInUse) {
  layer.SetOn(true);
  speaker.caption = {"Hello!", 500};
  EXPECT_EQ(Seen().bottom, 490);
}

TEST_F(CaptionLayerTest, ItMakesWayForThePointer) {
  layer.SetOn(true);
  speaker.caption.text = "Hello!";
  view.pointer = {400, 300};
  EXPECT_EQ(Seen().bottom, 590);
  view.pointer = {400, 560};
  EXPECT_EQ(Seen().top, 10);
  view.pointer = {400, 20};
  EXPECT_EQ(Seen().bottom, 590);
}

TEST_F(CaptionLayerTest, ItGrowsWithTheFrame) {
  layer.SetOn(true);
  speaker.caption.text = "Hello!";
  const Rect small = Seen();
  view = {{1700, 1200}, {50, 0, 1650, 1200}, std::nullopt};
  const Rect large = Seen();
  EXPECT_NEAR(large.Width(), 2 * small.Width(), 6);
  EXPECT_NEAR(large.left + large.right, 1700, 1);
  EXPECT_EQ(large.bottom, 1180);
}

TEST_F(CaptionLayerTest, TheLongestSentenceFitsTheFrame) {
  layer.SetOn(true);
  while (speaker.caption.text.size() < 155) speaker.caption.text += "Wide. ";
  const Rect area = Seen();
  EXPECT_GE(area.left, 0);
  EXPECT_LE(area.right, 800);
  EXPECT_LT(area.Height(), 200);
}

TEST_F(CaptionLayerTest, F2SwitchesKeepsTheChoiceAndSaysSoForAMoment) {
  EXPECT_TRUE(Press(FunctionKey::kF2));
  EXPECT_TRUE(layer.On());
  EXPECT_TRUE(setting.Read());
  EXPECT_NE(Seen(), kNothing);
  Pass(3000);
  EXPECT_EQ(Seen(), kNothing);
  EXPECT_TRUE(Press(FunctionKey::kF2));
  EXPECT_FALSE(layer.On());
  EXPECT_FALSE(setting.Read());
  speaker.caption.text = "Hello!";
  EXPECT_NE(Seen(), kNothing);
  Pass(3000);
  EXPECT_EQ(Seen(), kNothing);
}

TEST_F(CaptionLayerTest, OtherKeysAreForTheGame) {
  EXPECT_FALSE(Press(FunctionKey::kF12));
  EXPECT_FALSE(layer.On());
}

TEST_F(CaptionLayerTest, ASettingThatCannotBeWrittenStillHoldsForTheRun) {
  faults.Plan("write", 0, 0, false);
  Press(FunctionKey::kF2);
  EXPECT_TRUE(layer.On());
  EXPECT_FALSE(setting.Read());
}

TEST_F(CaptionLayerTest, TheSettingIsAWordInAFile) {
  for (const char* word : {"On", "on\r\n", " ON \nmore"}) {
    files.Put("\\ShowCaptions.txt", word);
    EXPECT_TRUE(setting.Read()) << word;
  }
  for (const char* word : {"", "Off", "Once", "\nOn"}) {
    files.Put("\\ShowCaptions.txt", word);
    EXPECT_FALSE(setting.Read()) << word;
  }
}

}  // namespace
}  // namespace quendle
