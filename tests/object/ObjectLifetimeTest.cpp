// Objects that release, remove or outlive each other in the middle of what they do.
#include <gtest/gtest.h>

#include "script/Statement.h"
#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectLifetime : public ::testing::Test {
 protected:
  // An object that runs those lines at any event.
  TestObject& Actor(const std::string& name, const std::string& lines) {
    return bench_.Object(name)
        .State("default", "nothing", "nothing", "main")
        .State("other")
        .Sound("a")
        .Script("main", "begin\n" + lines + "end\n");
  }
  TestObject& Walker(const std::string& name) {
    return bench_.Object(name)
        .Frame("a")
        .Frame("b")
        .Animation("walk", 100, "loop", {"a b"})
        .State("default", "nothing", "walk");
  }
  static void Shout(const TestedObject& object) {
    object->UpdateGameObject(-1, -1, ActionText("x"));
  }

  ObjectBench bench_;
};

using ObjectRelease = ObjectLifetime;

TEST_F(ObjectRelease, FreesEverythingOfAnObjectAndItsChildren) {
  Walker("leaf");
  Walker("hall").Sound("x").Script("main", "begin\nx\nend\n").Child("leaf");
  TestedObject hall = bench_.LoadOn("hall");
  TestedObject leaf = ObjectBench::Child(*hall, "leaf");
  ASSERT_EQ(bench_.RunningTimers(), 2U);
  hall->Release(false);
  EXPECT_EQ(bench_.RunningTimers(), 0U);
  EXPECT_TRUE(bench_.objects.TimedObjects.Empty());
  for (const TestedObject& object : {hall, leaf}) {
    const GameObject& inner = object->Inner();
    EXPECT_TRUE(inner.States().Empty() && inner.Animations().Empty() && inner.Frames().Empty());
    EXPECT_TRUE(inner.Scripts().Empty() && inner.Sounds().Empty());
    EXPECT_TRUE(inner.CurrentFrames().empty());
    EXPECT_EQ(object->CurrentState(), "");
    EXPECT_EQ(object->Parent(), nullptr);
    EXPECT_EQ(object->GetDShowObj(), nullptr);
    EXPECT_EQ(object->DirectDrawingSurface(), nullptr);
    EXPECT_TRUE(object->Children().Empty());
  }
  hall->Release(true);
}

TEST_F(ObjectRelease, FreesTheHandlesOfThePicture) {
  ObjectBench window(DrawingPath::kWindow);
  window.Object("door").Still(5, 5);
  const std::size_t contexts = window.platform.backend.gdi.LiveContexts();
  const std::size_t bitmaps = window.platform.backend.gdi.LiveBitmaps();
  TestedObject door = window.Load("door");
  EXPECT_GT(window.platform.backend.gdi.LiveContexts(), contexts);
  door->Release(false);
  EXPECT_EQ(window.platform.backend.gdi.LiveContexts(), contexts);
  EXPECT_EQ(window.platform.backend.gdi.LiveBitmaps(), bitmaps);
}

TEST_F(ObjectRelease, SparesASharedObjectUnlessForced) {
  bench_.Object("doctor", "doctor");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  bench_.Object("hall", "hall").GlobalChild("doctor");
  TestedObject hall = bench_.LoadOn("hall");
  hall->Release(false);
  EXPECT_EQ(doctor->CurrentState(), "default");
  doctor->Release(true);
  EXPECT_EQ(doctor->CurrentState(), "");
}

TEST_F(ObjectRelease, SparesByNameAlsoAPrivateObjectOfThatName) {
  bench_.Object("doctor", "doctor");
  bench_.LoadGlobal("doctor");
  bench_.Object("hall", "hall").Child("doctor");
  TestedObject hall = bench_.LoadOn("hall");
  TestedObject other = ObjectBench::Child(*hall, "doctor");
  hall->Release(false);
  EXPECT_EQ(other->CurrentState(), "default");
}

