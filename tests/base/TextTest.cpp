#include "base/Text.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

using Strings = std::vector<std::string>;

TEST(FoldCase, MakesLettersOfWindows1252Small) {
  EXPECT_EQ(FoldCase("ABCXYZ abcxyz 0189_[]@`"), "abcxyz abcxyz 0189_[]@`");
  EXPECT_EQ(FoldCase("\xC0\xC4\xD6\xDC\xDE"), "\xE0\xE4\xF6\xFC\xFE");
  EXPECT_EQ(FoldCase("\x8A\x8C\x8E\x9F"), "\x9A\x9C\x9E\xFF");
}

TEST(FoldCase, LeavesEverythingElse) {
  // Multiplication and division sign, sharp s, euro sign, quotation marks, guillemets.
  const std::string others = "\xD7\xF7\xDF\x80\x91\x93\xAB\xBB";
  EXPECT_EQ(FoldCase(others), others);
}

TEST(FoldCase, IsDoneAfterOneStep) {
  for (int code = 0; code < 256; ++code) {
    char once = FoldCase(static_cast<char>(code));
    EXPECT_EQ(FoldCase(once), once) << code;
  }
}

TEST(EqualsNoCase, ComparesWholeTexts) {
  EXPECT_TRUE(EqualsNoCase("Nothing", "NOTHING"));
  EXPECT_TRUE(EqualsNoCase("", ""));
  EXPECT_TRUE(EqualsNoCase("K\xC4TZCHEN", "k\xE4tzchen"));
  EXPECT_FALSE(EqualsNoCase("nothing", "nothin"));
  EXPECT_FALSE(EqualsNoCase("nothing ", "nothing"));
  EXPECT_FALSE(EqualsNoCase("a", "\xE4"));
}

TEST(FindNoCase, GivesTheFirstPlaceAtOrBehindTheStart) {
  EXPECT_EQ(FindNoCase("abcABC", "BC"), 1U);
  EXPECT_EQ(FindNoCase("abcABC", "bc", 2), 4U);
  EXPECT_EQ(FindNoCase("abcABC", "bc", 5), std::string_view::npos);
  EXPECT_EQ(FindNoCase("abc", "x"), std::string_view::npos);
  EXPECT_EQ(FindNoCase("abc", "abcd"), std::string_view::npos);
  EXPECT_EQ(FindNoCase("abc", "a", 99), std::string_view::npos);
}

TEST(FindNoCase, FindsAnEmptyNeedleWhereItStarts) {
  EXPECT_EQ(FindNoCase("abc", "", 1), 1U);
  EXPECT_EQ(FindNoCase("abc", "", 3), 3U);
  EXPECT_EQ(FindNoCase("", ""), 0U);
  EXPECT_EQ(FindNoCase("abc", "", 4), std::string_view::npos);
}

TEST(ContainsNoCase, LooksAnywhere) {
  EXPECT_TRUE(ContainsNoCase("HideObj_ToolDoor", "tool"));
  EXPECT_FALSE(ContainsNoCase("HideObj_Door", "tool"));
}

TEST(TrimBlanks, TakesBlanksAtBothEndsOnly) {
  EXPECT_EQ(TrimBlanks("  a b  "), "a b");
  EXPECT_EQ(TrimBlanks("a"), "a");
  EXPECT_EQ(TrimBlanks("   "), "");
  EXPECT_EQ(TrimBlanks(""), "");
  EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
}

TEST(SplitTokens, KeepsTheOrderAndDropsEmptyPieces) {
  EXPECT_EQ(SplitTokens("toobj_door_open", '_'), (Strings{"toobj", "door", "open"}));
  EXPECT_EQ(SplitTokens("__a___b_", '_'), (Strings{"a", "b"}));
  EXPECT_EQ(SplitTokens("a b  c", ' '), (Strings{"a", "b", "c"}));
  EXPECT_EQ(SplitTokens("same", '_'), (Strings{"same"}));
}

TEST(SplitTokens, GivesNoPieceForATextOfDelimiters) {
  EXPECT_TRUE(SplitTokens("", '_').empty());
  EXPECT_TRUE(SplitTokens("___", '_').empty());
}

