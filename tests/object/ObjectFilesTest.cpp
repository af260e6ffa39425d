// The readers of an object's files.
#include <cstddef>

#include <gtest/gtest.h>

#include "object/AnimationFile.h"
#include "object/AnimationFrame.h"
#include "object/ObjState.h"
#include "object/ObjectFile.h"
#include "object/Region.h"
#include "object/SoundFile.h"
#include "support/Fatal.h"
#include "support/TestTree.h"

namespace quendle {
namespace {

TextReader Reader(const Lines& lines) { return {Text(lines), "f.txt"}; }

// The fault of a reader on a file of those lines.
template <class Read>
std::string FaultOf(Read read, const Lines& lines) {
  return FatalOf([&] {
    TextReader reader = Reader(lines);
    read(reader);
  });
}

// The first `count` lines of a whole file give a fault that names the line behind them.
template <class Read>
void ExpectCutFilesFatal(Read read, const Lines& whole) {
  TextReader reader = Reader(whole);
  read(reader);
  for (std::size_t count = 1; count < whole.size(); ++count) {
    const Lines cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(count));
    EXPECT_TRUE(FaultOf(read, cut).starts_with("f.txt:" + std::to_string(count + 1) +
                                               ": the file ends where "))
        << count << " lines: " << FaultOf(read, cut);
  }
}

const Lines kObject = {"button", "door",    "3",       "four",   "five",
                       "six",    "\\d.txt", "nothing", "state_a"};

TEST(ObjectFiles, AreNineLines) {
  TextReader reader = Reader(kObject);
  const ObjectFile file = ReadObjectFile(reader);
  EXPECT_EQ(file.type, "button");
  EXPECT_EQ(file.name, "door");
  EXPECT_EQ(file.depth, "3");
  EXPECT_EQ(file.data_file, "\\d.txt");
  EXPECT_EQ(file.child_list, "nothing");
  EXPECT_EQ(file.directives, "state_a");
  EXPECT_EQ(file.type_place.line, 1);
  EXPECT_EQ(file.directives_place.line, 9);
  ExpectCutFilesFatal(ReadObjectFile, kObject);
}

TEST(ObjectFiles, ADepthThatIsNoNumberIsFatalAndTheDroppedLinesAreNot) {
  EXPECT_EQ(FaultOf(ReadObjectFile, {"button", "door", "deep", "", "", "", "", "", ""}),
            "f.txt:3: \"deep\" is not a number (depth)");
}

TEST(DataFiles, AreFiveLines) {
  const Lines lines = {"a", "b", "c", "d", "dropped"};
  TextReader reader = Reader(lines);
  const DataFile file = ReadDataFile(reader);
  EXPECT_EQ(file.states + file.animations + file.sounds + file.scripts, "abcd");
  ExpectCutFilesFatal(ReadDataFile, lines);
}

TEST(ChildLists, GiveTheTrimmedLineAndItsFirstWord) {
  TextReader reader = Reader({"  \\a.txt   xpos_5  ", "GlobalObject_doctor"});
  const std::vector<ChildLine> children = ReadChildList(reader);
  ASSERT_EQ(children.size(), 2U);
  EXPECT_EQ(children[0].child, "\\a.txt");
  EXPECT_EQ(children[0].line, "\\a.txt   xpos_5");
  EXPECT_EQ(children[1].child, "GlobalObject_doctor");
  EXPECT_EQ(children[1].place.line, 2);
}

TEST(ChildLists, ABlankLineIsFatalAndAnEmptyListIsNot) {
  TextReader empty("", "f.txt");
  EXPECT_TRUE(ReadChildList(empty).empty());
  EXPECT_EQ(FaultOf(ReadChildList, {"\\a.txt", "  "}), "f.txt:2: a child list holds a blank line");
}

TEST(Directives, AreWordsOfKeyAndValueInAnyCase) {
  const Directives d = ParseDirectives(
      "  visible_OFF depth_x STATE_open  runstate_go xpos_2.5 ypos_-7 unknown_3 word", {});
  EXPECT_TRUE(d.visible_given);
  EXPECT_EQ(d.visible, false);
  EXPECT_EQ(d.depth, "x");
  EXPECT_EQ(d.state, "open");
  EXPECT_EQ(d.runstate, "go");
  EXPECT_EQ(d.xpos, 2) << "rounded half to even";
  EXPECT_EQ(d.ypos, -7);
}

TEST(Directives, NothingIsGivenByAnEmptyLine) {
  const Directives d = ParseDirectives("", {});
  EXPECT_FALSE(d.visible_given);
  EXPECT_FALSE(d.visible || d.depth || d.state || d.runstate || d.xpos || d.ypos);
}

TEST(Directives, AnotherVisibilityCountsAsGiven) {
  const Directives d = ParseDirectives("visible_maybe", {});
  EXPECT_TRUE(d.visible_given);
  EXPECT_FALSE(d.visible.has_value());
}

TEST(Directives, TheLastWordOfAKindCountsAndOnlyTwoPiecesAreRead) {
  const Directives d = ParseDirectives("state_a state__b_c xpos_1 xpos_2", {});
  EXPECT_EQ(d.state, "b");
  EXPECT_EQ(d.xpos, 2);
}

TEST(Directives, AKeyWithoutAValueIsFatalAndAnyOtherWordIsNot) {
  ParseDirectives("\\Info\\door\\door.txt loose visibles", {});
  for (const char* key : {"visible", "depth", "state", "runstate", "xpos_", "_ypos"}) {
    EXPECT_EQ(
        FatalOf([&] {
          ParseDirectives(key, {"f.txt", 9});
        }),
        "f.txt:9: the directive \"" + std::string(key) + "\" needs a value behind an underscore");
  }
  EXPECT_EQ(FatalOf([] {
              ParseDirectives("__", {"f.txt", 9});
            }),
            "f.txt:9: the directive \"__\" has no key");
}

TEST(Directives, APositionThatIsNoNumberIsFatal) {
  EXPECT_EQ(FatalOf([] {
              ParseDirectives("xpos_left", {"f.txt", 9});
            }),
            "f.txt:9: \"left\" is not a number (xpos)");
  EXPECT_EQ(FatalOf([] {
              ParseDirectives("ypos_40000", {"f.txt", 9});
            }),
            "f.txt:9: ypos is out of range for 16 bits");
}

const Lines kStates = {"default", "s", "a", "m", "", "", "open", "t", "b", "n", "unused", "unused"};

TEST(StateFiles, AreRecordsOfSixLines) {
  TextReader reader = Reader(kStates);
  const std::vector<ObjState> states = ReadStateFile(reader);
  ASSERT_EQ(states.size(), 2U);
  EXPECT_EQ(states[0].Name(), "default");
  EXPECT_EQ(states[1].Name(), "open");
  EXPECT_EQ(states[1].SoundState(), "t");
  EXPECT_EQ(states[1].AnimationState(), "b");
  EXPECT_EQ(states[1].ScriptState(), "n");
  EXPECT_EQ(states[1].Place().line, 7);
}

TEST(StateFiles, ACutRecordIsFatal) {
  for (std::size_t count = 7; count < kStates.size(); ++count) {
    const Lines cut(kStates.begin(), kStates.begin() + static_cast<std::ptrdiff_t>(count));
    EXPECT_TRUE(FaultOf(ReadStateFile, cut)
                    .starts_with("f.txt:" + std::to_string(count + 1) + ": the file ends where "));
  }
  EXPECT_EQ(FaultOf(ReadStateFile, {}),
            "f.txt:1: the file ends where the name of a state, or \"nothing\" should stand");
}

TEST(StateFiles, ATrailingBlankLineStartsAFurtherRecord) {
  Lines lines = kStates;
  lines.emplace_back("");
  EXPECT_EQ(FaultOf(ReadStateFile, lines),
            "f.txt:14: the file ends where the sound of state \"\" should stand");
}

TEST(StateFiles, NothingMeansNoStatesAndTheRestIsNotRead) {
  TextReader reader = Reader({"NOTHING", "garbage"});
  EXPECT_TRUE(ReadStateFile(reader).empty());
}

TEST(SoundFiles, AreRecordsOfFourLines) {
  const Lines lines = {"click", "\\c.wav", "loop", "load_now", "globalsound_bell", "", "", ""};
  TextReader reader = Reader(lines);
  const std::vector<SoundRecord> sounds = ReadSoundFile(reader);
  ASSERT_EQ(sounds.size(), 2U);
  EXPECT_EQ(sounds[0].path, "\\c.wav");
  EXPECT_EQ(sounds[0].loop, "loop");
  EXPECT_EQ(sounds[1].name, "globalsound_bell");
  EXPECT_EQ(sounds[1].place.line, 5);
  for (std::size_t count : {1U, 2U, 3U, 5U, 6U, 7U}) {
    const Lines cut(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count));
    EXPECT_TRUE(FaultOf(ReadSoundFile, cut)
                    .starts_with("f.txt:" + std::to_string(count + 1) + ": the file ends where "));
  }
}

