// How objects come to be: the factory, the order of a load, directives, children.
#include <gtest/gtest.h>

#include "media/SoundState.h"
#include "support/NotedStates.h"
#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectLoad : public ::testing::Test {
 protected:
  std::string LoadFault(const std::string& name) {
    return FatalOf([&] { bench_.Load(name); });
  }
  std::string LoadBox(const std::string& name) {
    return FatalBoxOf([&] { bench_.Load(name); });
  }
  ObjectBench bench_;
};

using FactoryLoad = ObjectLoad;
using ChildrenOfALoad = ObjectLoad;
using LineNine = ObjectLoad;
using LoadFaults = ObjectLoad;

TEST_F(FactoryLoad, ReadsTypeNameAndPlace) {
  bench_.Object("Door", "BUTTON");
  TestedObject door = bench_.Load("Door");
  EXPECT_EQ(door->ObjectName(), "Door");
  EXPECT_EQ(door->ObjectType(), "BUTTON");
  EXPECT_EQ(door->Inner().ObjDirectory(), "\\Info\\Door\\");
  EXPECT_EQ(door->Parent(), bench_.top);
  EXPECT_EQ(door->DrawingSurface(), bench_.platform.backend.gdi.WindowContext());
  EXPECT_FALSE(door->ObjectOn());
}

TEST_F(FactoryLoad, AnUnknownTypeWordIsFatalAndTheNearestIsNamed) {
  bench_.Object("door", "buton");
  EXPECT_EQ(LoadFault("door"),
            "Info\\door\\door.txt:1: \"buton\" is no type word; did you mean \"button\"?");
  bench_.Object("gate", "spaceship");
  EXPECT_EQ(LoadFault("gate"), "Info\\gate\\gate.txt:1: \"spaceship\" is no type word");
}

TEST_F(FactoryLoad, TheDataFileIsFoundAgainstTheFolderOfTheObjectFile) {
  bench_.Object("door").Raw("door.txt", Text({"button", "gate", "0", "0", "0", "0",
                                              "<CurrentDirectory>\\data.txt", "nothing", ""}));
  EXPECT_EQ(bench_.Load("door")->Inner().ObjDirectory(), "\\Info\\door\\");
  bench_.Object("shared").Raw("shared.txt",
                              Text({"button", "gate", "0", "0", "0", "0",
                                    "<PreviousDirectory>\\door\\data.txt", "nothing", ""}));
  EXPECT_EQ(bench_.Load("shared")->Inner().ObjDirectory(), "\\Info\\door\\")
      << "the folder of the data file";
}

TEST_F(FactoryLoad, TheNameTokensAreUnknownInAnObjectFile) {
  bench_.Object("door").Raw("door.txt", Text({"button", "door", "0", "0", "0", "0",
                                              "\\Info\\<ObjectName>\\data.txt", "nothing", ""}));
  EXPECT_EQ(LoadBox("door"), "File C:\\Game\\Info\\<ObjectName>\\data.txt not found");
}

TEST_F(FactoryLoad, ADirectiveLineThatIsWrongNamesItsLine) {
  bench_.Object("door").Directives("xpos_left");
  EXPECT_EQ(LoadFault("door"), "Info\\door\\door.txt:9: \"left\" is not a number (xpos)");
}

TEST_F(ObjectLoad, WithoutAnimationFileAnObjectIsAsLargeAsTheScreenAndNeverHit) {
  bench_.Object("door");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(door->width(), 800);
  EXPECT_EQ(door->height(), 600);
  EXPECT_TRUE(door->Inner().Frames().Empty());
  EXPECT_FALSE(door->AreWeOnTheObject(10, 10));
  EXPECT_FALSE(door->AreWeOnTheObject(10, -1));
}

TEST_F(ObjectLoad, TheSizeIsThatOfTheFirstFrame) {
  bench_.Object("door").Frame("a", {0, 0, 11, 12}).Frame("b", {0, 0, 50, 60});
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->width(), 11);
  EXPECT_EQ(door->height(), 12);
}

TEST_F(ObjectLoad, ADrawSizeOfOneSideKeepsBothValues) {
  bench_.Object("door").Frame("a", {0, 0, 11, 12}, "stable", "stable/40");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->width(), 0);
  EXPECT_EQ(door->height(), 40);
  bench_.Object("gate").Frame("a", {0, 0, 11, 12}, "stable/0", "stable/0");
  EXPECT_EQ(bench_.Load("gate")->width(), 11) << "both are 0: the source size";
}

