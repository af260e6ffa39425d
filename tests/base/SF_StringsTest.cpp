#include "base/SF_Strings.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(SF_Strings, IsNothingIsTheEmptyTextOnly) {
  EXPECT_TRUE(SF_isNothing(""));
  EXPECT_FALSE(SF_isNothing(" "));
  EXPECT_FALSE(SF_isNothing("nothing"));
}

TEST(SF_Strings, InstrRevGivesThePositionOfTheLastOccurrenceFromOne) {
  EXPECT_EQ(SF_InstrRev("a\\b\\c", "\\"), 4);
  EXPECT_EQ(SF_InstrRev("abcABC", "bc"), 5);
  EXPECT_EQ(SF_InstrRev("aaa", "aa"), 2);
  EXPECT_EQ(SF_InstrRev("Abc", "aBC"), 1);
  EXPECT_EQ(SF_InstrRev("abc", "a"), 1);
}

TEST(SF_Strings, InstrRevGivesZeroForAMissingOrEmptyNeedle) {
  EXPECT_EQ(SF_InstrRev("abc", "x"), 0);
  EXPECT_EQ(SF_InstrRev("abc", ""), 0);
  EXPECT_EQ(SF_InstrRev("", "x"), 0);
  EXPECT_EQ(SF_InstrRev("", ""), 0);
}

TEST(SF_Strings, RemoveTakesOutTheFirstOccurrenceIgnoringCase) {
  EXPECT_EQ(SF_remove("elseif x", "ELSEIF"), " x");
  EXPECT_EQ(SF_remove("abcabc", "b"), "acabc");
  EXPECT_EQ(SF_remove("abc", "abc"), "");
}

TEST(SF_Strings, RemoveLeavesATextWithoutTheNeedle) {
  EXPECT_EQ(SF_remove("abc", ""), "abc");
  EXPECT_EQ(SF_remove("abc", "x"), "abc");
  EXPECT_EQ(SF_remove("", "x"), "");
}

TEST(SF_Strings, RemoveDoesNotLookAgainWhenThePartsMakeANewNeedle) {
  EXPECT_EQ(SF_remove("abab", "ba"), "ab");
}

TEST(SF_Strings, ReplaceTouchesTheFirstOccurrenceOnly) {
  EXPECT_EQ(SF_replace("abab", "b", "x"), "axab");
  EXPECT_EQ(SF_replace("ABab", "b", "xyz"), "Axyzab");
  EXPECT_EQ(SF_replace("abab", "b", ""), "aab");
}

TEST(SF_Strings, ReplaceDoesNothingWhenTheTwoNeedlesAreEqual) {
  EXPECT_EQ(SF_replace("abc", "B", "b"), "abc");
  EXPECT_EQ(SF_replace("aBc", "b", "B"), "aBc");
}

TEST(SF_Strings, ReplaceLeavesATextWithoutTheNeedle) {
  EXPECT_EQ(SF_replace("abc", "", "x"), "abc");
  EXPECT_EQ(SF_replace("abc", "x", "y"), "abc");
}

TEST(SF_Strings, SplitLeftIsWhatStandsBeforeTheFirstOccurrence) {
  EXPECT_EQ(SF_splitLeft("abc", "a"), "");
  EXPECT_EQ(SF_splitLeft("a=b=c", "="), "a");
  EXPECT_EQ(SF_splitLeft("one AND two", "and"), "one ");
  EXPECT_EQ(SF_splitLeft("abc", "x"), "abc");
  EXPECT_EQ(SF_splitLeft("abc", ""), "abc");
}

TEST(SF_Strings, SplitRightIsWhatStandsBehindTheFirstOccurrence) {
  EXPECT_EQ(SF_splitRight("abc", "c"), "");
  EXPECT_EQ(SF_splitRight("a=b=c", "="), "b=c");
  EXPECT_EQ(SF_splitRight("one AND two", "and"), " two");
  EXPECT_EQ(SF_splitRight("abc", "x"), "abc");
  EXPECT_EQ(SF_splitRight("abc", ""), "abc");
}

TEST(SF_Strings, ANeedleLongerThanTheTextIsMissing) {
  EXPECT_EQ(SF_remove("ab", "abc"), "ab");
  EXPECT_EQ(SF_replace("ab", "abc", "x"), "ab");
  EXPECT_EQ(SF_splitLeft("ab", "abc"), "ab");
  EXPECT_EQ(SF_splitRight("ab", "abc"), "ab");
  EXPECT_EQ(SF_InstrRev("ab", "abc"), 0);
}

TEST(SF_Strings, CaseIsIgnoredOutsideAsciiToo) {
  EXPECT_EQ(SF_remove("x\xC4y", "\xE4"), "xy");
  EXPECT_EQ(SF_splitRight("\x8Akoda", "\x9A"), "koda");
}

}  // namespace
}  // namespace quendle