TEST(SoundFiles, OnlyTheKeyLoadAsksToLoad) {
  const auto asks = [](const std::string& line) { return AsksToLoad({"", "", "", line, {}}); };
  EXPECT_TRUE(asks("load"));
  EXPECT_TRUE(asks("loop_x LOAD_later"));
  EXPECT_TRUE(asks("_load_"));
  EXPECT_FALSE(asks(""));
  EXPECT_FALSE(asks("loads"));
  EXPECT_FALSE(asks("x_load ___"));
}

TEST(RegionFiles, AreRecordsOfFiveLines) {
  const Lines lines = {"head", "1", "-2", "3", "4.5", "arm", "0", "0", "1", "1"};
  TextReader reader = Reader(lines);
  const std::vector<Region> regions = LoadRegions(reader);
  ASSERT_EQ(regions.size(), 2U);
  EXPECT_EQ(regions[0].Name(), "head");
  EXPECT_EQ(regions[0].X1(), 1);
  EXPECT_EQ(regions[0].Y1(), -2);
  EXPECT_EQ(regions[0].X2(), 3);
  EXPECT_EQ(regions[0].Y2(), 4) << "half to even";
  EXPECT_EQ(regions[1].Name(), "arm");
  for (std::size_t count : {1U, 2U, 3U, 4U, 6U, 9U}) {
    const Lines cut(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count));
    EXPECT_TRUE(FaultOf(LoadRegions, cut)
                    .starts_with("f.txt:" + std::to_string(count + 1) + ": the file ends where "));
  }
}