TEST_F(ObjectLoad, TheLoadSizeIsHandedOut) {
  bench_.Object("door").Frame("a", {0, 0, 11, 12});
  bench_.tree.Write();
  std::int16_t width = 0;
  std::int16_t height = 0;
  auto object = std::make_shared<ForwardingObject>(bench_.objects);
  LoadArguments arguments;
  arguments.type = "button";
  arguments.name = "door";
  arguments.data_file = "C:\\Game\\Info\\door\\data.txt";
  arguments.width = &width;
  arguments.height = &height;
  arguments.child_list = "nothing";
  arguments.outer = object;
  object->LoadObject(arguments);
  EXPECT_EQ(width, 11);
  EXPECT_EQ(height, 12);
}

TEST_F(ObjectLoad, APictureOfNothingReadsNoFrames) {
  bench_.Object("door").Still(10, 10).PictureLine("Nothing");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->PictureName(), "Nothing");
  EXPECT_TRUE(door->Inner().Frames().Empty());
  EXPECT_TRUE(door->Inner().Animations().Empty());
  EXPECT_EQ(door->width(), 800);
}

TEST_F(ObjectLoad, PathsAreResolvedAgainstTheFolderOfTheDataFile) {
  bench_.Object("handtool")
      .Raw("data.txt", Text({"<CurrentDirectory>\\<ObjectName>.states", "nothing", "nothing",
                             "<CurrentDirectory>\\<RootObjectName>\\list.txt", ""}))
      .Raw("handtool.states", Text({"default", "nothing", "nothing", "main", "", ""}))
      .Raw("hand\\list.txt", Text({"main", "<PreviousDirectory>\\main.txt", ""}));
  bench_.platform.files.Put("\\Info\\main.txt", "begin\nmtp hi\nend\n");
  TestedObject tool = bench_.LoadOn("handtool");
  tool->UpdateGameObject(-1, -1, ActionText("x"));
  EXPECT_EQ(bench_.top->messages, (Lines{"hi"}));
}

TEST_F(ObjectLoad, PathTokensAsGivenInTheirFolder) {
  bench_.Object("handcursor");
  TestedObject object = bench_.Load("handcursor");
  EXPECT_EQ(object->LoadCurrentDirectory("<currentdirectory>\\x.txt"), "\\Info\\handcursor\\x.txt");
  EXPECT_EQ(object->LoadCurrentDirectory("<PreviousDirectory>\\x.txt"), "\\Info\\x.txt");
  EXPECT_EQ(object->LoadCurrentDirectory("<GlobalDirectory>\\x.txt"),
            "\\Info\\GlobalReferences\\x.txt");
  EXPECT_EQ(object->LoadCurrentDirectory("<CurrentDirectory>\\<ObjectName>.txt"),
            "\\Info\\handcursor\\handcursor.txt");
  EXPECT_EQ(object->LoadCurrentDirectory("<CurrentDirectory>\\<RootObjectName>\\<ObjectName>"),
            "\\Info\\handcursor\\hand\\<ObjectName>")
      << "one name token only";
  EXPECT_EQ(object->LoadCurrentDirectory("<rootobjectname>"), "<rootobjectname>")
      << "that token ends with a backslash";
  EXPECT_EQ(object->LoadCurrentDirectory("<ObjectName><ObjectName>"), "handcursor<ObjectName>");
}

TEST_F(ObjectLoad, TwoStatesOfOneNameAreFatal) {
  bench_.Object("door").State("default").State("open").State("OPEN");
  EXPECT_EQ(LoadFault("door"),
            "Info\\door\\states.txt:13: there are two state entries named \"OPEN\"");
}

TEST_F(ObjectLoad, TwoAnimationsOfOneNameAreFatal) {
  bench_.Object("door").Still(5, 5).Animation("Still", 10, "loop", {"all"});
  EXPECT_EQ(LoadFault("door"),
            "Info\\door\\animations.txt:9: there are two animation entries named \"Still\"");
}

TEST_F(ObjectLoad, TwoSoundsOfOneNameAreFatal) {
  bench_.Object("door").Sound("click").Sound("Click");
  EXPECT_EQ(LoadFault("door"),
            "Info\\door\\sounds.txt:5: there are two sound state entries named \"Click\"");
}

