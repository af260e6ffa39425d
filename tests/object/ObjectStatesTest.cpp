// States, sounds, the history of states and turning on and off.
#include <gtest/gtest.h>

#include "media/SoundState.h"
#include "script/Statement.h"
#include "support/NotedStates.h"
#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectStates : public ::testing::Test {
 protected:
  // States named by what sounds: "a" with the sound a, "quiet" with nothing, "same" with unchanged.
  TestObject& Speaker(const std::string& name = "speaker", const std::string& type = "button") {
    return bench_.Object(name, type)
        .Sound("a")
        .Sound("b")
        .State("default")
        .State("a", "a")
        .State("b", "b")
        .State("quiet", "nothing")
        .State("same", "unchanged");
  }
  void Do(ForwardingObject& object, const std::string& line) {
    bool result = false;
    object.Interpret(Statement(line), false, result);
  }
  bool Playing(const char* name) { return bench_.sounds.Playing(std::string(name) + ".wma"); }
  int Runs(const char* name) { return bench_.sounds.Runs(std::string(name) + ".wma"); }

  ObjectBench bench_;
};

using StateChange = ObjectStates;
using StateSounds = ObjectStates;
using SoundStatement = ObjectStates;
using DoctorOff = ObjectStates;
using StateHistory = ObjectStates;
using TurningOff = ObjectStates;
using TurningOn = ObjectStates;

TEST_F(StateChange, IsFoundInAnyCaseAndAnswersNothing) {
  bench_.Object("door").State("default").State("Open");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->ProcessState("OPEN"), "");
  EXPECT_EQ(door->CurrentState(), "Open");
}

TEST_F(StateChange, AnUnknownNameChangesNothing) {
  bench_.Object("door").State("default");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_EQ(door->ProcessState("nowhere"), "");
  EXPECT_EQ(door->CurrentState(), "default");
}

TEST_F(StateChange, WithoutStatesTheObjectHasNone) {
  bench_.Object("door").NoStates();
  TestedObject door = bench_.Load("door");
  EXPECT_TRUE(door->Inner().States().Empty());
  EXPECT_EQ(door->CurrentState(), "");
}

TEST_F(StateChange, WhileOffOnlyTheNameChanges) {
  Speaker().Frame("x").Frame("y").Animation("walk", 50, "loop", {"x y"}).State("go", "a", "walk");
  TestedObject speaker = bench_.Load("speaker");
  speaker->ProcessState("go");
  EXPECT_EQ(speaker->CurrentState(), "go");
  EXPECT_EQ(Runs("a"), 0);
  EXPECT_EQ(speaker->TimerID(), 0);
  EXPECT_TRUE(ObjectBench::FramesOf(*speaker).empty());
  speaker->TurnOn();
  EXPECT_EQ(Runs("a"), 1);
  EXPECT_NE(speaker->TimerID(), 0);
}

TEST_F(StateChange, TheScriptOfTheStateRuns) {
  bench_.Object("door")
      .State("default", "nothing", "nothing", "ONE")
      .State("open", "nothing", "nothing", "two")
      .State("gone", "nothing", "nothing", "nosuch")
      .State("mute", "nothing", "nothing", "Nothing")
      .Script("one", "begin\nmtp one\nend\n")
      .Script("two", "begin\nmtp two\nend\n")
      .Script("nothing", "begin\nmtp never\nend\n");
  TestedObject door = bench_.Load("door");
  const ActionText action("x");
  for (const char* state : {"default", "open", "gone", "mute", "default"}) {
    door->ProcessState(state);
    door->UpdateGameObject(-1, -1, action);
  }
  EXPECT_EQ(bench_.top->messages, (Lines{"one", "two", "one"}));
}

TEST_F(StateSounds, EnteringAStateStartsItsSound) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  EXPECT_EQ(speaker->Inner().CurrentSoundName(), "");
  speaker->ProcessState("a");
  EXPECT_TRUE(Playing("a"));
  EXPECT_EQ(speaker->Inner().CurrentSoundName(), "a");
}

TEST_F(StateSounds, TheStateThatIsLeftTakesItsSoundAway) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("a");
  speaker->ProcessState("quiet");
  EXPECT_FALSE(Playing("a"));
  EXPECT_EQ(speaker->Inner().CurrentSoundName(), "a") << "nothing leaves the name as it was";
}

TEST_F(StateSounds, UnchangedKeepsTheSoundGoing) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("a");
  speaker->ProcessState("SAME");
  EXPECT_TRUE(Playing("a"));
  EXPECT_EQ(Runs("a"), 1);
}