TEST(RegionFiles, NothingMeansNoRegions) {
  TextReader reader = Reader({"Nothing", "x"});
  EXPECT_TRUE(LoadRegions(reader).empty());
}

TEST(RegionFiles, ALineThatIsNoNumberIsFatal) {
  EXPECT_EQ(FaultOf(LoadRegions, {"head", "1", "two", "3", "4"}),
            "f.txt:3: \"two\" is not a number (Y1 of region \"head\")");
}

const Lines kFrames = {"  wave  ", "\\r.txt", "stable+5", "30/100", "1", "2", "3", "4", "dropped"};

TEST(FrameFiles, AreRecordsOfNineLinesWithATrimmedName) {
  TextReader reader = Reader(kFrames);
  const std::vector<FrameRecord> frames = ReadFrameFile(reader);
  ASSERT_EQ(frames.size(), 1U);
  const AnimationFrame& frame = frames[0].frame;
  EXPECT_EQ(frame.FrameName, "wave");
  EXPECT_EQ(frame.RegionKey, "nothing");
  EXPECT_EQ(frames[0].region_file, "\\r.txt");
  EXPECT_EQ(frame.PlaceX, -5);
  EXPECT_EQ(frame.DrawWidth, 0);
  EXPECT_EQ(frame.PlaceY, 30);
  EXPECT_EQ(frame.DrawHeight, 100);
  EXPECT_EQ(frame.SourceX, 1);
  EXPECT_EQ(frame.SourceY, 2);
  EXPECT_EQ(frame.SourceWidth, 3);
  EXPECT_EQ(frame.SourceHeight, 4);
  ExpectCutFilesFatal(ReadFrameFile, kFrames);
}