TEST_F(ObjectLoad, TwoScriptsOfOneNameAreFatal) {
  bench_.Object("door").Script("main", "begin\nx\nend\n").GlobalScript("MAIN");
  bench_.AddGlobalScript("main", "begin\nx\nend\n");
  EXPECT_EQ(LoadFault("door"),
            "Info\\door\\scripts.txt:4: there are two script entries named \"MAIN\"");
}

TEST_F(ObjectLoad, TwoFramesOfOneNameAreFineAndTheLastHoldsForEverySearch) {
  bench_.Object("door")
      .Frame("a", {0, 0, 11, 12})
      .Frame("A", {3, 0, 13, 14})
      .Animation("still", 10, "loop", {"a"})
      .State("default", "nothing", "still");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(door->QueryFrameState("a")->SourceX, 3);
  EXPECT_EQ(door->width(), 13);
}

TEST_F(ObjectLoad, TwoFramesOfOneNameThatBothHaveRegionsAreFatal) {
  bench_.Object("door")
      .Frame("a", {0, 0, 11, 12})
      .Frame("A", {3, 0, 13, 14})
      .Region("a", "head", 0, 0, 5, 5)
      .Animation("still", 10, "loop", {"a"});
  EXPECT_NO_THROW(bench_.Load("door"));
  bench_.Object("door").Region("A", "arm", 0, 0, 5, 5);
  EXPECT_EQ(FatalOf([&] { bench_.Load("door"); }),
            "Info\\door\\frames.txt:10: there are two region list entries named \"A\"");
}

TEST_F(ObjectLoad, QueriesIgnoreCaseAndAnswerNothingForUnknownNames) {
  bench_.Object("door").State("Open").Still(5, 5).Sound("Click");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->QueryObjState("OPEN")->Name(), "Open");
  EXPECT_EQ(door->QuerySoundState("CLICK")->Name(), "Click");
  EXPECT_EQ(door->QueryAnimationState("STILL")->Name(), "still");
  EXPECT_EQ(door->QueryFrameState("ALL")->FrameName, "all");
  EXPECT_EQ(door->QueryObjState("x"), nullptr);
  EXPECT_EQ(door->QuerySoundState("x"), nullptr);
  EXPECT_EQ(door->QueryAnimationState("x"), nullptr);
  EXPECT_EQ(door->QueryFrameState("x"), nullptr);
}

TEST_F(ObjectLoad, ASoundFileGivesThePlayerWhateverItHolds) {
  bench_.Object("door").Raw("sounds.txt", "");
  bench_.Object("gate");
  EXPECT_NE(bench_.Load("door")->GetDShowObj(), nullptr);
  EXPECT_EQ(bench_.Load("gate")->GetDShowObj(), nullptr);
}

TEST_F(ObjectLoad, SoundsOfAnObjectAreLoadedOnlyWhenAsked) {
  bench_.Object("door").Sound("late", "loop").Sound("early", "once", "load_now");
  TestedObject door = bench_.Load("door");
  EXPECT_FALSE(door->QuerySoundState("late")->Loaded());
  EXPECT_TRUE(door->QuerySoundState("late")->FileFound());
  EXPECT_TRUE(door->QuerySoundState("late")->DoWeLoop());
  EXPECT_TRUE(door->QuerySoundState("early")->Loaded());
  EXPECT_FALSE(door->QuerySoundState("early")->DoWeLoop());
  EXPECT_EQ(door->QuerySoundState("late")->Sound(), "C:\\Game\\Info\\door\\late.wma");
}

TEST_F(ObjectLoad, AGlobalSoundIsSharedUnderItsOwnName) {
  auto bell = bench_.AddGlobalSound("Bell");
  bench_.Object("door").GlobalSound("bell");
  bench_.Object("gate").Raw("sounds.txt", Text({"myGLOBALSOUND_bell", "", "", ""}));
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->QuerySoundState("bell"), bell);
  EXPECT_EQ(door->Inner().Sounds().KeyOf(1), "Bell");
  EXPECT_EQ(
      LoadFault("gate"),
      "Info\\gate\\sounds.txt:1: there is no global sound \"mybell\"; did you mean \"Bell\"?");
}