TEST_F(StateSounds, AStateThatLeftTheSoundUnchangedHandsOnWhatItInherited) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("a");
  speaker->ProcessState("same");
  speaker->ProcessState("quiet");
  EXPECT_FALSE(Playing("a"));
}

TEST_F(StateSounds, EnteringTheCurrentStateAgainStartsItsSoundAnew) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("a");
  speaker->ProcessState("a");
  EXPECT_EQ(Runs("a"), 2);
  EXPECT_TRUE(Playing("a"));
}

TEST_F(StateSounds, SoundsOfOneObjectCutEachOtherOff) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("a");
  speaker->ProcessState("b");
  EXPECT_FALSE(Playing("a"));
  EXPECT_TRUE(Playing("b"));
}

TEST_F(StateSounds, ANameThatIsNotThereIsFatalOnlyWhenOn) {
  bench_.Object("door").State("default").State("bad", "clack").State("worse", "").Sound("click");
  TestedObject door = bench_.Load("door");
  door->ProcessState("bad");
  door->ProcessState("default");
  door->TurnOn();
  EXPECT_EQ(FatalOf([&] { door->ProcessState("bad"); }),
            "Info\\door\\states.txt:7: object \"door\" has no sound \"clack\"; did you mean "
            "\"click\"?");
  TestedObject other = bench_.LoadOn("door");
  EXPECT_EQ(FatalOf([&] { other->ProcessState("worse"); }),
            "Info\\door\\states.txt:13: object \"door\" has no sound \"\"");
}

TEST_F(StateSounds, AMissingFileIsSilenceAndNoFault) {
  bench_.Object("door").State("default", "gone").MissingSound("gone");
  TestedObject door = bench_.LoadOn("door");
  EXPECT_FALSE(door->QuerySoundState("gone")->IsPlaying());
  EXPECT_EQ(door->Inner().CurrentSoundName(), "gone");
}

TEST_F(SoundStatement, RingsOnWhenAStateOfNothingIsLeft) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  Do(*speaker, "runsound a");
  speaker->ProcessState("quiet");
  EXPECT_TRUE(Playing("a")) << "the state left names no sound";
}

TEST_F(SoundStatement, StopsTheSoundStartedLast) {
  bench_.AddGlobalSound("bell");
  bench_.AddGlobalSound("horn");
  bench_.Object("door").GlobalSound("bell").GlobalSound("horn").State("default");
  TestedObject door = bench_.LoadOn("door");
  Do(*door, "runsound bell");
  Do(*door, "runsound horn");
  EXPECT_FALSE(Playing("bell"));
  EXPECT_TRUE(Playing("horn"));
  Do(*door, "runsound UNCHANGED");
  EXPECT_TRUE(Playing("horn"));
  Do(*door, "runsound nothing");
  EXPECT_FALSE(Playing("horn"));
  EXPECT_EQ(door->Inner().CurrentSoundName(), "horn");
}

TEST_F(SoundStatement, GlobalSoundsOwnAPlayerEachSoOnlyTheNamedOneStopsAtAChange) {
  bench_.AddGlobalSound("bell");
  bench_.AddGlobalSound("horn");
  bench_.Object("door")
      .GlobalSound("bell")
      .GlobalSound("horn")
      .State("default")
      .State("ring", "bell")
      .State("quiet", "nothing");
  TestedObject door = bench_.LoadOn("door");
  door->ProcessState("ring");
  Do(*door, "runsound horn");
  EXPECT_FALSE(Playing("bell")) << "started last until then";
  door->ProcessState("quiet");
  EXPECT_TRUE(Playing("horn")) << "the state left named the bell";
}

TEST_F(SoundStatement, AnUnknownSoundIsFatal) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  EXPECT_EQ(FatalOf([&] { Do(*speaker, "runsound zebra"); }),
            "Info\\speaker\\states.txt:1: object \"speaker\" has no sound \"zebra\"");
}

TEST_F(DoctorOff, SpeaksInEveryStateButNotForSubgames) {
  Speaker("doctor", "doctor").Sound("subgamehello").State("play", "subgamehello");
  TestedObject doctor = bench_.Load("doctor");
  doctor->ProcessState("a");
  EXPECT_TRUE(Playing("a"));
  doctor->ProcessState("play");
  EXPECT_EQ(Runs("subgamehello"), 0);
  EXPECT_TRUE(Playing("a")) << "nothing at all happens to sounds";
}

