#include "subgames/SubgameObject.h"

#include <gtest/gtest.h>

#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

class NotedMenu : public ForwardingObject {
 public:
  using ForwardingObject::ForwardingObject;
  void HandleMessage(const std::string& message, GameObjectInterface*, bool, bool&) override {
    messages.push_back(message);
  }
  Lines messages;
};

struct Subgame : testing::Test {
  Subgame() {
    bench.Register<NotedMenu>("menu");
    bench.PutObject("themenu", "menu");
    bench.PutObject("frame", "subgame", {"\\info\\themenu.txt"});
    frame = CreateGameObject(bench.world, "\\info\\frame.txt", 0, bench.top);
  }
  NotedMenu& Menu() { return dynamic_cast<NotedMenu&>(*frame->Children().Item("themenu")); }

  SubgameBench bench{"playareasquare", "nothing"};
  ObjectRef frame;
};

TEST_F(Subgame, AScoreAnywhereInAMessageGoesDownToTheMenu) {
  frame->Send("xScoreValue_7_won");
  EXPECT_EQ(Menu().messages, Lines{"xScoreValue_7_won"});
  EXPECT_TRUE(bench.top->messages.empty()) << "scores are tested before the outcome";
}

TEST_F(Subgame, DoneWonAndLostAnywhereGoUp) {
  for (const char* message :
       {"hideobj_wonderful", "toobj_themenu_abandoned", "LOSTANDFOUND", "subgame_won"}) {
    bench.top->messages.clear();
    frame->Send(message);
    EXPECT_EQ(bench.top->messages, Lines{message});
    EXPECT_TRUE(Menu().messages.empty());
  }
}

TEST_F(Subgame, OtherMessagesAreRoutedAsInAnyObject) {
  frame->Send("hidetype_menu");
  EXPECT_FALSE(Menu().Visible());
}

TEST_F(Subgame, AScoreDoesNotClimb) {
  // A real menu drops its children, so that the score ends there.
  bench.LoadGame();
  bench.game->Send("scorevalue_5");
  EXPECT_TRUE(bench.top->messages.empty());
}

TEST_F(Subgame, VerifyingAScoreReachesNothing) {
  bool result = true;
  frame->HandleMessage("scorevalue_5", nullptr, true, result);
  EXPECT_TRUE(result);
  EXPECT_TRUE(Menu().messages.empty());
}

}  // namespace
}  // namespace quendle