TEST_F(ObjectLoad, AGlobalScriptIsSharedByAnyNumberOfObjects) {
  bench_.AddGlobalScript("Main", "begin\nmtp <objectname>\nend\n");
  for (const char* name : {"door", "gate"}) {
    bench_.Object(name).State("default", "nothing", "nothing", "main").GlobalScript("main");
    bench_.LoadOn(name)->UpdateGameObject(-1, -1, ActionText("x"));
  }
  EXPECT_EQ(bench_.top->messages, (Lines{"door", "gate"}));
  bench_.Object("hatch").GlobalScript("mail");
  EXPECT_EQ(
      LoadFault("hatch"),
      "Info\\hatch\\scripts.txt:1: there is no global script \"mail\"; did you mean \"Main\"?");
}

TEST_F(ObjectLoad, RegionsAreReadUnderTheNameOfTheirFrame) {
  bench_.Object("door").Frame("a").Frame("b").Region("a", "head", 0, 0, 5, 5);
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->QueryFrameState("a")->RegionKey, "a");
  EXPECT_EQ(door->QueryFrameState("b")->RegionKey, "nothing");
  EXPECT_EQ(door->Inner().FrameRegions().Count(), 1U);
}

TEST_F(ObjectLoad, ADirectiveFileIsNamedByAnyPathButNothingAndUnused) {
  bench_.platform.files.Put("\\Info\\path.txt", Text({"words", "Spline", "", "", "loop", "p", "4",
                                                      "0 8", "0 0", "", "", "spline2"}));
  bench_.Object("door")
      .Frame("a")
      .Animation("one", 10, "loop", {"a"}, "nothing")
      .Animation("two", 10, "loop", {"a"}, "UNUSED")
      .Animation("three", 10, "loop", {"a"}, "<PreviousDirectory>\\path.txt")
      .Animation("four", 10, "loop", {"a"}, "Info\\path.txt");
  TestedObject door = bench_.Load("door");
  EXPECT_FALSE(door->QueryAnimationState("one")->HasSpline());
  EXPECT_FALSE(door->QueryAnimationState("two")->HasSpline());
  EXPECT_TRUE(door->QueryAnimationState("three")->HasSpline());
  EXPECT_TRUE(door->QueryAnimationState("four")->HasSpline())
      << "a further backslash is put before";
}

TEST_F(ObjectLoad, ASplineThatIsCutIsFatal) {
  bench_.platform.files.Put("\\Info\\path.txt",
                            Text({"spline", "", "", "loop", "p", "4", "0 8", "0 0", ""}));
  bench_.Object("door").Frame("a").Animation("one", 10, "loop", {"a"}, "\\Info\\path.txt");
  EXPECT_TRUE(LoadFault("door").starts_with("Info\\path.txt:10: the file ends where "))
      << LoadFault("door");
}

TEST_F(LoadFaults, AMissingFileOfAnyKindShowsItsBox) {
  const auto missing = [&](const char* name, const Lines& data) {
    bench_.Object(name).Raw("data.txt", Text(data));
    return LoadBox(name);
  };
  EXPECT_EQ(missing("a", {"\\x.txt", "nothing", "nothing", "nothing", ""}),
            "File C:\\Game\\x.txt not found");
  EXPECT_EQ(missing("b", {"nothing", "\\x.txt", "nothing", "nothing", ""}),
            "File C:\\Game\\x.txt not found");
  EXPECT_EQ(missing("c", {"nothing", "nothing", "\\x.txt", "nothing", ""}),
            "File C:\\Game\\x.txt not found");
  EXPECT_EQ(missing("d", {"nothing", "nothing", "nothing", "\\x.txt", ""}),
            "File C:\\Game\\x.txt not found");
  EXPECT_EQ(FatalBoxOf([&] { CreateGameObject(bench_.objects, "C:\\Game\\y.txt", 0, bench_.top); }),
            "File C:\\Game\\y.txt not found");
  bench_.Object("e")
      .Raw("frames.txt", "")
      .Frame("all")
      .Raw("animations.txt", Text({"<CurrentDirectory>\\picture.bmp", "\\frames.txt"}));
  EXPECT_EQ(LoadBox("e"), "File C:\\Game\\frames.txt not found");
  bench_.Object("f").Frame("all").Raw("frames.txt",
                                      Text({"all", "\\r.txt", "1", "1", "1", "1", "1", "1", ""}));
  EXPECT_EQ(LoadBox("f"), "File C:\\Game\\r.txt not found");
  bench_.Object("g").Raw(
      "g.txt", Text({"button", "g", "0", "", "", "", "\\Info\\g\\data.txt", "\\children.txt", ""}));
  EXPECT_EQ(LoadBox("g"), "File C:\\Game\\children.txt not found");
}

