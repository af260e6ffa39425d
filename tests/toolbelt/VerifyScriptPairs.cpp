#include "toolbelt/VerifyPairs.h"

namespace quendle {
namespace {

// The script of the dog when it is well, by its lines.
Plant Well(const std::string& lines) { return Put("dog\\wellscript.txt", lines); }

// A further statement where the dog is hurt.
Plant Statement(const std::string& line) {
  return Edit("dog\\treatscript.txt", "runstate default-owww", "runstate default-owww\n" + line);
}

// A statement of the door in the hall, in place of its own.
Plant Door(const std::string& line) {
  return Edit("dogdoor\\pressscript.txt", "mtp cs_dogroom", "mtp cs_dogroom\n" + line);
}

Plant Branch(const std::string& pattern) {
  return Edit("dog\\treatscript.txt", "elseif action = gamewon",
              "elseif action = " + pattern + "\nchange default\nelseif action = gamewon");
}

// The dog answers each of `count` actions by sending the next one `times` times.
Plant Row(int count, int times) {
  std::string lines = "begin\nif action = hop\nmtp useraction_a1\n";
  for (int i = 1; i < count; ++i) {
    lines += "elseif action = a" + std::to_string(i) + "\n";
    for (int k = 0; k < times; ++k) lines += "mtp useraction_a" + std::to_string(i + 1) + "\n";
  }
  return Well(lines + "elseif action = a" + std::to_string(count) +
              "\nmtp showobj_pal\nendif\nend\n");
}

// A statement of the play button, in front of its own.
Plant Play(const std::string& line) {
  return Edit("Play1\\pressscript.txt", "mtp toobj", line + "\nmtp toobj");
}

// The board becomes the field of another game, whose header and cells are there.
Plant Field(const std::string& type) {
  std::vector<Plant> plants{
      Edit("board\\board.txt", "playareasquare", type),
      Put("board\\puzzle.txt", "\n1\n1\n<CurrentDirectory>\\cells.txt\n\n\n"),
      Put("board\\cells.txt",
          "<CurrentDirectory>\\tiledata.txt\n"
          "<CurrentDirectory>\\tiledata.txt\n"
          "<CurrentDirectory>\\tiledata.txt\n"),
      Put("shooterdata.txt", "100 100 *\n"),
  };
  for (const char* name : {"cell1", "cell2", "cell3", "cell4", "cell5", "ball", "paddle"}) {
    plants.push_back(Put("squarescreen\\" + std::string(name) + "data.txt",
                         "nothing\nnothing\nnothing\nnothing\nunused\n"));
  }
  return All(plants);
}

constexpr const char* kPlay = "Info\\Play1\\pressscript.txt:3";
constexpr const char* kDog = "Info\\dog\\treatscript.txt:";
constexpr const char* kDoor = "Info\\dogdoor\\pressscript.txt:4";

}  // namespace

std::vector<CheckPair> ScriptPairs() {
  const std::string branch = std::string(kDog) + "9", statement = std::string(kDog) + "9";
  const std::string hop = "mtp cs_dogroom\n";
  return {
      {"V601", "Info\\dog\\wellscript.txt:3",
       Well("begin\nchange default\nrunsound blender\nend\n"),
       Well("begin\nmtp showobj_pal\nchange default\nend\n")},
      {"V601", "Info\\dog\\wellscript.txt:2",
       Well("begin\nif action = *blendermouseclick\nchange default\nendif\nend\n"),
       Well("begin\nif action = *mouseclick\nmtp useraction_friend\nendif\nend\n")},
      {"V602", "Info\\dog\\wellscript.txt:4",
       Well("begin\nif action = hop\n" + hop +
            "mtp useraction_elsewhere\nchange default\nendif\nend\n"),
       Well("begin\nif action = hop\n" + hop +
            "mtp useraction_away\nelse\nchange default\nendif\nend\n")},
      {"V603", "Info\\dog\\wellscript.txt:4", Well("begin\nchange default\nend\nchange better1\n"),
       Well("begin\nchange default\nend\n\n  \n")},
      {"V604", statement, Statement("chagne better1"), Statement("CHANGE better1")},
      {"V604", statement, Statement("If action = hop"), Statement("  change  better1 ")},
      {"V605", statement, Statement("runstate"), Statement("runstate better1")},
      {"V606", branch,
       Edit("dog\\treatscript.txt", "elseif action = gamewon", "elseif action gamewon"),
       Edit("dog\\treatscript.txt", "elseif action = gamewon", "elseif ACTION is gamewon")},
      {"V606", branch,
       Edit("dog\\treatscript.txt", "elseif action = gamewon", "elseif mood = gamewon"),
       Edit("dog\\treatscript.txt", "elseif action = gamewon", "elseif action = gamewon now")},
      {"V607", branch, Branch("game*lost"), Branch("gamelost*")},
      {"V608", branch, Branch("*soapmouseclick"), Branch("*mouseclicknot")},
      {"V609", branch, Branch("*sopmouseover"), Branch("*soapmouseover")},
      {"V609", branch, Branch("tailhandmouseover"), Branch("headhandmouseover")},
      {"V609", branch, Branch("hopp"), Branch("hop")},
      {"V610", statement, Statement("change beter1"), Statement("change Better1")},
      {"V610", statement, Statement("runstate <currentrootstate>-sad"),
       Edit("dog\\treatscript.txt", "runstate default-owww", "runstate <currentrootstate>-owww")},
      {"V611", "Info\\doctor\\askscript.txt:3",
       Edit("doctor\\askscript.txt", "click\nmtp", "clik\nmtp"),
       Edit("doctor\\askscript.txt", "click\nmtp", "CLICK\nmtp")},
      {"V612", "Info\\dog\\part.txt:1",
       All({Statement("subscript <CurrentDirectory>\\part.txt"),
            Put("dog\\part.txt", "subscript <CurrentDirectory>\\other.txt\n")}),
       All({Statement("subscript <CurrentDirectory>\\part.txt"),
            Put("dog\\part.txt", "change default\n")})},
      {"V612", statement,
       All({Statement("mtp \\Info\\dog\\part.txt subscription"),
            Put("dog\\part.txt", "change default\n")}),
       Statement("change default submarine")},
      {"V701", kDoor, Door("mtp opendoor"), Door("mtp StopMusic")},
      {"V701", kDoor, Door("mtp hidetool_dogdoor"), Door("mtp hideobj_dogdoor")},
      {"V701", kPlay, Play("mtp toobj_board_acceptedcell"), Play("mtp toobj_board_stopgame")},
      {"V701", kPlay, Play("mtp toobj_board_selectone"),
       All({Field("playareashooter"), Play("mtp toobj_board_selectone")})},
      {"V701", kPlay, All({Field("playareashooter"), Play("mtp toobj_board_restartgame")}),
       All({Field("playareablinker"), Play("mtp toobj_board_restartgame")})},
      {"V702", kDoor, Door("mtp toobj_doctor"), Door("mtp toobj_doctor_runstate_tryagain")},
      {"V702", kDoor, Door("mtp cursor"), Door("mtp cursor_soap")},
      {"V703", kDoor, Door("mtp toobj_shelfdor_runscript_press"),
       Door("mtp toobj_ShelfDoor_runscript_press")},
      {"V703", kDoor, Door("mtp hideobj_dog"), Door("mtp toscreen_dogroom_hideobj_dog")},
      {"V703", kDoor, Door("mtp removeobj_dog"), Door("mtp removeobj_currenttool")},
      {"V704", kDoor, Door("mtp totype_patient_useraction_hop"),
       Door("mtp toscreen_dogroom_totype_patient_useraction_hop")},
      {"V705", kDoor, Door("mtp cs_dogrom"), Door("mtp cs_DOGROOM")},
      {"V705", kDoor, Door("mtp toscreen_dogrom_useraction_hop"),
       Door("mtp toscreen_currentscreen_useraction_hop")},
      {"V706", kDoor, Door("mtp cursor_sope"), Door("mtp cursor_soap")},
      {"V706", kDoor, Door("mtp toscreen_tools_addglobalobj_soptool"),
       Door("mtp toscreen_tools_addglobalobj_soaptool")},
      {"V707", kDoor, Door("mtp toobj_shelfdoor_runscript_prss"),
       Door("mtp toobj_shelfdoor_runscript_nothing")},
      {"V707", "Info\\soap\\offerscript.txt:3",
       Edit("soap\\soapscripts.txt", "globalscript_toolwon\nunused\nunused\n", ""), Nothing()},
      {"V708", kDoor, Door("mtp toobj_doctor_runstate_tryagin"),
       Door("mtp toobj_doctor_runstate_TryAgain")},
      {"V708", "Info\\soap\\toolwonscript.txt:4",
       Edit("soap\\toolwonscript.txt", "<objectname>info", "info<objectname>"),
       Edit("soap\\toolwonscript.txt", "<objectname>info", "<rootobjectname>info")},
      {"V709", kDoor, Door("mtp toobj_subgamedoor_runscript_press"),
       Door("mtp toobj_shelfdoor_runscript_press")},
      {"V710", "Info\\dog\\wellscript.txt:3",
       Well("begin\nif action = hop\nmtp useraction_hop\nendif\nend\n"),
       Well("begin\nif action = hop\nchange default\nmtp useraction_hop\nendif\nend\n")},
      {"V710", "Info\\dog\\wellscript.txt:5",
       Well("begin\nif action = hop\nmtp toobj_dog_useraction_skip\nelseif action = skip\n"
            "mtp toscreen_currentscreen_useraction_hop\nendif\nend\n"),
       Well("begin\nif action = hop\nmtp toobj_dog_useraction_skip\nelseif action = skip\n"
            "mtp toscreen_currentscreen_useraction_jump\nendif\nend\n")},
      {"V710", "Info\\dog\\wellscript.txt:2", Well("begin\nmtp toobj_dog_runscript_well\nend\n"),
       Well("begin\nmtp toobj_dog_runscript_treat\nend\n")},
      {"V711", "Info\\dog\\wellscript.txt:45", Row(30, 2), Row(30, 1)},
      {"V711", "Info\\dog\\wellscript.txt:133", Row(150, 1), Row(40, 1)},
  };
}

}  // namespace quendle
