#include "media/Captions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/TextStream.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

CaptionFile Read(const std::string& text) {
  TextReader reader(text, "Info\\captions.txt");
  return CaptionFile(reader);
}

std::string Sentence(const CaptionFile& file, const std::string& sound) {
  const std::string* found = file.captions.Find(sound);
  return found == nullptr ? "(none)" : *found;
}

TEST(CaptionFile, ALineIsTheNameOfASoundABlankAndASentence) {
  const CaptionFile file = Read("tryagain Oh! Try again!\r\ninfosoap Soap washes mud out.\n");
  EXPECT_EQ(Sentence(file, "tryagain"), "Oh! Try again!");
  EXPECT_EQ(Sentence(file, "INFOSOAP"), "Soap washes mud out.");
  EXPECT_EQ(Sentence(file, "Oh!"), "(none)");
  EXPECT_THAT(file.problems, IsEmpty());
}

TEST(CaptionFile, BlankLinesAndBlanksAroundASentenceMeanNothing) {
  const CaptionFile file = Read("\n   \n  meow   Miaow says the cat. \n\n");
  EXPECT_EQ(Sentence(file, "meow"), "Miaow says the cat.");
  EXPECT_THAT(file.problems, IsEmpty());
}

TEST(CaptionFile, LettersBeyondAsciiAreKeptAsContentHasThem) {
  EXPECT_EQ(Sentence(Read("hello Gr\xFC\xDF dich!"), "hello"), "Gr\xFC\xDF dich!");
}

TEST(CaptionFile, ANameWithoutASentenceIsPassedOverAndNamed) {
  const CaptionFile file = Read("meow Miaow.\nwoof\nquack Quack.\n");
  EXPECT_EQ(Sentence(file, "woof"), "(none)");
  EXPECT_EQ(Sentence(file, "quack"), "Quack.");
  EXPECT_THAT(file.problems,
              ElementsAre("Info\\captions.txt:2: a blank and a sentence are expected behind the "
                          "sound \"woof\""));
}

TEST(CaptionFile, OfTwoSentencesOfASoundTheFirstIsShown) {
  const CaptionFile file = Read("meow Miaow.\nMEOW Purr.\n");
  EXPECT_EQ(Sentence(file, "meow"), "Miaow.");
  EXPECT_THAT(file.problems, ElementsAre("Info\\captions.txt:2: \"MEOW\" has a sentence already, "
                                         "and this one is never shown"));
}

TEST(CaptionFile, ASentenceTooLongToReadIsPassedOver) {
  const std::string longest(Captions::kLongest, 'a');
  const CaptionFile file = Read("fits " + longest + "\nmore " + longest + "a\n");
  EXPECT_EQ(Sentence(file, "fits"), longest);
  EXPECT_EQ(Sentence(file, "more"), "(none)");
  EXPECT_THAT(file.problems,
              ElementsAre("Info\\captions.txt:2: the sentence of \"more\" has 161 characters and "
                          "isn't shown; at most 160 can be read while it is spoken"));
}

TEST(CaptionFile, ControlCharactersAreNoText) {
  const CaptionFile file = Read("meow\tMiaow.\nbell ding\x07\n");
  EXPECT_TRUE(file.captions.Empty());
  EXPECT_THAT(file.problems,
              ElementsAre("Info\\captions.txt:1: a caption is plain text without tabs",
                          "Info\\captions.txt:2: a caption is plain text without tabs"));
}

TEST(CaptionFile, OfAFileThatIsNoneTheFirstProblemsTellEnough) {
  std::string text;
  for (int i = 0; i < 50; ++i) text += "word\n";
  const CaptionFile file = Read(text);
  ASSERT_EQ(file.problems.size(), CaptionFile::kMostProblems + 1);
  EXPECT_EQ(file.problems.back(),
            "Info\\captions.txt: 30 more lines hold no caption that can be used");
}

TEST(CaptionFile, AnEmptyFileHasNoCaptions) { EXPECT_TRUE(Read("").captions.Empty()); }

}  // namespace
}  // namespace quendle
