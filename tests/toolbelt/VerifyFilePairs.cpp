#include "toolbelt/VerifyPairs.h"

namespace quendle {

namespace {

// Adds an object without a picture, with `children` as its child list.
Plant Plain(const std::string& name, const std::string& children) {
  const std::string list = children.empty() ? "nothing" : "\\Info\\plain\\" + name + "list.txt";
  std::vector<Plant> plants{
      Put("plain\\" + name + ".txt", "button\n" + name + "\n0\n0\n0\n0\n\\Info\\plain\\data.txt\n" +
                                         list + "\nstate_default\n"),
      Put("plain\\data.txt", "\\Info\\plain\\states.txt\nnothing\nnothing\nnothing\nunused\n"),
      Put("plain\\states.txt", "default\nnothing\nnothing\nnothing\nunused\nunused\n")};
  if (!children.empty()) plants.push_back(Put("plain\\" + name + "list.txt", children));
  return All(plants);
}

std::string PlainLine(const std::string& name) { return "\\Info\\plain\\" + name + ".txt\n"; }

// Below the hall `count` objects, each inside the one before.
Plant Nested(int count) {
  std::vector<Plant> plants{Append("hall\\hallchildren.txt", PlainLine("n1"))};
  for (int i = 1; i <= count; ++i) {
    const std::string next = i < count ? PlainLine("n" + std::to_string(i + 1)) : "";
    plants.push_back(Plain("n" + std::to_string(i), next));
  }
  return All(plants);
}

// Global objects, each of which holds the one before: a tree that no single file makes deep.
Plant NestedGlobals(int count) {
  std::vector<Plant> plants;
  for (int i = 1; i <= count; ++i) {
    const std::string name = "g" + std::to_string(i);
    plants.push_back(Append("globalgameobjects.txt", PlainLine(name)));
    plants.push_back(Plain(name, i == 1 ? "" : "GlobalObject_g" + std::to_string(i - 1) + "\n"));
  }
  return All(plants);
}

// Below the hall `levels` levels of two objects that share the list of the next level.
Plant Doubled(int levels) {
  std::vector<Plant> plants{Append("hall\\hallchildren.txt", PlainLine("a1"))};
  for (int i = 1; i <= levels; ++i) {
    const std::string next = std::to_string(i + 1);
    for (const char* side : {"a", "b"}) {
      plants.push_back(Plain(side + std::to_string(i),
                             i < levels ? PlainLine("a" + next) + PlainLine("b" + next) : ""));
    }
  }
  return All(plants);
}

}  // namespace

std::vector<CheckPair> FilePairs() {
  const std::string intro = "\\Info\\introscreen\\introscreen.txt\n";
  return {
      {"V001", "Info\\dog\\dogframes.txt:5",
       Edit("dog\\dogframes.txt", "stable\n0\n", "stable\nleft\n"),
       Edit("dog\\dogframes.txt", "stable\n0\n", "stable\n0.4\n")},
      {"V101", "Info\\dog\\dogdata.txt:1", Edit("dog\\dogdata.txt", "dogstates", "dogstate"),
       Edit("dog\\dogdata.txt", "<CurrentDirectory>\\dogstates", "\\Info\\dog\\dogstates")},
      {"V101", "Info\\dog\\dogdata.txt:1",
       Edit("dog\\dogdata.txt", "<CurrentDirectory>\\dogstates", "Info\\dog\\dogstates"),
       Edit("dog\\dogdata.txt", "<CurrentDirectory>\\dogstates", "\\Info/dog\\\\dogstates")},
      {"V101", "Info\\dog\\dogdata.txt:1",
       Edit("dog\\dogdata.txt", "<CurrentDirectory>", "<CurentDirectory>"), Nothing()},
      {"V102", "Info\\dog\\puppy.txt:0", Put("dog\\puppy.txt", "x"), Put("captions.txt", "x")},
      {"V103", "Info\\dog\\dogdata.txt:1", Edit("dog\\dogdata.txt", "dogstates", "DogStates"),
       Edit("dog\\dogdata.txt", "<CurrentDirectory>", "<currentdirectory>")},
      {"V104", "Info\\dog\\Dogstates.txt:0", Put("dog\\Dogstates.txt", "nothing\n"),
       Put("doctor\\dogstates.txt", "nothing\n")},
      {"V105", "Info\\dogroom\\dogroomchildren.txt:2",
       Edit("dogroom\\dogroomchildren.txt", "dog.txt xpos", "dog.txt \txpos"),
       Edit("dogroom\\dogroomchildren.txt", "dog.txt xpos", "dog.txt   xpos")},
      {"V106", "Info\\dog\\dogregions.txt:1", Edit("dog\\dogregions.txt", "head", "t\xC3\xAAte"),
       Edit("dog\\dogregions.txt", "head", "t\xEAte")},
      {"V107", "Info\\dog\\dogstates.txt:7",
       Edit("dog\\dogstates.txt", "default-owww\n", "default-owww \n"),
       Edit("dog\\dogframes.txt", "sit\n", " sit \n")},
      {"V108", "Info\\GlobalReferences\\scripts\\waterPatientIllnessStateSafeMode.txt:0",
       Remove("GlobalReferences\\scripts\\waterPatientIllnessStateSafeMode.txt"),
       Put("GlobalReferences\\scripts\\waterPatientIllnessState.txt", "begin\nchange x\nend\n")},
      {"V109", "Info\\dogroom\\dogroomchildren.txt:2",
       Edit("dogroom\\dogroomchildren.txt", "xpos_200", "xpos200"),
       Edit("dogroom\\dogroomchildren.txt", "xpos_200", "XPOS_200 depth_3 visible_on")},
      {"V110", "Info\\dog\\doganimation.txt:5",
       Edit("dog\\doganimation.txt", "\nloop\n", "\nlopp\n"),
       Edit("dog\\doganimation.txt", "\nnonloop\n", "\nunused\n")},
      {"V201", "Info\\dog\\dog.txt:1", Edit("dog\\dog.txt", "patient\n", "pateint\n"),
       Edit("dog\\dog.txt", "patient\n", "Patient\n")},
      {"V202", "Info\\hall\\hallchildren.txt:2",
       All({Edit("dogdoor\\dogdoorstates.txt", "default\n", "shut\n"),
            Edit("dogdoor\\dogdoor.txt", "state_default", "")}),
       All({Edit("dogdoor\\dogdoorstates.txt", "default\n", "shut\n"),
            Edit("dogdoor\\dogdoor.txt", "state_default", "state_shut")})},
      {"V203", "Info\\dog\\dogstates.txt:13", Edit("dog\\dogstates.txt", "better1\n", "DEFAULT\n"),
       Nothing()},
      {"V203", "Info\\dog\\dogframes.txt:10",
       Edit("dog\\dogframes.txt", "blink\nnothing\n", "Sit\n<CurrentDirectory>\\dogregions.txt\n"),
       Edit("dog\\dogframes.txt", "blink\nnothing\n",
            "blink\n<CurrentDirectory>\\dogregions.txt\n")},
      {"V204", "Info\\dogroom\\dogroomchildren.txt:3",
       Edit("dogroom\\dogroomchildren.txt", "GlobalObject_doctor", "GlobalObject_docter"),
       Edit("dogroom\\dogroomchildren.txt", "GlobalObject_doctor", "globalobject_DOCTOR")},
      {"V205", "Info\\doctor\\doctorchildren.txt:1",
       All({Put("doctor\\doctorchildren.txt", "GlobalObject_handcursor\n"),
            Edit("doctor\\doctor.txt", "data.txt\nnothing\n",
                 "data.txt\n<CurrentDirectory>\\doctorchildren.txt\n")}),
       All({Put("soapcursor\\children.txt", "GlobalObject_doctor\n"),
            Edit("soapcursor\\soapcursor.txt", "data.txt\nnothing\n",
                 "data.txt\n<CurrentDirectory>\\children.txt\n")})},
      {"V206", "Info\\dog\\dogchildren.txt:1",
       All({Put("dog\\dogchildren.txt", "<CurrentDirectory>\\dog.txt\n"),
            Edit("dog\\dog.txt", "data.txt\nnothing\n",
                 "data.txt\n<CurrentDirectory>\\dogchildren.txt\n")}),
       All({Put("dog\\dogchildren.txt", "\\Info\\leave\\leave.txt\n"),
            Edit("dog\\dog.txt", "data.txt\nnothing\n",
                 "data.txt\n<CurrentDirectory>\\dogchildren.txt\n")})},
      {"V206", "Info\\dog\\wellscript.txt:3",
       Edit("dog\\wellscript.txt", "mtp ", "mtp toobj_doctor_addglobalobj_doctor\nmtp "),
       Edit("dog\\wellscript.txt", "mtp ", "mtp toobj_doctor_addglobalobj_soapcursor\nmtp ")},
      {"V207", "Info\\screens.txt:0", Edit("screens.txt", intro, ""),
       Edit("introscreen\\introscreen.txt", "introscreen\n0", "IntroScreen\n0")},
      {"V208", "Info\\globalgameobjects.txt:0",
       Edit("globalgameobjects.txt", "\\Info\\handcursor\\handcursor.txt\n", ""), Nothing()},
      {"V209", "Info\\dogroom\\dogroomchildren.txt:2",
       Edit("dog\\dogframes.txt", "stable\nstable\n0", "0\n0\n0"),
       Edit("dog\\dogframes.txt", "stable\nstable\n0", "200\n100\n0")},
      {"V210", "Info\\squarescreen\\squarescreenchildren.txt:1",
       Edit("squarescreen\\squarescreenchildren.txt", "xpos_0", "xpos_10"),
       Edit("squarescreen\\squarescreenchildren.txt", " xpos_0 ypos_0", "")},
      {"V211", "Info\\leave\\leave.txt:8",
       All({Edit("leave\\leave.txt", "button\n", "menu\n"),
            Edit("leave\\leave.txt", "data.txt\nnothing\n",
                 "data.txt\n\\Info\\hall\\hallchildren.txt\n")}),
       Edit("leave\\leave.txt", "button\n", "menu\n")},
      {"V212", "Info\\board\\puzzle.txt:3", Edit("board\\puzzle.txt", "\n3\n", "\n4\n"),
       Edit("board\\puzzle.txt", "\n3\n", "\n3 tiles\n")},
      {"V212", "Info\\board\\puzzle.txt:13", Edit("board\\puzzle.txt", "t1\n", ""),
       Append("board\\puzzle.txt", "t1\n")},
      {"V213", "Info\\plain\\n59list.txt:1", Nested(60), Nested(59)},
      {"V213", "Info\\plain\\n59list.txt:1", Nested(5000), Nested(59)},
      {"V213", "Info\\plain\\g61list.txt:1", NestedGlobals(61), NestedGlobals(60)},
      {"V214", "Info\\plain\\a7list.txt:2", Doubled(20), Doubled(9)},
  };
}

}  // namespace quendle