TEST_F(LoadFaults, ABadLineNamesFileAndLine) {
  bench_.Object("door").Raw("states.txt", Text({"default", "nothing", "nothing"}));
  EXPECT_EQ(LoadFault("door"),
            "Info\\door\\states.txt:4: the file ends where the script of state \"default\" should "
            "stand");
  bench_.Object("gate").Frame("all", {}, "stable+0");
  EXPECT_EQ(LoadBox("gate"), "Error: Cannot have the line 'stable+0'");
  EXPECT_EQ(LoadFault("gate"), "Info\\gate\\frames.txt:3: Error: Cannot have the line 'stable+0'");
}

TEST_F(LineNine, SetsStateAndPlaceAndVisibility) {
  bench_.Object("door").State("default").State("open").Directives(
      "state_open xpos_3 ypos_4 visible_off");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->CurrentState(), "open");
  EXPECT_EQ(door->xpos(), 3);
  EXPECT_EQ(door->ypos(), 4);
  EXPECT_FALSE(door->Visible());
}

TEST_F(LineNine, AnEmptyLineSetsTheDefaultStateAndMakesVisible) {
  bench_.Object("door").State("open").State("Default");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->CurrentState(), "Default");
  EXPECT_TRUE(door->Visible());
}

TEST_F(LineNine, RunStateComesBehindTheInitialStateAndIsRemembered) {
  bench_.Object("door").State("default").State("open").State("wave").Directives(
      "runstate_wave state_open");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->CurrentState(), "wave");
  EXPECT_EQ(door->Inner().StateHistory(), (Lines{"open"}));
}

TEST_F(LineNine, RunsBeforeTheChildrenExist) {
  bench_.Object("lamp").State("default").State("lit");
  bench_.Object("door")
      .State("default")
      .State("open")
      .Directives("runstate_open")
      .Child("lamp", "state_lit");
  NotedStates states(bench_.watch);
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(states.lines, (Lines{"door: default", "door: open", "lamp: default", "lamp: lit"}));
  EXPECT_EQ(ObjectBench::NamesOf(door->Children()), (Lines{"lamp"}));
}

TEST_F(ChildrenOfALoad, MakeChildrenInOrderBelowTheirParent) {
  bench_.Object("a");
  bench_.Object("b");
  bench_.Object("hall", "hall").Child("a", "xpos_5 ypos_7").Child("b");
  TestedObject hall = bench_.Load("hall");
  EXPECT_EQ(ObjectBench::NamesOf(hall->Children()), (Lines{"a", "b"}));
  EXPECT_EQ(ObjectBench::Child(*hall, "A")->xpos(), 5);
  EXPECT_EQ(ObjectBench::Child(*hall, "a")->Parent(), hall);
}

TEST_F(ChildrenOfALoad, ALineRunsBehindLineNineAndOverridesIt) {
  bench_.Object("door").State("default").State("open").Directives(
      "state_open visible_off xpos_5 ypos_6");
  bench_.Object("hall", "hall").Child("door", "ypos_9");
  TestedObject hall = bench_.Load("hall");
  TestedObject door = ObjectBench::Child(*hall, "door");
  EXPECT_EQ(door->CurrentState(), "default") << "no state word";
  EXPECT_TRUE(door->Visible()) << "no visible word";
  EXPECT_EQ(door->xpos(), 5) << "places stay";
  EXPECT_EQ(door->ypos(), 9);
}

TEST_F(ChildrenOfALoad, AnotherVisibilityLeavesItAlone) {
  bench_.Object("door").Directives("visible_off");
  bench_.Object("hall", "hall").Child("door", "visible_maybe");
  TestedObject hall = bench_.Load("hall");
  EXPECT_FALSE(ObjectBench::Child(*hall, "door")->Visible());
}

TEST_F(ChildrenOfALoad, PathsAreResolvedAgainstTheFolderOfTheDataFile) {
  bench_.Object("door");
  bench_.Object("hall", "hall").ChildLine("<PreviousDirectory>\\door\\door.txt");
  EXPECT_EQ(ObjectBench::NamesOf(bench_.Load("hall")->Children()), (Lines{"door"}));
}