TEST_F(ObjectRelease, SparesNothingWhileTheGlobalsAreReleased) {
  bench_.Object("doctor", "doctor");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  bench_.objects.ReleasingGlobals = true;
  EXPECT_FALSE(bench_.objects.GlobalObjectExists("doctor"));
  doctor->Release(false);
  EXPECT_EQ(doctor->CurrentState(), "");
}

TEST_F(ObjectRelease, SharedObjectsThatHoldEachOtherAreReleasedOnce) {
  for (const char* name : {"ping", "pong"}) bench_.Object(name);
  TestedObject ping = bench_.LoadGlobal("ping");
  TestedObject pong = bench_.LoadGlobal("pong");
  // Past the checks of adding: what a shutdown must stand.
  ping->Children().Add(pong, "pong");
  pong->Children().Add(ping, "ping");
  bench_.objects.ReleasingGlobals = true;
  ping->Release(true);
  pong->Release(true);
  EXPECT_TRUE(ping->Children().Empty());
  EXPECT_TRUE(pong->Children().Empty());
  EXPECT_EQ(ping.use_count(), 2) << "this test and the list";
}

TEST_F(ObjectRelease, AReleasedObjectIsTurnedOffWithoutAFault) {
  bench_.Object("door").Sound("a").State("default", "a");
  TestedObject door = bench_.LoadOn("door");
  door->Release(false);
  EXPECT_EQ(FatalOf([&] { door->TurnOff(); }), "no fatal error");
  EXPECT_FALSE(bench_.sounds.Playing("a.wma"));
}

TEST_F(ObjectRelease, AReleasedObjectTakesEveryMessageAndEventInSilence) {
  Actor("door", "mtp never\n");
  TestedObject door = bench_.LoadOn("door");
  door->Release(false);
  for (const char* message :
       {"runstate_other", "changestate_other", "runscript_main", "useraction_x", "hideobj_a",
        "toobj_a_x", "hello", "removeobj_x", "addglobalobj_x"}) {
    EXPECT_EQ(FatalOf([&] { door->Send(message); }), "no fatal error") << message;
  }
  door->UpdateGameObject(5, 5, ActionText("x"));
  door->UpdateAnimationState();
  bool result = false;
  for (const char* line : {"change other", "runstate other", "runsound a", "mtp x"}) {
    door->Interpret(Statement(line), false, result);
  }
  EXPECT_TRUE(bench_.top->messages.empty());
}

TEST_F(ObjectLifetime, AnObjectThatDiesTakesItsTimerAlong) {
  Walker("door");
  TestedObject door = bench_.LoadOn("door");
  door.reset();
  EXPECT_EQ(bench_.RunningTimers(), 0U);
  EXPECT_TRUE(bench_.objects.TimedObjects.Empty());
  bench_.Tick(1000);
}

TEST_F(ObjectLifetime, APrivateObjectNamedLikeAGlobalOneTakesItsTimerAlongToo) {
  Walker("doctor");
  bench_.LoadGlobal("doctor");
  TestedObject other = bench_.LoadOn("doctor");
  ASSERT_EQ(bench_.RunningTimers(), 1U);
  other.reset();
  EXPECT_EQ(bench_.RunningTimers(), 0U);
}

TEST_F(ObjectLifetime, ChildrenDroppedWithoutBeingTurnedOffStopTicking) {
  Walker("cell");
  Walker("area").Child("cell");
  TestedObject area = bench_.LoadOn("area");
  ASSERT_EQ(bench_.RunningTimers(), 2U);
  area->Children().Clear();
  EXPECT_EQ(bench_.RunningTimers(), 1U);
  EXPECT_EQ(bench_.objects.TimedObjects.Count(), 1U);
}

TEST_F(ObjectLifetime, AScriptMayReleaseItsObjectAndTheRestDoesNothing) {
  Actor("door",
        "mtp release\nmtp never\nchange other\nrunstate other\nrunsound a\nrunsound nosuch\n");
  TestedObject door = bench_.LoadOn("door");
  bench_.top->on_message = [&](const std::string&) { door->Release(true); };
  Shout(door);
  EXPECT_EQ(bench_.top->messages, (Lines{"release"}));
  EXPECT_EQ(door->CurrentState(), "");
}