TEST_F(DoctorOff, EveryLoadThatNamesHimRunsTheSoundOfHisState) {
  bench_.Object("doctor", "doctor").Sound("hello").State("default", "hello");
  bench_.LoadGlobal("doctor");
  EXPECT_EQ(Runs("hello"), 1);
  bench_.Object("hall", "hall").GlobalChild("doctor");
  bench_.Load("hall");
  EXPECT_EQ(Runs("hello"), 2);
}

TEST_F(DoctorOff, StartsNoAnimation) {
  bench_.Object("doctor", "doctor").Still(5, 5).State("default", "nothing", "still");
  EXPECT_TRUE(ObjectBench::FramesOf(*bench_.Load("doctor")).empty());
}

TEST_F(DoctorOff, TurnedOffInAPassingStateRunsTheSoundHeGoesBackTo) {
  Speaker("doctor", "doctor");
  TestedObject doctor = bench_.LoadOn("doctor");
  doctor->ProcessState("a");
  doctor->Inner().RunState("b");
  doctor->TurnOff();
  EXPECT_EQ(doctor->CurrentState(), "a");
  EXPECT_TRUE(Playing("a"));
}

TEST_F(StateHistory, ARunRemembersTheStateItLeaves) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->Inner().RunState("a");
  EXPECT_EQ(speaker->CurrentState(), "a");
  EXPECT_EQ(speaker->Inner().StateHistory(), (Lines{"default"}));
}

TEST_F(StateHistory, OnlyAnEmptyListTakesAName) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->Inner().RunState("a");
  speaker->Inner().RunState("b");
  EXPECT_EQ(speaker->CurrentState(), "b");
  EXPECT_EQ(speaker->Inner().StateHistory(), (Lines{"default"}));
}

TEST_F(StateHistory, TheCurrentStateIsNotRunAgainUnlessByTheDoctor) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("a");
  speaker->Inner().RunState("A");
  EXPECT_TRUE(speaker->Inner().StateHistory().empty());
  EXPECT_EQ(Runs("a"), 1);
  Speaker("Doctor", "button");
  TestedObject doctor = bench_.LoadOn("Doctor");
  doctor->ProcessState("b");
  doctor->Inner().RunState("b");
  EXPECT_EQ(doctor->Inner().StateHistory(), (Lines{"b"}));
  EXPECT_EQ(Runs("b"), 2);
}

TEST_F(StateHistory, AnUnknownStateIsRememberedFromAllTheSame) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->Inner().RunState("nowhere");
  EXPECT_EQ(speaker->CurrentState(), "default");
  EXPECT_EQ(speaker->Inner().StateHistory(), (Lines{"default"}));
}

TEST_F(StateHistory, AChangeNeverTouchesItAndIsUndoneWhenItIsTakenBack) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->Inner().RunState("a");
  speaker->ProcessState("quiet");
  EXPECT_EQ(speaker->Inner().StateHistory(), (Lines{"default"}));
  speaker->Inner().PopStateHistory();
  EXPECT_EQ(speaker->CurrentState(), "default");
  EXPECT_TRUE(speaker->Inner().StateHistory().empty());
}

TEST_F(StateHistory, TakingBackFromAnEmptyListDoesNothing) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("a");
  speaker->Inner().PopStateHistory();
  EXPECT_EQ(speaker->CurrentState(), "a");
  EXPECT_EQ(Runs("a"), 1);
}

TEST_F(StateHistory, TheRootStateLacksTheFirstHighlightWords) {
  bench_.Object("door")
      .State("default")
      .State("open-highlight")
      .State("highlightopen")
      .State("a-Highlight-highlighthighlight");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(door->Inner().GetRootState(), "default");
  door->ProcessState("open-highlight");
  EXPECT_EQ(door->Inner().GetRootState(), "open");
  door->ProcessState("highlightopen");
  EXPECT_EQ(door->Inner().GetRootState(), "open");
  door->ProcessState("a-highlight-highlighthighlight");
  EXPECT_EQ(door->Inner().GetRootState(), "a-highlight") << "one of each";
}

TEST_F(TurningOn, StartsChildrenInOrderBelowTheObject) {
  Speaker("a").State("default", "a");
  bench_.Object("x").Sound("x").State("default", "x");
  bench_.Object("y").Sound("y").State("default", "y");
  bench_.Object("hall", "hall").Child("x").Child("y", "visible_off");
  TestedObject hall = bench_.Load("hall");
  hall->TurnOn();
  for (const char* name : {"x", "y"}) {
    EXPECT_TRUE(Playing(name)) << "also an invisible one";
    EXPECT_TRUE(ObjectBench::Child(*hall, name)->ObjectOn());
    EXPECT_EQ(ObjectBench::Child(*hall, name)->Parent(), hall);
  }
}

