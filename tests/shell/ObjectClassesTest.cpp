#include "shell/ObjectClasses.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "logic/BodyViewObject.h"
#include "logic/ButtonObject.h"
#include "logic/MenuObject.h"
#include "logic/PatientObject.h"
#include "logic/ScreenObject.h"
#include "logic/ToolObject.h"
#include "shell/Globals.h"
#include "subgames/PlayAreaObject_Bkr.h"
#include "subgames/PlayAreaObject_Bob.h"
#include "subgames/PlayAreaObject_Shtr.h"
#include "subgames/PlayAreaObject_Square.h"
#include "subgames/PointSystemObject.h"
#include "subgames/SubgameObject.h"
#include "support/Fatal.h"
#include "support/TestPlatform.h"
#include "support/TestTree.h"

namespace quendle {
namespace {

class ObjectClasses : public ::testing::Test {
 protected:
  template <class Class>
  bool Makes(const char* word) {
    return std::dynamic_pointer_cast<Class>(globals_.factory.Make(word, globals_.objects)) !=
           nullptr;
  }
  TestPlatform platform_;
  Globals globals_{platform_.settings, platform_.ports, platform_.content};
};

TEST_F(ObjectClasses, EveryTypeWordMakesItsClassInAnyCase) {
  EXPECT_TRUE(Makes<ScreenObject>("hall"));
  EXPECT_TRUE(Makes<ScreenObject>("OVERLAY"));
  EXPECT_TRUE(Makes<ButtonObject>("dialog"));
  EXPECT_TRUE(Makes<ButtonObject>("button"));
  EXPECT_TRUE(Makes<ButtonObject>("key"));
  EXPECT_TRUE(Makes<SubgameObject>("subgame"));
  EXPECT_TRUE(Makes<PatientObject>("doctor"));
  EXPECT_TRUE(Makes<PatientObject>("Patient"));
  EXPECT_TRUE(Makes<MenuObject>("menu"));
  EXPECT_TRUE(Makes<PlayAreaObject_Square>("playareasquare"));
  EXPECT_TRUE(Makes<PlayAreaObject_Bkr>("playareablinker"));
  EXPECT_TRUE(Makes<PlayAreaObject_Bob>("playareabobbler"));
  EXPECT_TRUE(Makes<PlayAreaObject_Shtr>("playAreaShooter"));
  EXPECT_TRUE(Makes<ToolObject>("tool"));
  EXPECT_TRUE(Makes<BodyViewObject>("bodyview"));
  EXPECT_TRUE(Makes<PointSystemObject>("pointsystem"));
}

TEST_F(ObjectClasses, ThereAreNoOtherTypeWords) {
  EXPECT_EQ(globals_.factory.TypeWords().size(), 16U);
  for (const char* word : {"", "gameobject", "scoring", "cursor", "hall "}) {
    EXPECT_EQ(globals_.factory.Make(word, globals_.objects), nullptr) << word;
  }
}

TEST_F(ObjectClasses, AnUnknownWordIsFatalAndTheNearestIsNamed) {
  TestTree tree(platform_.files);
  tree.Object("door", "pacient");
  tree.Write();
  EXPECT_EQ(
      FatalOf([&] { CreateGameObject(globals_.objects, "C:\\Game\\Info\\door\\door.txt", 0, {}); }),
      "Info\\door\\door.txt:1: \"pacient\" is no type word; did you mean \"patient\"?");
}

}  // namespace
}  // namespace quendle
