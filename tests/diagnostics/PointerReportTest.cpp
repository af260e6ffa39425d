#include "diagnostics/PointerReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ReportBench : testing::Test, LogicBench {
  ReportBench() {
    // The start button has two regions and an animation that runs on.
    PutObject(files, {.type = "button",
                      .name = "start",
                      .width = 50,
                      .height = 50,
                      .states = {{.name = "default", .animation = "blink", .script = "click"}},
                      .animations = {{.name = "blink", .interval = 100, .loop = "loop"}},
                      .scripts = {{"click", OnClick("mtp cs_floor1hall1\n")}}});
    std::string frames;
    for (const char* name : {"f1", "f2"}) {
      frames += std::string(name) +
                "\n<CurrentDirectory>\\regions.txt\nstable\nstable\n0\n0\n50\n50\n-\n";
    }
    files.Put("\\Info\\start\\frames.txt", frames);
    files.Put("\\Info\\start\\regions.txt", "left\n0\n0\n20\n50\nright\n30\n0\n50\n50\n");
  }
  std::vector<ObjectUnder> At(int x, int y) { return ObjectsUnder({x, y}, *logic, objects); }
  static std::vector<std::string> Paths(const std::vector<ObjectUnder>& objects) {
    std::vector<std::string> paths;
    for (const ObjectUnder& object : objects) paths.push_back(object.path);
    return paths;
  }
};

using PointerReportTest = ReportBench;

TEST_F(PointerReportTest, TellsWhatAnObjectIsAndWhatAClickWouldFind) {
  Start();
  const std::vector<ObjectUnder> found = At(135, 120);
  ASSERT_THAT(Paths(found), ElementsAre("introscreen/start"));
  const ObjectUnder& start = found[0];
  EXPECT_TRUE(start.hit);
  EXPECT_FALSE(start.hidden);
  EXPECT_EQ(start.type, "button");
  EXPECT_EQ(start.state, "default");
  EXPECT_EQ(start.script, "click");
  EXPECT_EQ(start.region, "right");
  EXPECT_EQ(start.animation, "blink");
  EXPECT_EQ(start.area, (Rect{100, 100, 150, 150}));
  ASSERT_EQ(start.frames.size(), 1u);
  EXPECT_EQ(start.frames[0].area, (Rect{100, 100, 150, 150}));
  ASSERT_EQ(start.regions.size(), 2u);
  EXPECT_EQ(start.regions[1].name, "right");
  EXPECT_EQ(start.regions[1].area, (Rect{130, 100, 151, 151})) << "all edges belong to it";
}

TEST_F(PointerReportTest, TheTimerTellsWhenItIsDue) {
  Start();
  Tick(30);
  const ObjectUnder start = At(135, 120).at(0);
  EXPECT_GT(start.timer, 0);
  EXPECT_EQ(start.interval, 100);
  EXPECT_EQ(start.due, 70);
}

TEST_F(PointerReportTest, BetweenTheRegionsThereIsNone) {
  Start();
  EXPECT_EQ(At(125, 120).at(0).region, "");
  EXPECT_EQ(At(110, 120).at(0).region, "left");
}

TEST_F(PointerReportTest, LookingChangesNothing) {
  Start();
  At(110, 120);
  At(135, 120);
  EXPECT_EQ(InnerObject(*Child(logic->CurrentScreen(), "start"))->CurrentRegion(), "");
}

TEST_F(PointerReportTest, OverNothingThereIsNothing) {
  Start();
  EXPECT_THAT(At(700, 20), IsEmpty());
}

TEST_F(PointerReportTest, OnTheEdgeAFrameCoversThePointAndIsNotHit) {
  Start();
  const std::vector<ObjectUnder> found = At(100, 120);
  ASSERT_THAT(Paths(found), ElementsAre("introscreen/start"));
  EXPECT_FALSE(found[0].hit);
  EXPECT_EQ(found[0].region, "");
}

TEST_F(PointerReportTest, AHiddenObjectIsNamedAsHidden) {
  Start();
  Send("toscreen_currentscreen_hideobj_start");
  const std::vector<ObjectUnder> found = At(135, 120);
  ASSERT_THAT(Paths(found), ElementsAre("introscreen/start"));
  EXPECT_TRUE(found[0].hidden);
  EXPECT_FALSE(found[0].hit);
}

TEST_F(PointerReportTest, TheTopmostComesFirstAndThePointersOwnPictureIsLeftOut) {
  Start();
  Send("cs_dogroom");
  Move(320, 310);
  EXPECT_THAT(Paths(At(320, 310)), ElementsAre("dogroom/dog"));
  Send("exitondemand");
  Child(logic->CurrentScreen(), "dog")->Setypos(250);
  EXPECT_THAT(Paths(At(320, 280)), ElementsAre("cursors/exitdialog", "dogroom/dog"));
}

TEST_F(PointerReportTest, ToolsCountOnlyWhileTheBarIsOn) {
  Start();
  EXPECT_THAT(At(80, 520), IsEmpty());
  Send("cs_dogroom");
  EXPECT_THAT(Paths(At(80, 520)), ElementsAre("tools/handtool"));
}

TEST_F(PointerReportTest, APointFarOutsideIsOnNothing) {
  Start();
  EXPECT_THAT(At(1000000, -1000000), IsEmpty());
}

}  // namespace
}  // namespace quendle
