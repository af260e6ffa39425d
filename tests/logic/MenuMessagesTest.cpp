// A menu of a game.

#include "logic/MenuObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;

struct ScoreBench : testing::Test, LogicBench {
  ScoreBench() {
    Register<ScoreBoard>({"scoring"});
    PutObject(files, {.type = "menu", .name = "themenu", .width = 10, .height = 10});
    PutObject(files, {.type = "scoring", .name = "board", .width = 10, .height = 10});
    menu = Make("themenu");
    // A menu's own list is dropped: a board gets there only from below.
    InnerObject(*menu)->AddChildObject(Make("board"));
  }

  // Breaks off at each message.
  class ScoreBoard : public ForwardingObject {
   public:
    using ForwardingObject::ForwardingObject;
    void HandleMessage(const std::string& message, GameObjectInterface*, bool, bool&) override {
      throw FatalError("no room for " + message);
    }
  };

  ObjectRef menu;
};

using MenuMessages = ScoreBench;

TEST_F(MenuMessages, AScoreIsTracedAndTheMenuIsNamedInFaults) {
  EXPECT_THROW(menu->Send("scorevalue_3"), FatalError);
  EXPECT_THAT(trace.messages, ElementsAre("themenu: scorevalue_3"));
  EXPECT_EQ(watch.depth.FailedObject(), "themenu");
  EXPECT_EQ(watch.depth.FailedText(), "scorevalue_3");
}

TEST_F(MenuMessages, OtherMessagesAreTracedOnce) {
  menu->Send("toobj_nobody_x");
  EXPECT_THAT(trace.messages, ElementsAre("themenu: toobj_nobody_x"));
}

}  // namespace
}  // namespace quendle
