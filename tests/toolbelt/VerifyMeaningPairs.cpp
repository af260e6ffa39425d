#include "toolbelt/VerifyPairs.h"

namespace quendle {
namespace {

// Another name for the object of a folder.
Plant Rename(const std::string& folder, const std::string& name) {
  return Edit(folder + "\\" + folder + ".txt", "\n" + folder + "\n", "\n" + name + "\n");
}

// Another name for the room of the dog, wherever it is named.
Plant RenameRoom(const std::string& name) {
  return All({Rename("dogroom", name), Edit("dogdoor\\pressscript.txt", "cs_dogroom", "cs_" + name),
              Edit("dog\\wellscript.txt", "cs_<objectname>room", "cs_" + name)});
}

Plant RenameBoard(const std::string& name) {
  return All({Rename("squarescreen", name),
              Edit("dog\\treatscript.txt", "subgame_squarescreen", "subgame_" + name)});
}

Plant RenameShelf(const std::string& name) {
  return All({Rename("emptyroom", name), Edit("shelfdoor\\pressscript.txt", "emptyroom", name)});
}

// A machine beside a patient of that name.
Plant Machine(const std::string& patient, const std::string& state) {
  return All(
      {Rename("dog", patient), Edit("dog\\wellscript.txt", "cs_<objectname>room", "cs_dogroom"),
       Rename("leave", "surgerymachine"),
       Append("leave\\leavestates.txt", state + "\nnothing\nrest\nnothing\nunused\nunused\n"),
       Append("dogroom\\dogroomchildren.txt", "\\Info\\leave\\leave.txt\n")});
}

constexpr const char* kDog = "Info\\dog\\dog.txt:2";
constexpr const char* kRoom = "Info\\dogroom\\dogroom.txt:2";

}  // namespace

std::vector<CheckPair> MeaningPairs() {
  return {
      {"V801", "Info\\leave\\leave.txt:2", Rename("leave", "bendy"), Rename("leave", "pal")},
      {"V801", "Info\\leave\\leave.txt:2", Rename("leave", "toolbox"), Rename("leave", "box")},
      {"V801", "Info\\dog\\dogstates.txt:13",
       All({Edit("dog\\dogstates.txt", "better1", "friend"),
            Edit("dog\\treatscript.txt", "change better1", "change friend")}),
       All({Edit("dog\\dogstates.txt", "better1", "pal"),
            Edit("dog\\treatscript.txt", "change better1", "change pal")})},
      {"V801", "Info\\leave\\leave.txt:2", Rename("leave", "subgamer"), Rename("leave", "subgam")},
      {"V801", "Info\\leave\\leave.txt:2", Rename("leave", "wonder"), Rename("leave", "winder")},
      {"V801", "Info\\leave\\leave.txt:2", Rename("leave", "glosty"), Rename("leave", "glossy")},
      {"V801", "Info\\leave\\leave.txt:2", Rename("leave", "abandoned"), Rename("leave", "away")},
      {"V801", "Info\\leave\\leave.txt:2", Rename("leave", "elsewhere"), Rename("leave", "there")},
      {"V801", "Info\\dog\\dogstates.txt:13",
       All({Edit("dog\\dogstates.txt", "better1", "elsewhere"),
            Edit("dog\\treatscript.txt", "change better1", "change elsewhere")}),
       All({Edit("dog\\dogstates.txt", "better1", "there"),
            Edit("dog\\treatscript.txt", "change better1", "change there")})},
      {"V802", "Info\\leave\\leave.txt:2", Rename("leave", "way_out"), Rename("leave", "way-out")},
      {"V803", "Info\\leave\\leave.txt:2", Rename("leave", "way out"), Rename("leave", "wayout")},
      {"V803", "Info\\dog\\dogframes.txt:10", Edit("dog\\dogframes.txt", "blink\n", "blink eye\n"),
       Edit("dog\\dogframes.txt", "blink\n", " blink \n")},
      {"V804", "Info\\emptyroom\\emptyroom.txt:2",
       Edit("shelfdoor\\pressscript.txt", "mtp cs_emptyroom", "mtp stopmusic"),
       Edit("shelfdoor\\pressscript.txt", "mtp cs_emptyroom", "mtp subgame_emptyroom")},
      {"V805", "Info\\emptyroom\\emptyroom.txt:2", RenameShelf("soaproom"),
       RenameShelf("soapscreen")},
      {"V806", kRoom, RenameRoom("kennel"), RenameRoom("kennelroom")},
      {"V807", kRoom, RenameRoom("squareroom"), RenameRoom("squarroom")},
      {"V807", kRoom, RenameRoom("cursorsroom"), RenameRoom("cursorroom")},
      {"V807", kRoom, RenameRoom("shooterroom"), RenameRoom("shootroom")},
      {"V807", kRoom, RenameRoom("dogtutorialroom"), RenameRoom("tutorialroom")},
      {"V808", "Info\\squarescreen\\squarescreen.txt:2", RenameBoard("boardroom"),
       RenameBoard("boardscreen")},
      {"V901", "Info\\dog\\dogstates.txt:1",
       Edit("dog\\dogstates.txt", "default-owww", "default-ow"),
       All({Edit("dog\\dogstates.txt", "default-owww", "default-ow"),
            Edit("dog\\treatscript.txt", "runstate default-owww", "runstate default-ow")})},
      {"V901", "Info\\dog\\dogstates.txt:7",
       Edit("dog\\doganimation.txt", "ow\n100\nnonloop", "ow\n100\nloop"),
       Edit("dog\\doganimation.txt", "ow\n100\nnonloop", "ow\n100\nunused")},
      {"V901", "Info\\dog\\dogstates.txt:7", Edit("dog\\dogstates.txt", "ow\nnothing", "ow\nwell"),
       Edit("dog\\dogstates.txt", "ow\nnothing", "ow\nNothing")},
      {"V902", "Info\\doctor\\doctorstates.txt:0", Rename("soaptool", "sopetool"),
       Rename("soaptool", "toolsoap")},
      {"V903", "Info\\doctor\\doctorstates.txt:0",
       Edit("doctor\\doctorstates.txt", "startover", "again"),
       Edit("doctor\\doctorstates.txt", "startover", "StartOver")},
      {"V904", kRoom, Machine("kangaroo", "stage1"), Machine("kangaroo", "tumorStage1")},
      {"V904", kRoom, Machine("scarecrow", "tumorStage1"), Machine("scarecrow", "tonsilsStage1")},
      {"V903", "Info\\dog\\dog.txt:2",
       All({Edit("globalgameobjects.txt", "\\Info\\doctor\\doctor.txt\n", ""),
            Remove("doctor\\doctor.txt")}),
       Nothing()},
      {"V906", "Info\\dog\\dogstates.txt:13",
       Edit("dog\\dogstates.txt", "better1-owww", "better1-ow"),
       Edit("dog\\dogstates.txt", "better1-owww", "Better1-OWWW")},
      {"V906", "Info\\dog\\dogstates.txt:19",
       Edit("dog\\dogstates.txt", "better1-owww\nnothing\now\nnothing",
            "better1-owww\nnothing\now\nwell"),
       Edit("dog\\dogstates.txt", "better1-owww\nnothing\now\nnothing",
            "better1-owww\nnothing\now\nNothing")},
      {"V905", "Info\\dog\\dogstates.txt:13",
       All({Edit("dog\\dogstates.txt", "better1", "better3"),
            Edit("dog\\treatscript.txt", "change better1", "change better3")}),
       Edit("dog\\dogstates.txt", "better1", "Better1")},
  };
}

}  // namespace quendle
