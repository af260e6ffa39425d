#include <gtest/gtest.h>

#include "support/ObjectBench.h"

namespace quendle {
namespace {

TEST(ObjectBench, LoadsATreeInBothDrawingPaths) {
  for (DrawingPath path : {DrawingPath::kDirectDraw, DrawingPath::kWindow}) {
    ObjectBench bench(path);
    bench.Object("door")
        .State("default", "creak", "still", "main")
        .Still(10, 20)
        .Sound("creak")
        .Script("main", "begin\nmtp hello\nend\n");
    bench.Object("hall", "hall").Child("door", "xpos_5 ypos_7");
    TestedObject hall = bench.LoadOn("hall");
    TestedObject door = ObjectBench::Child(*hall, "door");
    ASSERT_NE(door, nullptr);
    EXPECT_TRUE(door->ObjectOn());
    EXPECT_EQ(door->xpos(), 5);
    EXPECT_EQ(ObjectBench::FramesOf(*door), (Lines{"all"}));
    EXPECT_TRUE(bench.sounds.Playing("creak.wma"));
    hall->UpdateGameObject(7, 9, ActionText("mouseclick"));
    EXPECT_EQ(bench.top->messages, (Lines{"hello"}));
  }
}

}  // namespace
}  // namespace quendle