TEST_F(ChildrenOfALoad, AGlobalChildIsSharedAndNotCopied) {
  bench_.Object("doctor", "doctor");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  bench_.Object("hall", "hall").GlobalChild("DOCTOR");
  bench_.Object("room", "hall").ChildLine("theGlobalObject_doctor_extra");
  EXPECT_EQ(ObjectBench::Child(*bench_.Load("hall"), "doctor"), doctor);
  EXPECT_EQ(ObjectBench::Child(*bench_.Load("room"), "doctor"), doctor);
}

TEST_F(ChildrenOfALoad, ASharedChildTakesTheDirectivesAnewEvenWhileItIsOnElsewhere) {
  bench_.Object("doctor", "doctor").State("default").State("glad");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  bench_.Object("hall", "hall").GlobalChild("doctor", "state_glad visible_off xpos_40");
  TestedObject hall = bench_.LoadOn("hall");
  EXPECT_EQ(doctor->CurrentState(), "glad");
  bench_.Object("room", "hall").GlobalChild("doctor");
  TestedObject room = bench_.Load("room");
  EXPECT_TRUE(doctor->ObjectOn()) << "still on in the hall";
  EXPECT_EQ(doctor->CurrentState(), "default");
  EXPECT_TRUE(doctor->Visible());
  EXPECT_EQ(doctor->xpos(), 40);
}

TEST_F(ChildrenOfALoad, AnUnknownGlobalNameIsSkippedInSilence) {
  bench_.Object("door");
  bench_.Object("hall", "hall").GlobalChild("nobody", "xpos_left?").Child("door");
  EXPECT_EQ(ObjectBench::NamesOf(bench_.Load("hall")->Children()), (Lines{"door"}));
  EXPECT_TRUE(bench_.log.lines.empty());
}

TEST_F(ChildrenOfALoad, AGlobalWordWithoutANameIsFatal) {
  bench_.Object("hall", "hall").ChildLine("GlobalObject");
  EXPECT_EQ(LoadFault("hall"),
            "Info\\hall\\children.txt:1: \"GlobalObject\" names no global object; it has the form "
            "GlobalObject_name");
}

TEST_F(ChildrenOfALoad, TwoChildrenOfOneNameAreFatal) {
  bench_.Object("door");
  bench_.Object("hall", "hall").Child("door").Child("DOOR");
  EXPECT_NE(LoadFault("hall").find("there are two child entries named \"door\""), std::string::npos)
      << LoadFault("hall");
}

TEST_F(ChildrenOfALoad, ABlankNameIsOneLikeAnyOther) {
  for (const char* name : {"door", "gate"}) {
    const std::string folder = "\\Info\\" + std::string(name) + "\\";
    bench_.Object(name).Raw(std::string(name) + ".txt", Text({"button", "", "0", "0", "0", "0",
                                                              folder + "data.txt", "nothing", ""}));
  }
  bench_.Object("room", "hall").Child("door");
  EXPECT_NE(ObjectBench::Child(*bench_.Load("room"), ""), nullptr);
  bench_.Object("hall", "hall").Child("door").Child("gate");
  EXPECT_NE(LoadFault("hall").find("there are two child entries named \"\""), std::string::npos)
      << LoadFault("hall");
}

TEST_F(ChildrenOfALoad, AWrongDirectiveNamesTheLineOfTheList) {
  bench_.Object("door");
  bench_.Object("hall", "hall").Child("door", "xpos_left");
  EXPECT_EQ(LoadFault("hall"), "Info\\hall\\children.txt:1: \"left\" is not a number (xpos)");
}

TEST_F(ChildrenOfALoad, ALineReachesTheNewChildBeforeItIsAdded) {
  // Below an object that is on an added child begins to sound: by then it is in the line's state.
  bench_.Object("door")
      .Sound("a")
      .Sound("b")
      .Sound("c")
      .State("default", "a")
      .State("open", "b")
      .State("wave", "c");
  bench_.Object("hall", "hall");
  TestedObject hall = bench_.LoadOn("hall");
  bench_.platform.files.Put("\\Info\\more.txt",
                            "\\Info\\door\\door.txt state_open runstate_wave\n");
  hall->LoadChildrenObjects("\\Info\\more.txt", 0);
  TestedObject door = ObjectBench::Child(*hall, "door");
  EXPECT_EQ(door->CurrentState(), "wave");
  EXPECT_EQ(door->Inner().StateHistory(), (Lines{"open"}));
  EXPECT_EQ(bench_.sounds.Runs("a.wma"), 0);
  EXPECT_EQ(bench_.sounds.Runs("b.wma"), 0);
  EXPECT_EQ(bench_.sounds.Runs("c.wma"), 1);
}