TEST_F(ObjectLifetime, AChildsScriptMayReleaseTheWholeTreeDuringTheWalk) {
  Actor("first", "mtp release\nmtp never\n");
  Actor("second", "mtp never\n");
  bench_.Object("hall", "hall").Child("first").Child("second");
  TestedObject hall = bench_.LoadOn("hall");
  bench_.top->on_message = [&](const std::string&) { hall->Release(true); };
  Shout(hall);
  EXPECT_EQ(bench_.top->messages, (Lines{"release"}));
}

TEST_F(ObjectLifetime, AScriptMayRemoveItsOwnObject) {
  Actor("x", "mtp removeobj_x\nmtp later\nchange other\n");
  Actor("y", "mtp y\n");
  bench_.Object("hall", "hall").Child("x").Child("y");
  TestedObject hall = bench_.LoadOn("hall");
  Shout(hall);
  EXPECT_EQ(ObjectBench::NamesOf(hall->Children()), (Lines{"y"}));
  EXPECT_EQ(bench_.top->messages, (Lines{"later"}))
      << "it still has its parent; the next child slid into its place and is left out";
}

TEST_F(ObjectLifetime, AMessageMayRemoveTheChildThatItIsDeliveredTo) {
  bench_.Object("x")
      .State("default", "nothing", "nothing", "main")
      .Script("main", "begin\nmtp removeobj_x\nmtp later\nend\n");
  bench_.Object("hall", "hall").Child("x");
  for (const char* message : {"toobj_x_useraction_go", "totype_button_useraction_go"}) {
    bench_.top->messages.clear();
    TestedObject hall = bench_.LoadOn("hall");
    hall->Send(message);
    EXPECT_TRUE(hall->Children().Empty()) << message;
    EXPECT_EQ(bench_.top->messages, (Lines{"later"})) << message;
  }
}

TEST_F(ObjectLifetime, ATickMayRemoveItsOwnObject) {
  bench_.platform.settings.DifficultyLevel = "Normal";
  bench_.Object("boy", "patient")
      .Frame("a")
      .Frame("b")
      .Animation("wince", 100, "nonloop", {"a b"})
      .State("default")
      .State("default-owww", "nothing", "wince");
  bench_.Object("hall", "hall").Child("boy");
  TestedObject hall = bench_.LoadOn("hall");
  ObjectBench::Child(*hall, "boy")->Send("runstate_default-owww");
  bench_.top->on_message = [&](const std::string&) { hall->RemoveChild("boy"); };
  // The doctor's message is swallowed by the hall; a climbing one removes the patient.
  ObjectBench::Child(*hall, "boy")->SetParent(bench_.top);
  bench_.Tick(100);
  EXPECT_TRUE(hall->Children().Empty());
  EXPECT_EQ(bench_.RunningTimers(), 0U);
}

TEST_F(ObjectLifetime, ATickMayReleaseItsWholeTree) {
  bench_.platform.settings.DifficultyLevel = "Easy";
  bench_.Object("boy", "patient")
      .Frame("a")
      .Frame("b")
      .Animation("wince", 100, "nonloop", {"a b"})
      .State("default")
      .State("default-owww", "nothing", "wince");
  TestedObject boy = bench_.LoadOn("boy");
  boy->Send("runstate_default-owww");
  bench_.top->on_message = [&](const std::string&) {
    boy->Release(true);
    boy.reset();
  };
  bench_.Tick(1000);
  EXPECT_EQ(boy, nullptr);
  EXPECT_EQ(bench_.RunningTimers(), 0U);
}