TEST(FrameFiles, SourceNumbersAreWideAndMustBeNumbers) {
  Lines lines = kFrames;
  lines[4] = "100000";
  TextReader reader = Reader(lines);
  EXPECT_EQ(ReadFrameFile(reader)[0].frame.SourceX, 100000);
  lines[6] = "wide";
  EXPECT_EQ(FaultOf(ReadFrameFile, lines),
            "f.txt:7: \"wide\" is not a number (source width of frame \"wave\")");
}

TEST(FrameFiles, APlacementThatIsNoNumberIsFatal) {
  Lines lines = kFrames;
  lines[3] = "middle";
  EXPECT_EQ(FaultOf(ReadFrameFile, lines), "f.txt:4: \"middle\" is not a number (placement)");
}

struct PlacementCase {
  const char* text;
  std::int32_t code;
  std::int32_t draw_size;
};

TEST(Placements, AreReadByTheFirstMarkThatTheyHold) {
  const PlacementCase cases[] = {
      {"120", 120, 0},
      {"0", 0, 0},
      {"-5", -5, 0},
      {"-1", -1, 0},
      {"2.5", 2, 0},
      {"stable", -1, 0},
      {"STABLE", -1, 0},
      {"stable5", -1, 0},
      {"unstable thing", -1, 0},
      {"stable+5", -5, 0},
      {"stable + 5", -5, 0},
      {" Stable +5 ", -5, 0},
      {"stable+1", -1, 0},
      {"stable+-3", 3, 0},
      {"stable+2.5", -2, 0},
      {"30+5", 35, 0},
      {"30 + 5", 35, 0},
      {"-30+5", -25, 0},
      {"1.5+1.5", 3, 0},
      {"0.4+0.4", 1, 0},
      {"stable/100", -1, 100},
      {"stable\\100", -1, 100},
      {"30/100", 30, 100},
      {"30 / 100", 30, 100},
      {"-7\\8", -7, 8},
      {"stable+5/100", -1, 100},
      {"1 0+5", 15, 0},
      {"1 0/2 0", 10, 20},
      {"sta ble/5", -1, 5},
      {"30/100/7", 30, 100},
      {"30\\100\\7", 30, 100},
      {"1+2+4", 3, 0},
      {"stable+2+4", -2, 0},
  };
  for (const PlacementCase& c : cases) {
    const Placement placement = ParsePlacement(c.text, {});
    EXPECT_EQ(placement.code, c.code) << c.text;
    EXPECT_EQ(placement.draw_size, c.draw_size) << c.text;
  }
}

TEST(Placements, TheBackslashIsLookedForBeforeTheSlash) {
  EXPECT_EQ(ParsePlacement("stable/9\\100", {}).draw_size, 100);
  EXPECT_EQ(FatalOf([] {
              ParsePlacement("30\\100/9", {"f.txt", 3});
            }),
            "f.txt:3: \"100/9\" is not a number (draw size)");
}

TEST(Placements, APlusBehindASlashIsPartOfAPiece) {
  EXPECT_EQ(FatalOf([] {
              ParsePlacement("30+5/100", {"f.txt", 3});
            }),
            "f.txt:3: \"30+5\" is not a number (placement)");
}

TEST(Placements, AStepOfZeroEndsTheProcessWithItsOwnMessage) {
  for (const char* text : {"stable+0", "stable+00", "stable + 0.0", "STABLE+-0"}) {
    const auto parse = [&] { ParsePlacement(text, {"f.txt", 3}); };
    EXPECT_EQ(FatalBoxOf(parse), "Error: Cannot have the line 'stable+0'") << text;
    EXPECT_EQ(FatalOf(parse), "f.txt:3: Error: Cannot have the line 'stable+0'") << text;
  }
  EXPECT_EQ(ParsePlacement("0+0", {}).code, 0);
  EXPECT_EQ(ParsePlacement("stable+0.4", {}).code, 0) << "a small step is a step";
  EXPECT_EQ(ParsePlacement("stable/0", {}).draw_size, 0);
}