TEST_F(ChildrenOfALoad, AListThatNamesItsOwnObjectIsFatalAndNotTheEndOfTheStack) {
  bench_.Object("hall", "hall").Child("hall");
  EXPECT_EQ(LoadFault("hall"),
            "more than 60 objects inside one another: the content goes round in circles at object "
            "file \"Info\\hall\\hall.txt\"");
}

TEST_F(ChildrenOfALoad, SixtyObjectsInsideOneAnotherAreTheMost) {
  const auto name = [](int level) { return "n" + std::to_string(level); };
  for (int level = 61; level >= 1; --level) {
    TestObject& object = bench_.Object(name(level));
    if (level < 61) object.Child(name(level + 1));
  }
  EXPECT_EQ(LoadFault("n1"),
            "more than 60 objects inside one another: the content is nested too deep at object "
            "file \"Info\\n61\\n61.txt\"");
  EXPECT_NO_THROW(bench_.LoadOn("n2"));
}

TEST_F(ChildrenOfALoad, GlobalObjectsInsideOneAnotherHaveTheSameLimit) {
  bench_.Object("g1", "hall");
  TestedObject below = bench_.LoadGlobal("g1");
  for (int level = 2; level <= 60; ++level) {
    const std::string name = "g" + std::to_string(level);
    bench_.Object(name, "hall").GlobalChild("g" + std::to_string(level - 1));
    bench_.LoadGlobal(name);
  }
  bench_.Object("g61", "hall").GlobalChild("g60");
  EXPECT_EQ(LoadFault("g61"),
            "more than 60 objects inside one another: the content is nested too deep at \"g1\"");
}

TEST_F(ChildrenOfALoad, ListsThatMultiplyAreFatalAndNameTheChain) {
  for (int level = 1; level <= 20; ++level) {
    const std::string next = std::to_string(level + 1);
    for (const char* side : {"a", "b"}) {
      TestObject& object = bench_.Object(side + std::to_string(level));
      if (level < 20) object.Child("a" + next).Child("b" + next);
    }
  }
  const std::string fault = LoadFault("a1");
  const std::string most = std::to_string(WorkDepth::MostOf(Work::kObject));
  const std::string front = "more than " + most +
                            " object files in one event: the content multiplies at "
                            "Info\\a1\\a1.txt > Info\\";
  EXPECT_EQ(fault.substr(0, front.size()), front);
}

TEST_F(ChildrenOfALoad, AddingSetsNoParentAndOnlyTurningOnDoes) {
  bench_.Object("door");
  bench_.Object("hall", "hall");
  bench_.Object("room", "hall");
  TestedObject hall = bench_.Load("hall");
  TestedObject door = bench_.Load("door");
  hall->AddChildObject(door);
  EXPECT_EQ(door->Parent(), bench_.top);
  EXPECT_FALSE(door->ObjectOn());
  hall->TurnOn();
  EXPECT_EQ(door->Parent(), hall);
  EXPECT_TRUE(door->ObjectOn());
  TestedObject room = bench_.LoadOn("room");
  room->AddChildObject(door);
  EXPECT_EQ(door->Parent(), hall) << "its former screen, until this one is turned on anew";
}

TEST_F(ChildrenOfALoad, AChildAddedToAnObjectThatIsOnIsTurnedOn) {
  bench_.Object("door")
      .State("default", "nothing", "walk")
      .Frame("a")
      .Frame("b")
      .Animation("walk", 50, "loop", {"a b"});
  bench_.Object("hall", "hall");
  TestedObject hall = bench_.LoadOn("hall");
  TestedObject door = bench_.Load("door");
  hall->AddChildObject(door);
  EXPECT_TRUE(door->ObjectOn());
  EXPECT_NE(door->TimerID(), 0);
}

TEST_F(ChildrenOfALoad, NoChildIsIgnored) {
  bench_.Object("hall", "hall");
  TestedObject hall = bench_.LoadOn("hall");
  hall->AddChildObject(nullptr);
  EXPECT_TRUE(hall->Children().Empty());
}

}  // namespace
}  // namespace quendle
