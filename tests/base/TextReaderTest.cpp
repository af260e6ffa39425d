#include <gtest/gtest.h>

#include "base/TextStream.h"

namespace quendle {
namespace {

using Strings = std::vector<std::string>;

Strings LinesOf(const std::string& bytes) {
  TextReader reader(bytes, "Info\\x.txt");
  Strings lines;
  while (!reader.AtEndOfStream()) lines.push_back(reader.ReadLine("a line"));
  return lines;
}

template <class Work>
std::string FaultOf(Work work) {
  try {
    work();
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fault";
}

TEST(TextReader, ReadsEitherLineEndingAlsoMixed) {
  EXPECT_EQ(LinesOf("one\r\ntwo\nthree\r\n"), (Strings{"one", "two", "three"}));
}

TEST(TextReader, ReadsALastLineWithoutAnEnding) {
  EXPECT_EQ(LinesOf("one\r\ntwo"), (Strings{"one", "two"}));
  EXPECT_EQ(LinesOf("one"), (Strings{"one"}));
  EXPECT_EQ(LinesOf("one\r"), (Strings{"one"}));
}

TEST(TextReader, AnEmptyFileHasNoLine) {
  EXPECT_EQ(LinesOf(""), Strings{});
  EXPECT_EQ(LinesOf("\xEF\xBB\xBF"), Strings{});
}

TEST(TextReader, ABlankLineIsALineAndBlanksStay) {
  EXPECT_EQ(LinesOf("\r\n  a  \n\n"), (Strings{"", "  a  ", ""}));
  EXPECT_EQ(LinesOf("\n"), (Strings{""}));
}

TEST(TextReader, DropsAByteOrderMarkAtTheFrontOnly) {
  EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                    "one\ntwo"),
            (Strings{"one", "two"}));
  EXPECT_EQ(LinesOf("a\xEF\xBB\xBF"
                    "b"),
            (Strings{"a\xEF\xBB\xBF"
                     "b"}));
  EXPECT_EQ(LinesOf("\xEF\xBBx"), (Strings{"\xEF\xBBx"}));
}

TEST(TextReader, KeepsEveryOtherByte) {
  EXPECT_EQ(LinesOf("a\rb\t\xE4\n"), (Strings{"a\rb\t\xE4"}));
  EXPECT_EQ(LinesOf(std::string("a\0b\n", 4)), (Strings{std::string("a\0b", 3)}));
  EXPECT_EQ(LinesOf("a\r\r\n"), (Strings{"a\r"}));
}

TEST(TextReader, TellsTheLineThatItReadLast) {
  TextReader reader("one\ntwo\n", "Info\\x.txt");
  EXPECT_EQ(reader.Place().file, "Info\\x.txt");
  EXPECT_EQ(reader.Place().line, 0);
  reader.ReadLine("a line");
  EXPECT_EQ(reader.Place().line, 1);
  reader.ReadLine("a line");
  EXPECT_EQ(reader.Place().line, 2);
}

TEST(TextReader, ReadingPastTheEndIsFatalAndTellsWhatIsMissing) {
  TextReader reader("one\n", "Info\\x.txt");
  reader.ReadLine("a line");
  EXPECT_EQ(FaultOf([&] { reader.ReadLine("the name of a frame"); }),
            "Info\\x.txt:2: the file ends where the name of a frame should stand");
}

TEST(TextReader, IsAtItsEndOnceClosed) {
  TextReader reader("one\ntwo\n", "Info\\x.txt");
  reader.Close();
  EXPECT_TRUE(reader.AtEndOfStream());
  EXPECT_NE(FaultOf([&] { reader.ReadLine("a line"); }), "no fault");
}

TEST(TextReader, CannotBeWritten) {
  TextReader reader("one\n", "Info\\x.txt");
  reader.ReadLine("a line");
  EXPECT_EQ(FaultOf([&] { reader.WriteLine("x"); }),
            "Info\\x.txt:1: the file is open for reading and can't be written");
}

TEST(NumberLines, AreRoundedAndNameTheirPlaceWhenTheyAreNone) {
  TextReader reader("2.5\r\n70000\r\n70000\r\nforty\r\n", "Info\\x.txt");
  EXPECT_EQ(ReadInt16(reader, "the width"), 2);
  EXPECT_EQ(ReadInt32(reader, "the colour"), 70000);
  EXPECT_EQ(FaultOf([&] { ReadInt16(reader, "the width"); }),
            "Info\\x.txt:3: the width is out of range for 16 bits");
  EXPECT_EQ(FaultOf([&] { ReadInt32(reader, "the colour"); }),
            "Info\\x.txt:4: \"forty\" is not a number (the colour)");
  EXPECT_EQ(FaultOf([&] { ReadInt16(reader, "the width"); }),
            "Info\\x.txt:5: the file ends where the width should stand");
}

}  // namespace
}  // namespace quendle