TEST(SplitTokens, TellsTheCaseOfTheDelimiter) {
  EXPECT_EQ(SplitTokens("1X2x3", 'x'), (Strings{"1X2", "3"}));
}

TEST(JoinTokens, JoinsFromAPlaceOnward) {
  EXPECT_EQ(JoinTokens({"a", "b", "c"}, 1, '_'), "b_c");
  EXPECT_EQ(JoinTokens({"a", "b", "c"}, 2, '_'), "c");
  EXPECT_EQ(JoinTokens({"a", "b", "c"}, 3, '_'), "");
}

TEST(StripToolWords, TakesTheFirstToolAndTheFirstCursor) {
  EXPECT_EQ(StripToolWords("handtool"), "hand");
  EXPECT_EQ(StripToolWords("handcursor"), "hand");
  EXPECT_EQ(StripToolWords("HandToolCursor"), "Hand");
  EXPECT_EQ(StripToolWords("tooltool"), "tool");
  EXPECT_EQ(StripToolWords("door"), "door");
}

TEST(StripToolWords, LooksForCursorInWhatIsLeft) { EXPECT_EQ(StripToolWords("curtoolsor"), ""); }

TEST(WavToWma, ReplacesTheFirstEnding) {
  EXPECT_EQ(WavToWma("\\Info\\a.wav"), "\\Info\\a.wma");
  EXPECT_EQ(WavToWma("\\Info\\A.WAV"), "\\Info\\A.wma");
  EXPECT_EQ(WavToWma("\\x.wav\\a.wav"), "\\x.wma\\a.wav");
  EXPECT_EQ(WavToWma("\\Info\\a.wma"), "\\Info\\a.wma");
}

TEST(ToUtf8, TurnsWindows1252IntoUtf8) {
  EXPECT_EQ(ToUtf8("plain"), "plain");
  EXPECT_EQ(ToUtf8("K\xE4tzchen"), "K\xC3\xA4tzchen");
  EXPECT_EQ(ToUtf8("\x80 \x93\x94 \x9F"), "\xE2\x82\xAC \xE2\x80\x9C\xE2\x80\x9D \xC5\xB8");
  EXPECT_EQ(ToUtf8("\x81"), "\xC2\x81");
}

TEST(FromUtf8, TakesBackWhatToUtf8Gives) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(FromUtf8LeavingOut(ToUtf8(all)), all);
}

TEST(FromUtf8, RefusesWhatHasNoPlaceInTheEightBitSet) {
  EXPECT_EQ(FromUtf8("a \xE2\x98\x83"), std::nullopt) << "a snowman";
  EXPECT_EQ(FromUtf8("\xF0\x9F\x90\xB1"), std::nullopt) << "a cat, of four bytes";
  EXPECT_EQ(FromUtf8("\xC2\x80"), std::nullopt) << "0x80 is the euro sign";
}

TEST(FromUtf8, RefusesBytesThatAreNoUtf8) {
  EXPECT_EQ(FromUtf8("K\xE4tzchen"), std::nullopt);
  EXPECT_EQ(FromUtf8("a\xC3"), std::nullopt) << "cut off";
  EXPECT_EQ(FromUtf8("\xE2\x82"), std::nullopt) << "cut off";
  EXPECT_EQ(FromUtf8("\xE2\x82q"), std::nullopt);
  EXPECT_EQ(FromUtf8("\xA9"), std::nullopt) << "nothing leads it";
  EXPECT_EQ(FromUtf8("\xC1\xA9"), std::nullopt) << "longer than it needs";
  EXPECT_EQ(FromUtf8("\xE0\x83\xA9"), std::nullopt) << "longer than it needs";
}

TEST(FromUtf8LeavingOut, KeepsAllOthers) {
  EXPECT_EQ(FromUtf8LeavingOut("\xC5\xA0ime \xE2\x82\xAC \xE2\x80\x99"), "\x8Aime \x80 \x92");
  EXPECT_EQ(FromUtf8LeavingOut("a \xF0\x9F\x90\xB1 z \xE2\x98\x83 y"), "a  z  y");
  EXPECT_EQ(FromUtf8LeavingOut("a\xE2\x82q\xC3"), "aq");
}

}  // namespace
}  // namespace quendle
