#include "base/Words.h"

#include <gtest/gtest.h>

#include "base/FatalError.h"

namespace quendle {
namespace {

template <class Work>
std::string FaultOf(Work work) {
  try {
    work();
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fault";
}

TEST(Words, AreNumberedFromOneAndSkipEmptyPieces) {
  Words words("toobj__door_open_", '_');
  EXPECT_EQ(words.Count(), 3U);
  EXPECT_FALSE(words.Empty());
  EXPECT_EQ(words[1], "toobj");
  EXPECT_EQ(words[3], "open");
}

TEST(Words, ATextOfDelimitersHasNone) {
  EXPECT_TRUE(Words("", ' ').Empty());
  EXPECT_EQ(Words("   ", ' ').Count(), 0U);
}

TEST(Words, ReadingAWordThatIsNotThereIsFatalAndNamesTheText) {
  EXPECT_EQ(FaultOf([] { Words("cursor_", '_')[2]; }), "\"cursor_\" needs word 2 and has 1");
  EXPECT_EQ(FaultOf([] { Words("a b", ' ')[0]; }), "\"a b\" needs word 0 and has 2");
  EXPECT_EQ(FaultOf([] { Words("a b", ' ').Tail(3); }), "\"a b\" needs word 3 and has 2");
}

TEST(Words, TheTailIsJoinedWithTheDelimiter) {
  Words words("toobj_door__toobj_knob_open", '_');
  EXPECT_EQ(words.Tail(3), "toobj_knob_open");
  EXPECT_EQ(words.Tail(5), "open");
  EXPECT_EQ(words.Tail(1), "toobj_door_toobj_knob_open");
}

TEST(Words, OutliveTheTextTheyWereMadeFrom) {
  std::string text = "one two";
  Words words(text, ' ');
  text = "gone";
  EXPECT_EQ(words[2], "two");
  EXPECT_EQ(FaultOf([&] { words[3]; }), "\"one two\" needs word 3 and has 2");
}

}  // namespace
}  // namespace quendle
