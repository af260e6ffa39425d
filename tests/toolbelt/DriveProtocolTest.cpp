#include "logic/GameLogicLayer.h"
#include "toolbelt/DriveBench.h"

namespace quendle {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST(DriveProtocol, EachCommandIsAnsweredByOneLineOfJson) {
  DriveBench bench;
  const auto lines =
      Lines(bench.Play("# a comment\n\nstart\nform\r\n> {\"ok\":true}\nquit\nform\n"));
  ASSERT_EQ(lines.size(), 3u);
  for (const std::string& line : lines) EXPECT_THAT(line, StartsWith("{\"ok\":true"));
  EXPECT_EQ(bench.exit_code, 0);
}

TEST(DriveProtocol, TheEndOfTheInputEndsTheSessionWithoutAnOrderlyEnd) {
  DriveBench bench;
  bench.Play("play\n");
  EXPECT_EQ(bench.exit_code, 0);
  EXPECT_THAT(bench.files.Get("\\GameRunning.txt").value(), StartsWith("On"));
}

TEST(DriveProtocol, AnUnknownCommandIsRefusedAndTheSessionGoesOn) {
  DriveBench bench;
  const auto lines = Lines(bench.Play("dance\nplay\n"));
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], R"({"ok":false,"error":"there is no command \"dance\""})");
  EXPECT_THAT(lines[1], StartsWith("{\"ok\":true,\"screen\":\"introscreen\""));
}

TEST(DriveProtocol, WrongArgumentsAreRefusedWithTheUsage) {
  DriveBench bench;
  bench.Do("play");
  EXPECT_EQ(bench.Refused("move 1"), "a word is missing; usage: move X Y");
  EXPECT_EQ(bench.Refused("move 1 two"), "\"two\" is not a number; usage: move X Y");
  EXPECT_EQ(bench.Refused("move 1 2 3"), "\"3\" is too much; usage: move X Y");
  EXPECT_THAT(bench.Refused("click 1 2 paw"), HasSubstr("\"paw\" is no button"));
  EXPECT_THAT(bench.Refused("tick -1"), HasSubstr("a whole number"));
  EXPECT_THAT(bench.Refused("tick 1.5"), HasSubstr("a whole number"));
  EXPECT_THAT(bench.Refused("click 40000 1"), HasSubstr("no window is that large"));
  EXPECT_THAT(bench.Refused("press 1.5"), HasSubstr("no number of a button"));
  EXPECT_THAT(bench.Refused("focus maybe"), HasSubstr("neither on nor off"));
  EXPECT_THAT(bench.Refused("send"), HasSubstr("a text is missing"));
}

TEST(DriveProtocol, TextsAreUtf8OutsideAndEightBitInside) {
  DriveBench bench;
  bench.Do("play");
  EXPECT_EQ(bench.Do("peek current 1 1 M\xC3\xBCll")["text"], "M\xC3\xBCll");
  EXPECT_EQ(bench.Refused("object current/M\xC3\xBCll"),
            "there is no child of \"introscreen\" named \"M\xC3\xBCll\"");
  EXPECT_THAT(bench.Refused("send \xE2\x98\x83"), HasSubstr("8-bit"));
}

TEST(DriveProtocol, ABadMessageEndsTheSessionWithAFatalAnswer) {
  DriveBench bench;
  const auto lines = Lines(bench.Play("play\nsend cs_nosuchhall\nstate\n"));
  ASSERT_EQ(lines.size(), 2u);
  const Json answer = Json::parse(lines[1]);
  EXPECT_EQ(answer["ok"], false);
  EXPECT_THAT(answer["fatal"].get<std::string>(), HasSubstr("\"nosuchhall\""));
  EXPECT_EQ(answer["message"], "cs_nosuchhall");
  for (const char* field : {"file", "line", "object"}) EXPECT_TRUE(answer.contains(field)) << field;
  ASSERT_EQ(answer["boxes"].size(), 1u);
  EXPECT_EQ(answer["boxes"][0]["kind"], "message");
  EXPECT_EQ(bench.exit_code, 3);
  EXPECT_THAT(bench.files.Get("\\GameRunning.txt").value(), StartsWith("On"));
}

