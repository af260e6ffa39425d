#include "script/Pattern.h"

#include <gtest/gtest.h>

#include "base/SF_Strings.h"
#include "base/SeededRandom.h"
#include "base/Text.h"
#include "script/ActionText.h"

namespace quendle {
namespace {

bool Matches(const std::string& pattern, const std::string& text) {
  return Pattern(pattern).Matches(ActionText(text));
}

// The rule word for word, with the string routines that it is told in.
bool MatchesByTheRule(const std::string& pattern, const std::string& text) {
  const std::size_t star = pattern.find('*');
  if (star == std::string::npos) return EqualsNoCase(text, pattern);
  const std::string rest = SF_remove(pattern, "*");
  if (!ContainsNoCase(text, rest)) return false;
  const std::size_t without = SF_remove(text, rest).size();
  return without ==
         (star == 0 ? SF_splitLeft(text, rest).size() : SF_splitRight(text, rest).size());
}

TEST(Patterns, WithoutAStarTheWholeTextIsComparedInAnyCase) {
  EXPECT_TRUE(Matches("handmouseclick", "HandMouseClick"));
  EXPECT_FALSE(Matches("mouseclick", "handmouseclick"));
  EXPECT_FALSE(Matches("handmouse", "handmouseclick"));
}

TEST(Patterns, AStarInFrontAsksForTheEnd) {
  EXPECT_TRUE(Matches("*over", "doorhandmouseover"));
  EXPECT_TRUE(Matches("*OVER", "over"));
  EXPECT_FALSE(Matches("*over", "overnot"));
  EXPECT_FALSE(Matches("*over", "ver"));
}

TEST(Patterns, OnlyTheFirstOccurrenceCounts) {
  EXPECT_FALSE(Matches("*o", "foo"));
  EXPECT_FALSE(Matches("*x", "xx"));
  EXPECT_TRUE(Matches("*x", "yx"));
  EXPECT_TRUE(Matches("x*", "xx"));
  EXPECT_FALSE(Matches("*aba", "ababa"));
}

TEST(Patterns, AStarAnywhereElseAsksForTheFront) {
  EXPECT_TRUE(Matches("hand*", "handmouseclick"));
  EXPECT_FALSE(Matches("hand*", "doorhandmouseclick"));
  EXPECT_TRUE(Matches("a*b", "abc"));
  EXPECT_FALSE(Matches("a*b", "axb"));
  EXPECT_TRUE(Matches("a*b", "AB"));
}

TEST(Patterns, AStarAloneMatchesAnything) {
  EXPECT_TRUE(Matches("*", "anything"));
  EXPECT_TRUE(Matches("*", ""));
}

TEST(Patterns, OnlyTheFirstStarIsSpecial) {
  EXPECT_TRUE(Matches("**", "a*"));
  EXPECT_FALSE(Matches("**", "aa"));
  EXPECT_TRUE(Matches("a**", "a*b"));
  EXPECT_FALSE(Matches("a**", "ab"));
}

TEST(Patterns, NeedlesLongerThanAMachineWordAreComparedWhole) {
  EXPECT_TRUE(Matches("*handmouseclick", "xhandmouseclick"));
  EXPECT_FALSE(Matches("*handmouseclick", "xxandmouseclick"));
  EXPECT_TRUE(Matches("handmouseclick*", "handmouseclicknot"));
  EXPECT_FALSE(Matches("handmouseclick*", "handmouseclacknot"));
}

TEST(Patterns, AgreeWithTheRuleOnManySmallTexts) {
  SeededRandom random(7);
  const std::string letters = "aAb*";
  const auto draw = [&](int longest) {
    std::string text;
    const int length = static_cast<int>(random.Rnd() * (longest + 1));
    for (int i = 0; i < length; ++i) {
      text += letters[static_cast<std::size_t>(random.Rnd() * 4)];
    }
    return text;
  };
  int matches = 0;
  for (int i = 0; i < 60000; ++i) {
    const std::string pattern = i % 3 == 0 ? "*" + draw(4) : draw(5);
    const std::string text = i % 5 == 0 ? draw(14) : draw(6);
    if (pattern.empty()) continue;
    const bool expected = MatchesByTheRule(pattern, text);
    ASSERT_EQ(Matches(pattern, text), expected) << "\"" << pattern << "\" on \"" << text << "\"";
    matches += expected ? 1 : 0;
  }
  EXPECT_GT(matches, 5000);
}

TEST(ActionTexts, CarryTheRegionInFrontAndNotBehind) {
  const ActionText action("HandMouseClick");
  EXPECT_EQ(action.InRegion("Head").Text(), "HeadHandMouseClick");
  EXPECT_EQ(action.Not().Text(), "HandMouseClicknot");
  EXPECT_EQ(&action.Not(), &action.Not()) << "made once";
  EXPECT_TRUE(Pattern("*mouseclicknot").Matches(action.Not()));
  EXPECT_TRUE(Pattern("headhand*").Matches(action.InRegion("Head")));
}

}  // namespace
}  // namespace quendle
