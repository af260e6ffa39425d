#include "MessageGrammar.h"

namespace quendle {
namespace {

constexpr std::string_view kObjects[] = {
    "doctor",     "dog",         "bandaid",    "handtool",    "bandaidtool", "handcursor",
    "exitdialog", "squarearea",  "squareplay", "start",       "dogdoor",     "bandaidcursor",
    "cell",       "blinkerarea", "cell1",      "shooterarea", "bobblerarea", "nobody"};
constexpr std::string_view kTypes[] = {"button", "tool",    "patient",        "doctor", "dialog",
                                       "hall",   "subgame", "playareasquare", "menu",   "nothing"};
constexpr std::string_view kScreens[] = {"introscreen",    "floor1hall1",    "dogroom",
                                         "emptyroom1",     "tools",          "cursors",
                                         "subgamesquare",  "subgameblinker", "subgamebobbler",
                                         "subgameshooter", "nowhere",        "currentscreen"};
constexpr std::string_view kStates[] = {
    "default",          "better1",   "default-owww",       "bad",    "tryagain",
    "<incrementstate>", "startover", "<currentrootstate>", "unknown"};
constexpr std::string_view kActions[] = {
    "handmouseclick", "bandaidmouseclick", "handmouseover", "handmouseovernot", "gamewon",
    "gamelost",       "useractionx",       "nothing",       "*mouseclick",      "hop"};
constexpr std::string_view kPlain[] = {"subgamedone",
                                       "subgame_won",
                                       "subgame_lost",
                                       "resetalltools",
                                       "resettools",
                                       "screenprevious",
                                       "removeobj_currenttool",
                                       "playmusic",
                                       "stopmusic",
                                       "resetgame",
                                       "exitondemand",
                                       "endexitondemand",
                                       "startgame",
                                       "stopgame",
                                       "replaygame",
                                       "restartgame",
                                       "endgame",
                                       "inctoolcounter",
                                       "dectoolcounter",
                                       "scorevalue_3",
                                       "acceptedcell",
                                       "select",
                                       "removeallchildren",
                                       "addclass_a_3",
                                       "exitgame"};
constexpr std::string_view kNumbers[] = {"0",   "1",      "-1",    "5",     "100", "799",
                                         "600", "-32768", "32767", "32768", "0.5", "-0.5"};

std::string ToOneself(FuzzRandom& random) {
  switch (Below(random, 8)) {
    case 0:
      return "runstate_" + AnyState(random);
    case 1:
      return "changestate_" + AnyState(random);
    case 2:
      return "useraction_" + AnyAction(random);
    case 3:
      return "runscript_" + AnyState(random);
    case 4:
      return "addglobalobj_" + AnyObject(random);
    case 5:
      return "removeobj_" + AnyObject(random);
    case 6:
      return (Below(random, 2) == 0 ? "hideobj_" : "showobj_") + AnyObject(random);
    default:
      return (Below(random, 2) == 0 ? "hidetype_" : "showtype_") +
             std::string(OneOf(random, kTypes));
  }
}

}  // namespace

std::string AnyObject(FuzzRandom& random) { return std::string(OneOf(random, kObjects)); }
std::string AnyScreen(FuzzRandom& random) { return std::string(OneOf(random, kScreens)); }
std::string AnyState(FuzzRandom& random) { return std::string(OneOf(random, kStates)); }
std::string AnyAction(FuzzRandom& random) { return std::string(OneOf(random, kActions)); }
std::string AnyNumber(FuzzRandom& random) {
  if (Below(random, 3) == 0) return std::string(OneOf(random, kNumbers));
  return std::to_string(Below(random, 800));
}

std::string AnyMessage(FuzzRandom& random) {
  switch (Below(random, 10)) {
    case 0:
    case 1:
      return "cs_" + AnyScreen(random);
    case 2:
      return std::string(OneOf(random, kPlain));
    case 3:
      return "cursor_" + std::string(Below(random, 2) == 0 ? "hand" : "bandaid");
    case 4:
      return "tool_" + std::string(Below(random, 2) == 0 ? "yes_" : "") + AnyObject(random);
    case 5:
      return "subgame_" + AnyScreen(random);
    case 6:
      return "totype_" + std::string(OneOf(random, kTypes)) + "_" + AnyMessage(random);
    case 7:
      return "toscreen_" + AnyScreen(random) + "_" + AnyMessage(random);
    case 8:
      return "toobj_" + AnyObject(random) + "_" + AnyMessage(random);
    default:
      return ToOneself(random);
  }
}

std::string AnyStatements(FuzzRandom& random) {
  switch (Below(random, 8)) {
    case 0:
      return "change " + AnyState(random) + "\n";
    case 1:
      return "runstate " + AnyState(random) + "\n";
    case 2:
      return "runsound hit\n";
    case 3:
      return "if action = " + AnyAction(random) + "\n" + AnyStatements(random) + "endif\n";
    case 4:
      return "if action = " + AnyAction(random) + "\n" + AnyStatements(random) +
             "elseif action = *" + AnyAction(random) + "\n" + AnyStatements(random) + "else\n" +
             AnyStatements(random) + "endif\n";
    case 5:
      return "begin\n" + AnyStatements(random) + "end\n";
    default:
      return "mtp " + AnyMessage(random) + "\n";
  }
}

}  // namespace quendle
