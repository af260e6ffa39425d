#include "base/FatalError.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

using Strings = std::vector<std::string>;

TEST(FatalError, ShowsFileLineAndText) {
  FatalError error("\"forty\" is not a number", {"Info\\x.txt", 7});
  EXPECT_STREQ(error.what(), "Info\\x.txt:7: \"forty\" is not a number");
  EXPECT_EQ(error.BoxText(), "Info\\x.txt:7: \"forty\" is not a number");
  EXPECT_EQ(error.Text(), "\"forty\" is not a number");
  EXPECT_EQ(error.Place().file, "Info\\x.txt");
  EXPECT_EQ(error.Place().line, 7);
}

TEST(FatalError, LeavesOutWhatIsNotKnown) {
  EXPECT_STREQ(FatalError("text", {"Info\\x.txt", 0}).what(), "Info\\x.txt: text");
  EXPECT_STREQ(FatalError("text").what(), "text");
  EXPECT_STREQ(FatalError("text", {"", 7}).what(), "text");
}

TEST(FatalError, WithBoxShowsExactlyTheGivenText) {
  FatalError error = FatalError::WithBox("File x not found", {"x", 0});
  EXPECT_EQ(error.BoxText(), "File x not found");
  EXPECT_STREQ(error.what(), "x: File x not found");
}

TEST(FatalError, KeepsItsTextsWhenItIsCopied) {
  FatalError copy("");
  {
    FatalError error("text", {"a.txt", 1});
    copy = error;
  }
  EXPECT_STREQ(copy.what(), "a.txt:1: text");
}

TEST(NearestName, IsTheOneWithTheFewestChanges) {
  const Strings names = {"default", "Highlight", "done"};
  EXPECT_EQ(NearestName("defualt", names), "default");
  EXPECT_EQ(NearestName("higlight", names), "Highlight");
  EXPECT_EQ(NearestName("don", names), "done");
}

TEST(NearestName, IgnoresCase) {
  EXPECT_EQ(NearestName("HIGHLIGHT", {"default", "Highlight"}), "Highlight");
}

TEST(NearestName, TakesTheFirstOfEquallyNear) {
  EXPECT_EQ(NearestName("doar", {"door", "dear"}), "door");
}

TEST(NearestName, IsEmptyWhenNothingIsNear) {
  EXPECT_EQ(NearestName("window", {"default", "done"}), "");
  EXPECT_EQ(NearestName("window", {}), "");
  EXPECT_EQ(NearestName("a", {"xyz"}), "");
}

TEST(DidYouMean, IsAHalfSentenceOrNothing) {
  EXPECT_EQ(DidYouMean("dor", {"door"}), "; did you mean \"door\"?");
  EXPECT_EQ(DidYouMean("window", {"door"}), "");
}

}  // namespace
}  // namespace quendle
