// The three layers under the pointer, and what happens before the first of them is on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::ElementsAre;

struct LayersBench : testing::Test, LogicBench {
  struct Layer {
    std::string name;
    int left;
    int top;
  };
  static constexpr int kWidth = 100;
  static constexpr int kHeight = 80;

  // Each layer stands elsewhere, and its script gets every text.
  LayersBench() {
    for (const Layer& layer : kLayers) {
      const std::string place =
          "xpos_" + std::to_string(layer.left) + " ypos_" + std::to_string(layer.top);
      PutObject(files, {.type = "overlay",
                        .name = layer.name,
                        .directives = place,
                        .width = kWidth,
                        .height = kHeight,
                        .states = {{.name = "default", .script = "listen"}},
                        .scripts = {{"listen", "if action = nothing\nmtp playmusic\nendif\n"}}});
    }
    Start();
    Send("cs_floor1hall1");
    Send("exitondemand");  // from now on the cursors are asked as well
  }
  // What the scripts of the layers got, in the order in which they ran.
  std::vector<std::string> Press(int x, int y) {
    ForgetTrace();
    Click(x, y);
    return trace.scripts;
  }
  std::vector<std::string> Hover(int x, int y) {
    ForgetTrace();
    Move(x, y);
    return trace.scripts;
  }

  const std::vector<Layer> kLayers = {{"cursors", 5, 7}, {"tools", 9, 13}, {"floor1hall1", 20, 30}};
};

using Layers = LayersBench;

TEST_F(Layers, GetAPressOneAfterTheOtherAtTheSamePoint) {
  EXPECT_THAT(Press(60, 60), ElementsAre("cursors: handmouseclick", "tools: handmouseclick",
                                         "floor1hall1: handmouseclick"));
  EXPECT_THAT(Press(0, 0), ElementsAre("cursors: handmouseclicknot", "tools: handmouseclicknot",
                                       "floor1hall1: handmouseclicknot"));
}

TEST_F(Layers, AreAskedForThePointerAsItStandsOnTheScreenToThePixel) {
  for (const Layer& layer : kLayers) {
    const std::string hit = layer.name + ": handmouse";
    struct Case {
      int x;
      int y;
      bool on;
    };
    // The edges of a frame don't count.
    for (const Case& c :
         {Case{layer.left + 1, layer.top + 1, true}, Case{layer.left, layer.top + 1, false},
          Case{layer.left + 1, layer.top, false},
          Case{layer.left + kWidth - 1, layer.top + kHeight - 1, true},
          Case{layer.left + kWidth, layer.top + kHeight - 1, false},
          Case{layer.left + kWidth - 1, layer.top + kHeight, false}}) {
      const std::string tail = c.on ? "" : "not";
      EXPECT_THAT(Press(c.x, c.y), Contains(hit + "click" + tail)) << c.x << "," << c.y;
      EXPECT_THAT(Hover(c.x, c.y), Contains(hit + "over" + tail)) << c.x << "," << c.y;
    }
  }
}

struct MusicalIntro : testing::Test, LogicBench {};

TEST_F(MusicalIntro, BeginsBehindTheMusicOfTheGame) {
  PutObject(files, {.type = "hall",
                    .name = "introscreen",
                    .states = {{.name = "default", .sound = "welcome"}},
                    .sounds = {"welcome"}});
  Start();
  std::vector<std::string> paths;
  for (const auto& graph : graphs.made) paths.push_back(graph->path);
  EXPECT_THAT(paths, ElementsAre(std::string(kBase) + "\\info\\doodle.wma",
                                 std::string(kBase) + "\\Info\\sounds\\welcome.wma"));
}

}  // namespace
}  // namespace quendle
