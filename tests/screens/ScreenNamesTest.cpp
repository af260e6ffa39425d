#include "screens/ScreenNames.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(ScreenNames, TheBarAndThePointersAreLayers) {
  EXPECT_TRUE(IsLayer("Tools"));
  EXPECT_TRUE(IsLayer("CURSORS"));
  EXPECT_FALSE(IsLayer("introscreen"));
  EXPECT_FALSE(IsLayer("toolsroom"));
}

TEST(ScreenNames, FourWordsKeepAScreenOutOfTheSavedGame) {
  for (const char* name : {"Tutorial1", "cursors", "xSquarex", "shooterscreen"}) {
    EXPECT_TRUE(IsNeverSaved(name)) << name;
  }
  EXPECT_FALSE(IsNeverSaved("tools"));
  EXPECT_TRUE(IsTutorial("mytutorial"));
  EXPECT_FALSE(IsTutorial("squarescreen"));
}

}  // namespace
}  // namespace quendle