// A hall with the children x and y, and x with a child of its own.
class TurningATree : public ObjectStates {
 protected:
  TurningATree() {
    for (const char* name : {"x", "leaf", "y"}) bench_.Object(name).State("default").State("busy");
    bench_.Object("x").Child("leaf");
    bench_.Object("hall", "hall").State("default").State("busy").Child("x").Child("y");
  }
  // The same for the hall, x, its leaf and y, in this order.
  static Lines Each(const std::string& state) {
    return {"hall: " + state, "x: " + state, "leaf: " + state, "y: " + state};
  }
};

TEST_F(TurningATree, OnEntersTheOwnStateFirstAndThenThoseOfTheChildrenInOrder) {
  TestedObject hall = bench_.Load("hall");
  NotedStates states(bench_.watch);
  hall->TurnOn();
  EXPECT_EQ(states.lines, Each("default"));
}

TEST_F(TurningATree, OffGoesBackToTheOwnStateFirstAndThenToThoseOfTheChildrenInOrder) {
  TestedObject hall = bench_.LoadOn("hall");
  TestedObject x = ObjectBench::Child(*hall, "x");
  for (const TestedObject& object :
       {ObjectBench::Child(*hall, "y"), ObjectBench::Child(*x, "leaf"), x, hall}) {
    object->Inner().RunState("busy");
  }
  NotedStates states(bench_.watch);
  hall->TurnOff();
  EXPECT_EQ(states.lines, Each("default"));
}

TEST_F(TurningOn, WithoutACurrentStateIsFatal) {
  bench_.Object("door").State("open");
  TestedObject door = bench_.Load("door");
  EXPECT_EQ(FatalOf([&] { door->TurnOn(); }),
            "object \"door\" is turned on without a current state: it has no state \"default\" and "
            "no directive names another");
}

TEST_F(TurningOn, TwiceProcessesTheStateAgainWithoutRestartingItsAnimation) {
  Speaker().Frame("x").Frame("y").Animation("walk", 50, "loop", {"x y"}).State("go", "a", "walk");
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("go");
  bench_.Tick(50);
  ASSERT_EQ(ObjectBench::FramesOf(*speaker), (Lines{"y"}));
  const int timer = speaker->TimerID();
  speaker->TurnOn();
  EXPECT_EQ(Runs("a"), 2);
  EXPECT_EQ(speaker->TimerID(), timer);
  EXPECT_EQ(ObjectBench::FramesOf(*speaker), (Lines{"y"}));
}

TEST_F(TurningOff, StopsTimerSoundAndChildren) {
  Speaker().Frame("x").Frame("y").Animation("walk", 50, "loop", {"x y"}).State("go", "a", "walk");
  bench_.Object("lamp").Sound("hum").State("default", "hum");
  bench_.Object("speaker").Child("lamp");
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("go");
  ASSERT_EQ(bench_.RunningTimers(), 1U);
  speaker->TurnOff();
  EXPECT_FALSE(speaker->ObjectOn());
  EXPECT_EQ(bench_.RunningTimers(), 0U);
  EXPECT_TRUE(bench_.objects.TimedObjects.Empty());
  EXPECT_EQ(speaker->Inner().CurrentAnimationName(), "");
  EXPECT_FALSE(Playing("a"));
  EXPECT_FALSE(Playing("hum"));
  EXPECT_FALSE(ObjectBench::Child(*speaker, "lamp")->ObjectOn());
  EXPECT_EQ(speaker->CurrentState(), "go");
  EXPECT_EQ(speaker->Inner().CurrentSoundName(), "a");
}

TEST_F(TurningOff, GoesBackToTheStateRememberedAndForgets) {
  Speaker();
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("b");
  speaker->Inner().RunState("a");
  speaker->ProcessState("quiet");
  speaker->TurnOff();
  EXPECT_EQ(speaker->CurrentState(), "b");
  EXPECT_TRUE(speaker->Inner().StateHistory().empty());
  EXPECT_FALSE(Playing("b"));
}

TEST_F(TurningOff, ThenOnRestartsTheAnimationOfTheSameName) {
  Speaker()
      .Frame("x")
      .Frame("y")
      .Animation("walk", 50, "loop", {"x y"})
      .State("go", "nothing", "walk");
  TestedObject speaker = bench_.LoadOn("speaker");
  speaker->ProcessState("go");
  bench_.Tick(50);
  speaker->TurnOff();
  speaker->TurnOn();
  EXPECT_EQ(ObjectBench::FramesOf(*speaker), (Lines{"x"}));
  EXPECT_NE(speaker->TimerID(), 0);
}

