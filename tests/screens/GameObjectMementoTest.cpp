#include "screens/GameObjectMemento.h"

#include <gtest/gtest.h>

#include "base/TextStream.h"
#include "base/WorkDepth.h"

namespace quendle {
namespace {

GameObjectMemento::Ref Record(const std::string& name, const std::string& state, std::int16_t x,
                              std::int16_t y, bool visible) {
  auto memento = std::make_shared<GameObjectMemento>();
  memento->SetObjectName(name);
  memento->SetCurrentState(state);
  memento->Setxpos(x);
  memento->Setypos(y);
  memento->SetVisible(visible);
  return memento;
}

std::string Written(const GameObjectMemento& memento) {
  std::string bytes;
  TextComposer composer(bytes);
  WorkDepth depth;
  memento.SaveToFile(composer, depth);
  return bytes;
}

// Reads a record behind its first line.
GameObjectMemento ReadBehindBegin(const std::string& text) {
  TextReader reader(text, "userdata.txt");
  WorkDepth depth;
  GameObjectMemento memento;
  memento.LoadFromFile(reader, depth);
  return memento;
}

// "FILE:LINE: text" of the fault; "(none)" without one.
std::string FaultOf(const std::string& text) {
  try {
    ReadBehindBegin(text);
  } catch (const FatalError& error) {
    return error.what();
  }
  return "(none)";
}

TEST(GameObjectMemento, ARecordIsSixLinesItsChildrenAndAnEnd) {
  auto screen = Record("floor1hall1", "default", 0, 0, true);
  screen->Children().Add(Record("doctor", "better1", 120, -200, false), "doctor");
  EXPECT_EQ(Written(*screen),
            "begin\r\nfloor1hall1\r\ndefault\r\n0\r\n0\r\nTrue\r\n"
            "begin\r\ndoctor\r\nbetter1\r\n120\r\n-200\r\nFalse\r\nend\r\n"
            "end\r\n");
}

TEST(GameObjectMemento, ReadingGivesBackWhatWasWritten) {
  auto screen = Record("hall", "default", 32767, -32768, true);
  auto child = Record("a", "s", -1, 1, false);
  child->Children().Add(Record("deep", "", 0, 0, true), "deep");
  screen->Children().Add(child, "a");
  screen->Children().Add(Record("b", "t", 5, 6, true), "b");
  const std::string text = Written(*screen);
  const GameObjectMemento read = ReadBehindBegin(text.substr(text.find('\n') + 1));
  EXPECT_EQ(Written(read), text);
  EXPECT_EQ(read.xpos(), 32767);
  EXPECT_EQ(read.ypos(), -32768);
}

TEST(GameObjectMemento, OnlyTheTextEndEndsARecord) {
  // Any other line in that place begins a record.
  const GameObjectMemento read =
      ReadBehindBegin("hall\ndefault\n0\n0\nTrue\nwhatever\nkid\ns\n1\n2\nfalse\nEND\nEnd\n");
  ASSERT_EQ(read.Children().Count(), 1u);
  EXPECT_EQ(read.Children().Item(1)->ObjectName(), "kid");
  EXPECT_FALSE(read.Children().Item(1)->Visible());
}

TEST(GameObjectMemento, ATextInANumericLineIsFatalAndNamesItsLine) {
  EXPECT_THAT(FaultOf("hall\ndefault\nzero\n0\nTrue\nend\n"),
              testing::StartsWith("userdata.txt:3: "));
  EXPECT_THAT(FaultOf("hall\ndefault\n0\nTrue\nend\n"), testing::StartsWith("userdata.txt:4: "));
}

TEST(GameObjectMemento, APositionBeyondSixteenBitsIsFatal) {
  EXPECT_THAT(FaultOf("hall\ndefault\n32768\n0\nTrue\nend\n"),
              testing::StartsWith("userdata.txt:3: "));
}

TEST(GameObjectMemento, AVisibilityThatIsNoBooleanIsFatal) {
  EXPECT_THAT(FaultOf("hall\ndefault\n0\n0\nmaybe\nend\n"),
              testing::StartsWith("userdata.txt:5: "));
}

TEST(GameObjectMemento, AMissingEndIsFatal) {
  EXPECT_THAT(FaultOf("hall\ndefault\n0\n0\nTrue\n"), testing::StartsWith("userdata.txt:"));
  EXPECT_THAT(FaultOf("hall\n"), testing::StartsWith("userdata.txt:"));
  EXPECT_THAT(FaultOf(""), testing::StartsWith("userdata.txt"));
}

TEST(GameObjectMemento, TwoChildrenOfOneNameAreFatal) {
  const std::string child = "begin\nA\ns\n0\n0\nTrue\nend\n";
  const std::string twin = "begin\na\ns\n0\n0\nTrue\nend\n";
  EXPECT_THAT(FaultOf("hall\ndefault\n0\n0\nTrue\n" + child + twin + "end\n"),
              testing::AllOf(testing::StartsWith("userdata.txt:"), testing::HasSubstr("\"a\"")));
}

TEST(GameObjectMemento, ARecordNestedWithoutEndIsFatalAndNotAStackOverflow) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "x\ns\n0\n0\nTrue\nbegin\n";
  EXPECT_NE(FaultOf(text), "(none)");
}

}  // namespace
}  // namespace quendle