TEST(DriveProtocol, AFatalAnswerNamesTheFileAndTheLine) {
  DriveBench bench;
  bench.files.Put("\\Info\\hall\\hallframes.txt", "room\nnothing\n0\n0\nforty\n");
  bench.Do("play");
  const Json answer = bench.Run("send cs_hall");
  EXPECT_EQ(answer["ok"], false);
  EXPECT_EQ(answer["file"], "Info\\hall\\hallframes.txt");
  EXPECT_EQ(answer["line"], 5);
  EXPECT_THAT(answer["fatal"].get<std::string>(), HasSubstr("forty"));
}

TEST(DriveProtocol, AFaultAtTheStartIsFatalToo) {
  DriveBench bench;
  bench.files.Remove("\\Info\\screens.txt");
  const Json answer = bench.Run("play");
  EXPECT_EQ(answer["ok"], false);
  EXPECT_THAT(answer["boxes"][0]["text"].get<std::string>(), HasSubstr("screens.txt not found"));
}

TEST(DriveProtocol, TheEndOfTheGameCarriesEndedAndBoxes) {
  DriveBench bench;
  const auto lines = Lines(bench.Play("play\ntick 50\nclose\nstate\n"));
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[2], R"({"ok":true,"ended":true,"boxes":[]})");
  EXPECT_EQ(bench.exit_code, 0);
  EXPECT_THAT(bench.files.Get("\\GameRunning.txt").value(), StartsWith("Off"));
}

TEST(DriveProtocol, AGameThatEndsInTheMiddleOfATickStillTellsTheCounts) {
  DriveBench bench;
  bench.Do("play");
  bench.Session().Platform().timers.SetTimer(
      Milliseconds(70), "End", [&](int) { bench.Session().Logic().Send("exitgame"); });
  const Json answer = bench.Do("tick 1000");
  EXPECT_EQ(answer["ticks"], 2);
  EXPECT_EQ(answer["fired"]["OnLogicTimer"], 1);
  EXPECT_EQ(answer["fired"]["End"], 1);
  EXPECT_EQ(answer["ended"], true);
}

TEST(DriveProtocol, AnInputBoxWithoutAnAnswerIsAFatalAnswer) {
  DriveBench bench;
  bench.Do("play");
  std::string text;
  bench.Session().Platform().timers.SetTimer(Milliseconds(10), "Ask", [&](int) {
    text = bench.Session().Platform().boxes.InputBox("Name", "Whose?");
  });
  bench.Do("answer Rex");
  bench.Do("tick 10");
  EXPECT_EQ(text, "Rex");
  EXPECT_EQ(bench.Do("boxes")["boxes"][0]["answer"], "Rex");
  const Json answer = bench.Run("tick 10");
  EXPECT_EQ(answer["ok"], false);
  EXPECT_EQ(answer["fatal"], "no answer queued for the input box \"Name\": Whose?");
}

TEST(DriveProtocol, AnotherInstanceEndsTheStart) {
  DriveOptions options;
  options.other_instance = true;
  DriveBench bench(options);
  const Json answer = bench.Do("start");
  EXPECT_EQ(answer["ended"], true);
  EXPECT_EQ(answer["boxes"][0]["text"], "Another version of Wumbly is already running");
}

TEST(DriveProtocol, AnOldSystemIsAskedAbout) {
  DriveOptions options;
  options.system_version = 4;
  DriveBench bench(options);
  bench.Do("answer no");
  const Json answer = bench.Do("play");
  EXPECT_EQ(answer["ended"], true);
  EXPECT_EQ(answer["boxes"][0]["kind"], "yesno");
  EXPECT_EQ(answer["boxes"][0]["answer"], "no");
}

TEST(DriveProtocol, TheSiblingEditionIsAValue) {
  DriveOptions options;
  options.edition = 1;
  DriveBench bench(options);
  EXPECT_EQ(bench.Do("start")["form"]["caption"], "Tandrel");
}

TEST(DriveProtocol, TwoGamesRunSideBySide) {
  DriveBench one, two;
  one.Do("play");
  two.Do("play");
  one.Do("send cs_hall");
  EXPECT_EQ(one.Do("state")["screen"], "hall");
  EXPECT_EQ(two.Do("state")["screen"], "introscreen");
}

}  // namespace
}  // namespace quendle