TEST(Placements, PiecesThatAreNoNumbersAreFatal) {
  EXPECT_EQ(FatalOf([] {
              ParsePlacement("stable+x", {"f.txt", 3});
            }),
            "f.txt:3: \"x\" is not a number (step of a placement)");
  EXPECT_EQ(FatalOf([] {
              ParsePlacement("5/stable", {"f.txt", 3});
            }),
            "f.txt:3: \"stable\" is not a number (draw size)");
  EXPECT_EQ(FatalOf([] {
              ParsePlacement("stable/", {"f.txt", 3});
            }),
            "f.txt:3: \"\" is not a number (draw size)");
  EXPECT_EQ(FatalOf([] {
              ParsePlacement("x+3", {"f.txt", 3});
            }),
            "f.txt:3: \"x\" is not a number (placement)");
  EXPECT_EQ(FatalOf([] {
              ParsePlacement("", {"f.txt", 3});
            }),
            "f.txt:3: \"\" is not a number (placement)");
}

// A blank line at the end of a file is the first line of a further record.
TEST(RecordFiles, ATrailingBlankLineStartsAFurtherRecord) {
  EXPECT_EQ(FaultOf(ReadSoundFile, {"click", "\\c.wav", "loop", "", ""}),
            "f.txt:6: the file ends where the path of sound \"\" should stand");
  EXPECT_EQ(FaultOf(LoadRegions, {"head", "1", "2", "3", "4", ""}),
            "f.txt:7: the file ends where X1 of region \"\" should stand");
  Lines frames = kFrames;
  frames.emplace_back("");
  EXPECT_EQ(FaultOf(ReadFrameFile, frames),
            "f.txt:11: the file ends where the path of the region file of frame \"\", or "
            "\"nothing\" should stand");
  EXPECT_EQ(FaultOf(ReadAnimationRecords, {"walk", "100", "loop", "unused", "a", "statedone", ""}),
            "f.txt:8: the file ends where interval of animation \"\" should stand");
}

const Lines kAnimation = {"walk", "100", "loop", "unused", "a  b", "c", "StateDone"};

TEST(AnimationFiles, RecordsEndWithTheirWord) {
  Lines lines = kAnimation;
  lines.insert(lines.end(), {"still", "50", "nonloop", "nothing", "statedone"});
  TextReader reader = Reader(lines);
  const std::vector<AnimationRecord> records = ReadAnimationRecords(reader);
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(records[0].name, "walk");
  EXPECT_EQ(records[0].interval, 100);
  EXPECT_EQ(records[0].loop, "loop");
  EXPECT_EQ(records[0].directive_file, "unused");
  EXPECT_EQ(records[0].frame_sets, (std::vector<Lines>{{"a", "b"}, {"c"}}));
  EXPECT_TRUE(records[1].frame_sets.empty());
  EXPECT_EQ(records[1].place.line, 8);
  ExpectCutFilesFatal(ReadAnimationRecords, kAnimation);
}

TEST(AnimationFiles, AnIntervalThatIsNoNumberIsFatal) {
  EXPECT_EQ(FaultOf(ReadAnimationRecords, {"walk", "fast", "loop", "nothing", "statedone"}),
            "f.txt:2: \"fast\" is not a number (interval of animation \"walk\")");
}

TEST(AnimationFiles, WithoutAPictureTheRestIsNotRead) {
  TextReader reader = Reader({"x-nothing"});
  const AnimationFile file =
      ReadAnimationFile(reader, [](const std::string& path) { return path == "x-nothing"; });
  EXPECT_EQ(file.picture, "x-nothing");
  EXPECT_TRUE(file.animations.empty());
  EXPECT_EQ(
      FaultOf([](TextReader& r) { ReadAnimationFile(r, [](const std::string&) { return false; }); },
              {"\\p.bmp"}),
      "f.txt:2: the file ends where the path of the frame file should stand");
}

}  // namespace
}  // namespace quendle
