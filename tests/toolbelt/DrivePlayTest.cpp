#include "logic/GameLogicLayer.h"
#include "support/WaveFiles.h"
#include "toolbelt/DriveBench.h"

namespace quendle {
namespace {

using testing::HasSubstr;

struct GameBench : DriveBench {
  explicit GameBench(DriveOptions drive_options = {}) : DriveBench(drive_options) { Do("play"); }
};

TEST(DrivePlay, AClickTakesTheDoor) {
  GameBench bench;
  bench.Do("click 400 460");
  const Json state = bench.Do("state");
  EXPECT_EQ(state["screen"], "hall");
  EXPECT_EQ(state["previous"], "introscreen");
  EXPECT_EQ(state["toolsState"], "on");
}

TEST(DrivePlay, AMoveLightsTheDoorUpAndTheEventsAreTraced) {
  GameBench bench;
  bench.Do("trace on");
  bench.Do("move 400.4 460");
  EXPECT_EQ(bench.Do("object current/startbutton")["object"]["state"], "default-highlight");
  const Json events = bench.Do("events")["events"];
  bool changed = false;
  for (const Json& event : events) {
    changed = changed || (event["kind"] == "state" && event["to"] == "startbutton" &&
                          event["text"] == "default-highlight");
  }
  EXPECT_TRUE(changed) << events.dump();
  EXPECT_TRUE(bench.Do("events")["events"].empty());
  bench.Do("trace off");
  bench.Do("move 1 1");
  EXPECT_TRUE(bench.Do("events")["events"].empty());
}

TEST(DrivePlay, WhatLiesUnderAPointIsTold) {
  GameBench bench;
  const Json under = bench.Do("under 400 460")["under"];
  ASSERT_FALSE(under.empty());
  EXPECT_EQ(under[0]["path"], "introscreen/startbutton");
  EXPECT_EQ(under[0]["hit"], true);
  EXPECT_EQ(bench.Do("object current/startbutton")["object"]["state"], "default")
      << "looking is no move";
  EXPECT_EQ(under[0]["width"], under[0]["frames"][0]["width"]);
  EXPECT_NE(bench.Refused("under 800 0"), "") << "outside of the frame";
}

TEST(DrivePlay, TheTrailOfAClickIsToldOnceItIsTraced) {
  GameBench bench;
  EXPECT_THAT(bench.Refused("trail"), HasSubstr("trace on"));
  bench.Do("trace on");
  bench.Do("click 400 460");
  const Json trail = bench.Do("trail");
  EXPECT_EQ(trail["click"], "400,460");
  EXPECT_EQ(trail["pointer"], "hand");
  std::vector<std::string> kinds;
  for (const Json& step : trail["steps"]) kinds.push_back(step["kind"]);
  EXPECT_THAT(kinds, testing::IsSupersetOf({"hit", "script", "branch", "statement", "message"}));
  const Json answer = bench.Do("events");
  for (const Json& event : answer["events"]) {
    EXPECT_NE(event["kind"], "hit") << "hits and branches are the trail's";
    EXPECT_NE(event["kind"], "branch");
  }
}

TEST(DrivePlay, WithoutCaptionsNothingIsShown) {
  GameBench bench;
  EXPECT_EQ(bench.Do("caption")["caption"], "");
}

TEST(DrivePlay, ATickTellsWhatFiredAndWhatWasDropped) {
  GameBench bench;
  Json answer = bench.Do("tick 1000");
  EXPECT_EQ(answer["ticks"], 20);
  EXPECT_EQ(answer["fired"], (Json{{"OnLogicTimer", 20}}));
  EXPECT_EQ(answer["gated"], 0);
  EXPECT_EQ(bench.Do("state")["frameCounter"], 20);
  bench.Do("focus off");
  answer = bench.Do("tick 100");
  EXPECT_EQ(answer["ticks"], 2);
  EXPECT_EQ(answer["gated"], 2);
  EXPECT_EQ(bench.Do("state")["gameActive"], false);
  bench.Do("focus on");
  EXPECT_EQ(bench.Do("tick 49")["ticks"], 0);
  EXPECT_EQ(bench.Do("tick 1")["ticks"], 1);
}

TEST(DrivePlay, MusicThatIsStartedWithoutTheFocusIsNotPaused) {
  DriveBench bench;
  bench.files.Put("\\info\\doodle.wma", ToneFile(9));
  bench.Do("play");
  EXPECT_EQ(bench.Do("state")["music"]["paused"], false);
  bench.Do("focus off");
  EXPECT_EQ(bench.Do("state")["music"]["paused"], true);
  bench.Do("send playmusic");
  const Json state = bench.Do("state");
  EXPECT_EQ(state["gameActive"], false);
  EXPECT_EQ(state["music"]["playing"], true);
  EXPECT_EQ(state["music"]["paused"], false);
}

TEST(DrivePlay, ANameIsThatOfTheScreenThatPlayGoesOnWith) {
  GameBench bench;
  bench.Do("send cs_hall");
  const GameLogicLayer& logic = bench.Session().Logic();
  logic.Keeper()->ReleaseScreen(logic.PreviousScreen());
  bench.Do("send toscreen_introscreen_hideobj_nosuch");
  EXPECT_EQ(bench.Do("tree previous")["object"]["children"].size(), 0u) << "released";
  EXPECT_NE(bench.Do("tree introscreen")["object"]["children"].size(), 0u);
}

TEST(DrivePlay, EscapeOpensTheExitDialog) {
  GameBench bench;
  bench.Do("key 27");
  EXPECT_EQ(bench.Do("state")["dialogActive"], true);
}

TEST(DrivePlay, MessagesGoToTheLogicOrToOneObject) {
  GameBench bench;
  EXPECT_EQ(bench.Do("ask cs_hall")["result"], true);
  EXPECT_EQ(bench.Do("ask cs_nosuch")["result"], false);
  EXPECT_EQ(bench.Do("state")["screen"], "introscreen");
  EXPECT_EQ(bench.Do("asktell current toobj_startbutton_changestate_nosuch")["result"], false);
  bench.Do("tell current toobj_startbutton_changestate_default-highlight");
  EXPECT_EQ(bench.Do("object current/startbutton")["object"]["state"], "default-highlight");
  bench.Do("interpret current/startbutton change default");
  EXPECT_EQ(bench.Do("object current/startbutton")["object"]["state"], "default");
  bench.Do("event current/startbutton 400 460 handmouseover");
  EXPECT_EQ(bench.Do("object current/startbutton")["object"]["state"], "default-highlight");
  EXPECT_EQ(bench.Do("peek current/startbutton 400 460 handmouseover")["text"], "handmouseover");
  bench.Do("send cs_hall");
  EXPECT_EQ(bench.Do("state")["screen"], "hall");
}

TEST(DrivePlay, PathsLeadThroughScreensAndGlobals) {
  GameBench bench;
  EXPECT_EQ(bench.Do("object current")["object"]["name"], "introscreen");
  EXPECT_EQ(bench.Do("object INTROSCREEN/StartButton")["object"]["type"], "button");
  EXPECT_EQ(bench.Do("object tools")["object"]["name"], "tools");
  EXPECT_EQ(bench.Do("object cursors/handcursor")["object"]["name"], "handcursor");
  EXPECT_EQ(bench.Do("object global/handcursor")["object"]["name"], "handcursor");
  EXPECT_EQ(bench.Refused("object previous"), "there is no previous screen now");
  EXPECT_EQ(bench.Refused("object current/startbuton"),
            "there is no child of \"introscreen\" named \"startbuton\"; did you mean "
            "\"startbutton\"?");
  EXPECT_THAT(bench.Refused("object hall"), HasSubstr("no live screen \"hall\""));
  EXPECT_THAT(bench.Refused("object global/dog"), HasSubstr("no global object \"dog\""));
  EXPECT_THAT(bench.Refused("object global"), HasSubstr("needs the name"));
}

TEST(DrivePlay, AnObjectIsToldWithAllItsFields) {
  GameBench bench;
  const Json object = bench.Do("object current/startbutton")["object"];
  for (const char* field :
       {"name", "type", "state", "history", "animation", "frames", "x", "y", "width", "height",
        "visible", "on", "timer", "region", "sound", "directory", "picture", "children"}) {
    EXPECT_TRUE(object.contains(field)) << field;
  }
  EXPECT_EQ(object["x"], 340);
  EXPECT_EQ(object["frames"], Json::array({"rest"}));
  EXPECT_EQ(bench.Do("object current")["object"]["children"], Json::array({"startbutton"}));
  EXPECT_EQ(bench.Do("tree")["object"]["children"][0]["name"], "startbutton");
  EXPECT_EQ(bench.Do("tree cursors")["object"]["children"][0]["name"], "handcursor");
}

TEST(DrivePlay, WhatWasLoadedCanBeInspected) {
  GameBench bench;
  const Json loaded = bench.Do("inspect current/startbutton");
  ASSERT_EQ(loaded["states"].size(), 2u);
  EXPECT_EQ(loaded["states"][1]["name"], "default-highlight");
  EXPECT_EQ(loaded["states"][1]["animation"], "glow");
  EXPECT_EQ(loaded["animations"][0]["interval"], 100);
  EXPECT_EQ(loaded["animations"][0]["sets"][0]["frames"], Json::array({"rest"}));
  EXPECT_EQ(loaded["frames"][1]["sourceX"], 120);
  EXPECT_EQ(loaded["frames"][1]["regionKey"], "nothing");
  EXPECT_EQ(loaded["scripts"][0]["lines"][1], "if action = *mouseclick");
  EXPECT_TRUE(loaded["regions"].empty());
  EXPECT_TRUE(loaded["sounds"].empty());
}

TEST(DrivePlay, AScreenThatWasLeftIsKept) {
  GameBench bench;
  EXPECT_THAT(bench.Refused("memento introscreen"), HasSubstr("nothing is kept"));
  bench.Do("send cs_hall");
  const Json memento = bench.Do("memento introscreen")["memento"];
  EXPECT_EQ(memento["state"], "default");
  EXPECT_EQ(memento["children"][0]["name"], "startbutton");
  EXPECT_EQ(bench.Do("state")["mementos"], Json::array({"introscreen"}));
}

TEST(DrivePlay, TimersAndSoundsAreListed) {
  GameBench bench;
  const Json timers = bench.Do("timers")["timers"];
  ASSERT_EQ(timers.size(), 1u);
  EXPECT_EQ(timers[0], (Json{{"id", 1},
                             {"interval", 50},
                             {"due", 50},
                             {"owner", "GameLogic"},
                             {"callback", "OnLogicTimer"}}));
  EXPECT_TRUE(bench.Do("sounds")["players"].is_array());
}

TEST(DrivePlay, TheStateHasAllItsFields) {
  GameBench bench;
  const Json state = bench.Do("state");
  for (const char* field : {"screen",       "previous",         "cursor",        "previousCursor",
                            "toolsState",   "dialogActive",     "skipNextClick", "help",
                            "gameReset",    "frameCounter",     "gameActive",    "difficulty",
                            "safeMode",     "personalize",      "directDraw",    "fullScreen",
                            "graphicsMode", "transparentColor", "cache",         "mementos",
                            "screens",      "timedObjects",     "music",         "beeps",
                            "seeds"}) {
    EXPECT_TRUE(state.contains(field)) << field;
  }
  EXPECT_EQ(state["help"], Json::array({false, false, false, false, false}));
  EXPECT_EQ(state["cache"][0], (Json{{"name", "introscreen"}, {"age", 0}, {"free", false}}));
  EXPECT_EQ(state["screens"], Json::array({"introscreen", "hall", "tools", "cursors"}));
}

TEST(DrivePlay, BothDrawingPathsGiveOnePicture) {
  GameBench first;
  DriveOptions options;
  options.window_path = true;
  GameBench second(options);
  EXPECT_EQ(first.Do("state")["directDraw"], true);
  EXPECT_EQ(second.Do("state")["directDraw"], false);
  const Json hash = first.Do("hash")["hash"];
  EXPECT_EQ(hash.get<std::string>().size(), 16u);
  EXPECT_EQ(second.Do("hash")["hash"], hash);
  first.Do("send cs_hall");
  EXPECT_NE(first.Do("hash")["hash"], hash);
}

TEST(DrivePlay, ComposingAFrameCountsAsNoDraw) {
  GameBench bench;
  bench.Do("hash");
  EXPECT_EQ(bench.Do("state")["frameCounter"], 0);
  const long presented = bench.Session().Platform().screen.Presented();
  bench.Do("draw");
  EXPECT_EQ(bench.Do("state")["frameCounter"], 1);
  EXPECT_EQ(bench.Session().Platform().screen.Presented(), presented + 1);
}

TEST(DrivePlay, PixelsAndBlitsTellWhatIsDrawn) {
  GameBench bench;
  EXPECT_EQ(bench.Do("pixel 795 5")["color"], Json::array({0xBF, 0xE3, 0xF2}));
  EXPECT_EQ(bench.Do("pixel 400 460")["color"], Json::array({0x3F, 0xA3, 0x4D}));
  EXPECT_THAT(bench.Refused("pixel 800 0"), HasSubstr("from 0 to 799"));
  const Json blits = bench.Do("blits")["blits"];
  ASSERT_GE(blits.size(), 2u);
  EXPECT_EQ(blits[1]["object"], "startbutton");
  EXPECT_EQ(blits[1]["frame"], "rest");
  EXPECT_EQ(blits[1]["destination"],
            (Json{{"x", 340}, {"y", 400}, {"width", 120}, {"height", 120}}));
  EXPECT_EQ(blits[1]["status"], "ok");
}

TEST(DrivePlay, AFailureThatWasPlannedHappens) {
  DriveBench bench;
  EXPECT_THAT(bench.Refused("fail"), HasSubstr("a word is missing"));
  EXPECT_THAT(bench.Refused("fail write often"), HasSubstr("neither after, times nor lost"));
  EXPECT_THAT(bench.Refused("fail wriet"), HasSubstr("did you mean \"write\"?"));
  bench.Do("fail WRITE after 0 times 1");
  bench.Do("fail CreatePolygonRgn");
  bench.Do("fail read after 3");
  const Json answer = bench.Run("play");
  EXPECT_EQ(answer["ok"], false);
  EXPECT_TRUE(answer.contains("fatal")) << answer.dump();
}

TEST(DrivePlay, AFailureWithoutACountLasts) {
  DriveBench bench;
  bench.Do("fail Create");
  EXPECT_EQ(bench.Do("play")["directDraw"], false);
}

TEST(DrivePlay, ALostSurfaceIsToldByTheBlit) {
  GameBench bench;
  bench.Do("fail Blt after 1 times 1 lost");
  const Json blits = bench.Do("blits")["blits"];
  EXPECT_EQ(blits[1]["status"], "lost");
  EXPECT_EQ(bench.Do("blits")["blits"][1]["status"], "ok");
}

TEST(DrivePlay, ChanceAndClockCanBeArranged) {
  GameBench bench;
  bench.Do("random 0.5 0.25");
  RandomSource& random = bench.Session().Platform().random;
  EXPECT_EQ(random.Rnd(), 0.5);
  EXPECT_EQ(random.Rnd(), 0.25);
  EXPECT_THAT(bench.Refused("random 1"), HasSubstr("up to but not including 1"));
  bench.Do("clock 3600");
  bench.Do("tick 500");
  EXPECT_DOUBLE_EQ(bench.Session().Platform().clock.TimeOfDay(), 3600.5);
  EXPECT_THAT(bench.Refused("clock 86400"), HasSubstr("86400"));
}

TEST(DrivePlay, TheSameCommandsGiveTheSameAnswers) {
  const std::string session = "play\nmove 400 460\ntick 400\nclick 400 460\ntick 90\nstate\nhash\n";
  DriveBench one, two;
  EXPECT_EQ(one.Play(session), two.Play(session));
}

}  // namespace
}  // namespace quendle