class HurtPatient : public ObjectStates {
 protected:
  // A patient in the passing state "STATE-owww" that goes back to STATE.
  TestedObject Hurt(const std::string& name, const std::string& state,
                    const std::string& type = "patient") {
    bench_.Object(name, type).Raw("states.txt", States());
    TestedObject patient = bench_.LoadOn(name);
    patient->ProcessState(state);
    patient->Inner().RunState(state + "-owww");
    return patient;
  }

 private:
  static std::string States() {
    Lines lines;
    for (const char* state : {"default", "better2", "default-owww", "better2-OWWW"}) {
      lines.insert(lines.end(), {state, "nothing", "nothing", "nothing", "", ""});
    }
    return Text(lines);
  }
};

TEST_F(HurtPatient, OnEasyTriesAgainAndGoesBack) {
  bench_.platform.settings.DifficultyLevel = "EASY";
  TestedObject patient = Hurt("boy", "better2");
  patient->Inner().PopStateHistory();
  EXPECT_EQ(patient->CurrentState(), "better2");
  EXPECT_EQ(bench_.top->messages, (Lines{"toobj_doctor_runstate_tryagain"}));
  EXPECT_FALSE(bench_.top->verified);
}

TEST_F(HurtPatient, OtherwiseStartsOverWhateverItsProgress) {
  for (const char* difficulty : {"Normal", "normal", "Hard"}) {
    bench_.platform.settings.DifficultyLevel = difficulty;
    TestedObject patient = Hurt("boy", "better2");
    bench_.top->messages.clear();
    std::string state_at_message;
    bench_.top->on_message = [&](const std::string&) {
      state_at_message = patient->CurrentState();
    };
    patient->Inner().PopStateHistory();
    bench_.top->on_message = nullptr;
    EXPECT_EQ(patient->CurrentState(), "default");
    EXPECT_EQ(state_at_message, "default") << "before the doctor speaks";
    EXPECT_TRUE(patient->Inner().StateHistory().empty());
    EXPECT_EQ(bench_.top->messages, (Lines{"toobj_doctor_runstate_startover"})) << difficulty;
  }
}

TEST_F(HurtPatient, TheSurgeryMachineOfTheEditionIsReset) {
  bench_.platform.settings.DifficultyLevel = "Normal";
  Hurt("Kangaroo", "default")->Inner().PopStateHistory();
  EXPECT_EQ(bench_.top->messages,
            (Lines{"toobj_doctor_runstate_startover", "hideobj_surgerymachine",
                   "toobj_surgerymachine_changestate_tumorStage1"}));
  bench_.top->messages.clear();
  Hurt("scarecrow", "default")->Inner().PopStateHistory();
  EXPECT_EQ(bench_.top->messages, (Lines{"toobj_doctor_runstate_startover"}));

  bench_.platform.settings.GameEdition = 1;
  bench_.top->messages.clear();
  Hurt("Scarecrow", "default")->Inner().PopStateHistory();
  EXPECT_EQ(bench_.top->messages,
            (Lines{"toobj_doctor_runstate_startover", "hideobj_surgerymachine",
                   "toobj_surgerymachine_changestate_tonsilsStage1"}));
  bench_.top->messages.clear();
  Hurt("kangaroo", "default")->Inner().PopStateHistory();
  EXPECT_EQ(bench_.top->messages, (Lines{"toobj_doctor_runstate_startover"}));
}

TEST_F(HurtPatient, OnEasyNoMachineIsReset) {
  bench_.platform.settings.DifficultyLevel = "Easy";
  Hurt("kangaroo", "default")->Inner().PopStateHistory();
  EXPECT_EQ(bench_.top->messages, (Lines{"toobj_doctor_runstate_tryagain"}));
}

TEST_F(HurtPatient, AnotherTypeOrAnotherStateSimplyReturns) {
  bench_.platform.settings.DifficultyLevel = "Normal";
  TestedObject key = Hurt("key", "better2", "button");
  key->Inner().PopStateHistory();
  EXPECT_EQ(key->CurrentState(), "better2");
  TestedObject patient = Hurt("boy", "better2");
  patient->ProcessState("default");
  patient->Inner().PopStateHistory();
  EXPECT_EQ(patient->CurrentState(), "better2");
  EXPECT_TRUE(bench_.top->messages.empty());
}

}  // namespace
}  // namespace quendle