TEST_F(ObjectLifetime, TicksOfTheSameMomentGoToTheirOwnersOnly) {
  // The first tick ends its timer; another object then takes over the id at once.
  bench_.Object("short")
      .Frame("a")
      .Frame("b")
      .Animation("wave", 100, "nonloop", {"a b"})
      .State("default", "nothing", "wave");
  Walker("long");
  TestedObject first = bench_.LoadOn("short");
  TestedObject second = bench_.Load("long");
  const int id = first->TimerID();
  bench_.Tick(100);
  ASSERT_EQ(first->TimerID(), 0);
  second->TurnOn();
  EXPECT_EQ(second->TimerID(), id) << "ids are reused, smallest first";
  OnObjectTimer(bench_.objects, id);
  EXPECT_EQ(ObjectBench::FramesOf(*first), (Lines{"b"}));
  EXPECT_EQ(ObjectBench::FramesOf(*second), (Lines{"b"}));
}

TEST_F(ObjectLifetime, AParentThatIsGoneIsNoParent) {
  bench_.Object("doctor", "doctor");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  {
    bench_.Object("hall", "hall").GlobalChild("doctor");
    TestedObject hall = bench_.LoadOn("hall");
    ASSERT_EQ(doctor->Parent(), hall);
  }
  EXPECT_EQ(doctor->Parent(), nullptr);
  doctor->Send("hello");
  EXPECT_EQ(doctor->CurrentState(), "default");
}

TEST_F(ObjectLifetime, AnObjectCanNotBeAddedBelowItself) {
  bench_.Object("doctor", "doctor");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  EXPECT_EQ(FatalOf([&] { doctor->Send("addglobalobj_doctor"); }),
            "\"doctor\" can't become a child of \"doctor\", which it holds");
  bench_.Object("nurse", "doctor");
  TestedObject nurse = bench_.LoadGlobal("nurse");
  doctor->Send("addglobalobj_nurse");
  EXPECT_EQ(FatalOf([&] { nurse->Send("addglobalobj_doctor"); }),
            "\"doctor\" can't become a child of \"nurse\", which it holds");
}

TEST_F(ObjectLifetime, AScriptThatSendsItsOwnEventIsFatal) {
  Actor("door", "mtp toobj_door_useraction_x\n");
  bench_.Object("hall", "hall").Child("door");
  TestedObject hall = bench_.LoadOn("hall");
  EXPECT_EQ(FatalOf([&] { Shout(hall); }).substr(0, 60),
            "more than 200 levels deep: the content goes round in circles");
  EXPECT_EQ(bench_.watch.depth.Depth(), 0);
}

TEST_F(ObjectLifetime, BranchesThatEachSendTheNextActionTwiceComeToAnEnd) {
  std::string lines = "begin\nif action = x\nmtp toobj_door_useraction_a1\n";
  for (int i = 1; i < 40; ++i) {
    const std::string next = "mtp toobj_door_useraction_a" + std::to_string(i + 1) + "\n";
    lines += "elseif action = a" + std::to_string(i) + "\n" + next + next;
  }
  bench_.Object("door")
      .State("default", "nothing", "nothing", "main")
      .Script("main", lines + "endif\nend\n");
  bench_.Object("hall", "hall").Child("door");
  TestedObject hall = bench_.LoadOn("hall");
  const std::string fault = FatalOf([&] { Shout(hall); });
  EXPECT_NE(fault.find("in one event: the content multiplies at mtp toobj_door_useraction_a1 > mtp "
                       "toobj_door_useraction_a2 > mtp toobj_door_useraction_a3 > ... > "),
            std::string::npos)
      << fault;
  EXPECT_EQ(bench_.watch.depth.Depth(), 0);
}

TEST_F(ObjectLifetime, AChildMayGrowDuringTheWalkAndIsVisited) {
  Actor("grower", "mtp grow\n");
  Actor("late", "mtp late\n");
  bench_.Object("hall", "hall").Child("grower");
  TestedObject hall = bench_.LoadOn("hall");
  TestedObject late = bench_.Load("late");
  bench_.top->on_message = [&](const std::string& message) {
    if (message == "grow") hall->AddChildObject(late);
  };
  Shout(hall);
  EXPECT_EQ(bench_.top->messages, (Lines{"grow", "late"}));
}

}  // namespace
}  // namespace quendle
