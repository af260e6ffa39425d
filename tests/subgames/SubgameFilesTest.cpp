#include "subgames/SubgameFiles.h"

#include <gtest/gtest.h>

#include "subgames/SubgameBench.h"

namespace quendle {
namespace {

TextReader Reader(const std::string& text) { return TextReader(text, "Info\\file.txt"); }

std::vector<Formation> Formations(const std::string& text) {
  TextReader reader = Reader(text);
  return ReadFormations(reader);
}

TEST(SubgameFiles, TheSixthLineOfADataFileIsTheGamesPath) {
  TextReader reader = Reader("a\nb\nc\nd\ne\n\\info\\x.txt\n");
  EXPECT_EQ(ReadGamePathOfDataFile(reader), "\\info\\x.txt");
}

TEST(SubgameFiles, ADataFileOfFiveLinesOrABlankSixthHasNoGamePath) {
  TextReader five = Reader("a\nb\nc\nd\ne\n");
  EXPECT_EQ(ReadGamePathOfDataFile(five), std::nullopt);
  TextReader blank = Reader("a\nb\nc\nd\ne\n  \n");
  EXPECT_EQ(ReadGamePathOfDataFile(blank), std::nullopt);
}

TEST(SubgameFiles, LineSixOfAnObjectFileIsTheGamesPathUnlessItIsANumber) {
  TextReader path = Reader("playareasquare\nn\n0\n0\n0\n\\info\\x.txt\nd\nc\n\n");
  EXPECT_EQ(ReadGamePathOfObjectFile(path), "\\info\\x.txt");
  TextReader number = Reader("playareasquare\nn\n0\n0\n0\n600\nd\nc\n\n");
  EXPECT_EQ(ReadGamePathOfObjectFile(number), std::nullopt);
}

TEST(SubgameFiles, ACellFileOfNineLinesWhoseFirstIsAWordIsAnObjectFile) {
  TextReader object = Reader("button\nn\nx\ny\nz\nw\n\\info\\d.txt\nnothing\n\n");
  EXPECT_EQ(ReadDataPathOfObjectFile(object), "\\info\\d.txt");
}

TEST(SubgameFiles, ACellFileThatIsShortOrBeginsWithAPathOrNothingIsADataFile) {
  for (const char* text :
       {"nothing\nnothing\nnothing\nnothing\n\n", "\\a\n2\n3\n4\n5\n6\n7\n8\n9\n",
        "nothing\n2\n3\n4\n5\n6\n7\n8\n9\n", "word\n2\n3\n4\n5\n6\n7\n8\n"}) {
    TextReader reader = Reader(text);
    EXPECT_EQ(ReadDataPathOfObjectFile(reader), std::nullopt) << text;
  }
}

TEST(SubgameFiles, AHeaderHasSixLines) {
  TextReader reader = Reader("t\n12\n1\n\\cells\nx\ny\n");
  GameHeader header = ReadGameHeader(reader);
  EXPECT_EQ(header.text, "t");
  EXPECT_EQ(header.number, 12);
  EXPECT_TRUE(header.flag);
  EXPECT_EQ(header.cell_list, "\\cells");
  TextReader five = Reader("t\n12\n0\n\\cells\nx\n");
  EXPECT_EQ(FatalOf([&] { ReadGameHeader(five); }),
            "Info\\file.txt:6: the file ends where line 6 of a game header should stand");
  TextReader word = Reader("t\ntwelve\n0\n\\cells\nx\ny\n");
  EXPECT_EQ(FatalOf([&] { ReadGameHeader(word); }),
            "Info\\file.txt:2: \"twelve\" is not a number (number in line 2 of a game header)");
}

TEST(SubgameFiles, NumbersOfABoardAreTheLeadingNumbersOfTheirLines) {
  TextReader reader = Reader("\\tile\n90 seconds\n3x3\n99.5\nleft\n-4\na\nb\n");
  SquareData data = ReadSquareData(reader);
  EXPECT_EQ(data.cell_file, "\\tile");
  EXPECT_EQ(data.time_limit, 90);
  EXPECT_EQ(data.grid_size, 3);
  EXPECT_EQ(data.grid_place.line, 3);
  EXPECT_EQ(data.pitch, 100);
  EXPECT_EQ(data.left, 0);
  EXPECT_EQ(data.top, -4);
  EXPECT_EQ(data.state_names, (Lines{"a", "b"}));
}

TEST(SubgameFiles, ATimeLimitHasThirtyTwoBitsAndAPitchSixteen) {
  TextReader long_limit = Reader("\\tile\n100000\n3\n1\n1\n1\n");
  EXPECT_EQ(ReadSquareData(long_limit).time_limit, 100000);
  TextReader wide = Reader("\\tile\n1\n3\n100000\n1\n1\n");
  EXPECT_EQ(FatalOf([&] { ReadSquareData(wide); }),
            "Info\\file.txt:4: pixels from tile to tile is out of range for 16 bits");
}

TEST(SubgameFiles, ACellListNeedsTwoLinesAndNoBlankOne) {
  TextReader two = Reader("\\a\n\\b\n");
  EXPECT_EQ(ReadCellList(two), (Lines{"\\a", "\\b"}));
  TextReader one = Reader("\\a\n");
  EXPECT_EQ(FatalOf([&] { ReadCellList(one); }),
            "Info\\file.txt:1: a cell list needs lines for the player, its enemies and the shot");
  TextReader blank = Reader("\\a\n\\b\n\\c\n\n");
  EXPECT_EQ(FatalOf([&] { ReadCellList(blank); }),
            "Info\\file.txt:4: a cell list holds a blank line");
}

TEST(SubgameFiles, AStarClosesAFormation) {
  const auto formations = Formations("100 40 200 40 300 40 * 150 90.5 250 90 *\r\n");
  ASSERT_EQ(formations.size(), 2u);
  ASSERT_EQ(formations[0].size(), 3u);
  EXPECT_EQ(formations[0][2].X, 300);
  ASSERT_EQ(formations[1].size(), 2u);
  EXPECT_EQ(formations[1][0].Y, 90) << "half to even";
}

TEST(SubgameFiles, AFormationThatIsNotClosedIsDropped) {
  EXPECT_EQ(Formations("1 2 * 3 4").size(), 1u);
  EXPECT_EQ(FatalOf([] { Formations("1 2 3 4"); }),
            "Info\\file.txt:1: no formation is closed by \"*\"");
}

TEST(SubgameFiles, BadPointsAreFatal) {
  EXPECT_EQ(FatalOf([] { Formations("1 2 3 * 4 *"); }),
            "Info\\file.txt:1: \"*\" is not a number (coordinate of a formation)");
  EXPECT_EQ(FatalOf([] { Formations("1 2  3 *"); }),
            "Info\\file.txt:1: \"\" is not a number (coordinate of a formation)");
  EXPECT_EQ(FatalOf([] { Formations("1 2 * 3"); }), "Info\\file.txt:1: the last point has no Y");
  EXPECT_EQ(FatalOf([] { Formations("1 2 **"); }),
            "Info\\file.txt:1: \"**\" is not a number (coordinate of a formation)");
  EXPECT_EQ(FatalOf([] { Formations("1 2 *\n3 4 *\n"); }),
            "Info\\file.txt:2: all formations stand in the first line");
  EXPECT_EQ(FatalOf([] { Formations(""); }),
            "Info\\file.txt:1: the file ends where the points of the formations should stand");
}

}  // namespace
}  // namespace quendle
