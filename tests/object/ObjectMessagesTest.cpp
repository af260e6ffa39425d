// The routing of messages, row by row, when carried out and when verified.
#include <gtest/gtest.h>

#include "support/ObjectBench.h"

namespace quendle {
namespace {

constexpr const char* kNoType = " Warning: Did not Find the type requested by the message ";
constexpr const char* kNoObject = " Warning: Did not Find the object requested by the message ";

// A hall with the buttons a and b and the tool t.
class ObjectMessages : public ::testing::Test {
 protected:
  ObjectMessages() {
    for (const char* name : {"a", "b"}) {
      bench_.Object(name, "button").State("default").State("open");
    }
    bench_.Object("t", "tool");
    bench_.Object("hall", "hall")
        .State("default", "nothing", "nothing", "listen")
        .State("open")
        .Script("listen", "begin\nif action = shout\nmtp heard\nelse\nmtp other\nendif\nend\n")
        .Script("loud", "begin\nmtp ran\nif action = nothing\nmtp nothing\nendif\nend\n")
        .Script("bad", "begin\nchange nowhere\nend\n")
        .Child("a")
        .Child("b")
        .Child("t");
    hall_ = bench_.LoadOn("hall");
    for (const char* name : {"a", "b", "t"}) {
      children_.push_back(ObjectBench::Child(*hall_, name));
    }
  }

  void Send(const std::string& message) { hall_->Send(message); }
  // The answer to a verifying message for a result that begins as given.
  bool Ask(const std::string& message, bool result = true) {
    hall_->HandleMessage(message, nullptr, true, result);
    return result;
  }
  Lines& Climbed() { return bench_.top->messages; }
  // Which of a, b, t are visible, as letters.
  std::string Visible() {
    std::string letters;
    for (const TestedObject& child : children_) {
      if (child->Visible()) letters += child->ObjectName();
    }
    return letters;
  }
  std::string State(std::size_t child) { return children_[child]->CurrentState(); }

  ObjectBench bench_;
  TestedObject hall_;
  std::vector<TestedObject> children_;
};

TEST_F(ObjectMessages, ShowObjShowsTheNamedChildAndNeverClimbs) {
  for (auto& child : children_) child->SetVisible(false);
  Send("ShowObj_A");
  EXPECT_EQ(Visible(), "a");
  Send("showobj_nobody");
  EXPECT_TRUE(Climbed().empty());
}

TEST_F(ObjectMessages, ShowObjVerifiedOnlyAnswersFalseForAMissingChild) {
  children_[0]->SetVisible(false);
  EXPECT_TRUE(Ask("showobj_a"));
  EXPECT_FALSE(Ask("showobj_a", false)) << "a child that is there leaves the answer alone";
  EXPECT_FALSE(Ask("showobj_nobody"));
  EXPECT_EQ(Visible(), "bt");
  EXPECT_TRUE(bench_.log.lines.empty());
}

TEST_F(ObjectMessages, RunScriptRunsTheNamedScriptWithTheTextNothing) {
  Send("runscript_LOUD");
  EXPECT_EQ(Climbed(), (Lines{"ran", "nothing"}));
  Send("runscript_nosuch");
  Send("runscript_nothing");
  EXPECT_EQ(Climbed().size(), 2U);
}

TEST_F(ObjectMessages, RunScriptVerifiedVerifiesTheScript) {
  EXPECT_TRUE(Ask("runscript_loud", false));
  EXPECT_FALSE(Ask("runscript_bad"));
  EXPECT_FALSE(Ask("runscript_nosuch"));
  EXPECT_TRUE(Ask("runscript_nothing", false));
}

TEST_F(ObjectMessages, UserActionIsAnEventWithoutAPosition) {
  Send("useraction_shout");
  EXPECT_EQ(Climbed(), (Lines{"heard"}));
  Climbed().clear();
  Send("useractions_shout");
  EXPECT_EQ(Climbed(), (Lines{"useractions_shout"})) << "the whole word is compared";
}

TEST_F(ObjectMessages, UserActionVerifiedAsksForAWord) {
  EXPECT_TRUE(Ask("useraction_shout", false));
  EXPECT_FALSE(Ask("useraction"));
  EXPECT_TRUE(Climbed().empty());
}

TEST_F(ObjectMessages, HideTypeHidesAllOfATypeAndAlwaysClimbs) {
  Send("hidetype_BUTTON");
  EXPECT_EQ(Visible(), "t");
  Send("hidetype_nobody");
  EXPECT_EQ(Climbed(), (Lines{"hidetype_BUTTON", "hidetype_nobody"}));
}

TEST_F(ObjectMessages, HideTypeVerifiedWarnsWhenNeitherThisNorAboveFinds) {
  bench_.top->answer = [](bool& result) { result = false; };
  EXPECT_FALSE(Ask("hidetype_button"));
  EXPECT_TRUE(bench_.log.lines.empty());
  EXPECT_EQ(Visible(), "abt");
  Ask("hidetype_doctor");
  EXPECT_EQ(bench_.log.lines,
            (Lines{"10 General:hall" + std::string(kNoType) + "hidetype_doctor"}));
  bench_.top->answer = [](bool& result) { result = true; };
  EXPECT_TRUE(Ask("hidetype_doctor", false));
  EXPECT_EQ(bench_.log.lines.size(), 1U);
  EXPECT_TRUE(bench_.top->verified);
}

TEST_F(ObjectMessages, HideObjHidesTheNamedChildAndAlwaysClimbs) {
  Send("hideobj_B");
  EXPECT_EQ(Visible(), "at");
  Send("hideobj_nobody");
  EXPECT_EQ(Climbed(), (Lines{"hideobj_B", "hideobj_nobody"}));
}

TEST_F(ObjectMessages, HideObjVerifiedWarnsAndClimbs) {
  EXPECT_TRUE(Ask("hideobj_a"));
  EXPECT_TRUE(bench_.log.lines.empty());
  EXPECT_FALSE(Ask("hideobj_nobody"));
  EXPECT_EQ(bench_.log.lines,
            (Lines{"10 General:hall" + std::string(kNoObject) + "hideobj_nobody"}));
  EXPECT_EQ(Climbed(), (Lines{"hideobj_a", "hideobj_nobody"}));
  EXPECT_EQ(Visible(), "abt");
  bench_.top->answer = [](bool& result) { result = true; };
  EXPECT_TRUE(Ask("hideobj_nobody")) << "what climbs is asked behind the search";
}

TEST_F(ObjectMessages, AddGlobalObjAddsASharedObject) {
  bench_.Object("doctor", "doctor");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  EXPECT_TRUE(Ask("addglobalobj_Doctor", false));
  EXPECT_FALSE(Ask("addglobalobj_nobody"));
  EXPECT_EQ(hall_->Children().Count(), 3U);
  Send("addglobalobj_DOCTOR");
  EXPECT_EQ(ObjectBench::Child(*hall_, "doctor"), doctor);
  EXPECT_TRUE(doctor->ObjectOn());
  EXPECT_EQ(doctor->Parent(), bench_.top) << "until the hall is turned on anew";
  Send("addglobalobj_nobody");
  EXPECT_TRUE(Climbed().empty());
  Send("myaddglobalobj_doctor");
  EXPECT_EQ(Climbed(), (Lines{"myaddglobalobj_doctor"})) << "the whole word is compared";
}

TEST_F(ObjectMessages, AddGlobalObjOfAChildThatIsThereIsFatal) {
  bench_.Object("doctor", "doctor");
  bench_.LoadGlobal("doctor");
  Send("addglobalobj_doctor");
  EXPECT_EQ(FatalOf([&] { Send("addglobalobj_doctor"); }),
            "there are two child entries named \"doctor\"");
}

TEST_F(ObjectMessages, ShowTypeShowsAllOfATypeAndNeverClimbs) {
  for (auto& child : children_) child->SetVisible(false);
  Send("showtype_Button");
  EXPECT_EQ(Visible(), "ab");
  Send("showtypes_tool");
  EXPECT_EQ(Visible(), "abt") << "the verb holds the word";
  Send("showtype_nobody");
  EXPECT_TRUE(Climbed().empty());
}

TEST_F(ObjectMessages, ShowTypeVerifiedWarnsWithTheTextOfAMissingObject) {
  EXPECT_TRUE(Ask("showtype_button"));
  EXPECT_FALSE(Ask("showtype_nobody"));
  EXPECT_EQ(bench_.log.lines,
            (Lines{"10 General:hall" + std::string(kNoObject) + "showtype_nobody"}));
}

TEST_F(ObjectMessages, ToTypeReachesAllOfAType) {
  Send("totype_button_changestate_open");
  EXPECT_EQ(State(0), "open");
  EXPECT_EQ(State(1), "open");
  EXPECT_EQ(State(2), "default");
  EXPECT_TRUE(Climbed().empty());
}

TEST_F(ObjectMessages, ToTypeVerifiedGivesTheAnswerOfTheLastChildAndWarnsOfNone) {
  EXPECT_TRUE(Ask("totype_button_changestate_open", false));
  EXPECT_FALSE(Ask("totype_button_changestate_nowhere"));
  EXPECT_EQ(State(0), "default");
  EXPECT_TRUE(bench_.log.lines.empty());
  EXPECT_TRUE(Ask("totype_doctor_x"));
  EXPECT_EQ(bench_.log.lines,
            (Lines{"10 General:hall" + std::string(kNoType) + "totype_doctor_x"}));
}

TEST_F(ObjectMessages, ToTypeOfNoneIsSwallowed) {
  Send("totype_doctor_x");
  EXPECT_TRUE(Climbed().empty());
  EXPECT_TRUE(bench_.log.lines.empty());
}

TEST_F(ObjectMessages, ToObjReachesTheNamedChild) {
  Send("TOOBJ_A_changestate_open");
  EXPECT_EQ(State(0), "open");
  EXPECT_EQ(State(1), "default");
}

TEST_F(ObjectMessages, EmptyWordsVanish) {
  Send("__toobj__a___changestate_open_");
  EXPECT_EQ(State(0), "open");
  Send("toobj_b__hello__world_");
  EXPECT_EQ(Climbed(), (Lines{"hello_world"})) << "a tail has single underscores";
}

TEST_F(ObjectMessages, ToObjWithoutAChildIsSwallowedInSilence) {
  Send("toobj_nobody_runstate_x");
  EXPECT_TRUE(Ask("toobj_nobody_runstate_x"));
  EXPECT_FALSE(Ask("toobj_nobody_runstate_x", false));
  EXPECT_TRUE(Climbed().empty());
  EXPECT_TRUE(bench_.log.lines.empty());
}

TEST_F(ObjectMessages, OnlyDirectChildrenAreReached) {
  bench_.Object("inner").State("default").State("open");
  children_[0]->AddChildObject(bench_.Load("inner"));
  Send("toobj_inner_changestate_open");
  EXPECT_EQ(ObjectBench::Child(*children_[0], "inner")->CurrentState(), "default");
  Send("toobj_a_toobj_inner_changestate_open");
  EXPECT_EQ(ObjectBench::Child(*children_[0], "inner")->CurrentState(), "open");
}

TEST_F(ObjectMessages, TheGlobalDoctorHearsTheTailFromAnywhere) {
  bench_.Object("doctor", "doctor").State("default").State("hello");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  Send("toobj_DOCTOR_changestate_hello");
  EXPECT_EQ(doctor->CurrentState(), "hello");
  EXPECT_TRUE(Ask("toobj_doctor_changestate_hello", false));
  EXPECT_FALSE(Ask("toobj_doctor_changestate_nowhere"));
  doctor->ProcessState("default");
  doctor->Send("toobj_doctor_changestate_hello");
  EXPECT_EQ(doctor->CurrentState(), "hello") << "also from himself";
}

TEST_F(ObjectMessages, AChildNamedDoctorComesBeforeTheGlobalOne) {
  bench_.Object("doctor", "doctor").State("default").State("hello");
  TestedObject global = bench_.LoadGlobal("doctor");
  hall_->AddChildObject(bench_.Load("doctor"));
  Send("toobj_doctor_changestate_hello");
  EXPECT_EQ(global->CurrentState(), "default");
  EXPECT_EQ(ObjectBench::Child(*hall_, "doctor")->CurrentState(), "hello");
}

TEST_F(ObjectMessages, WithoutAGlobalDoctorNothingHappens) {
  Send("toobj_doctor_changestate_hello");
  EXPECT_TRUE(Climbed().empty());
}

TEST_F(ObjectMessages, ToScreenAndScreenChangesClimb) {
  for (const char* message : {"toscreen_hall_showobj_a", "cs_hall", "mycs_toobj"}) {
    Climbed().clear();
    Send(message);
    EXPECT_EQ(Climbed(), (Lines{message}));
    Ask(message);
    EXPECT_EQ(Climbed(), (Lines{message, message}));
    EXPECT_TRUE(bench_.top->verified);
  }
}

TEST_F(ObjectMessages, AnythingElseClimbsWithTheObjectAsItsSender) {
  Send("hello_world");
  EXPECT_EQ(Climbed(), (Lines{"hello_world"}));
  EXPECT_EQ(bench_.top->senders, (Lines{"hall"}));
  bench_.top->answer = [](bool& result) { result = true; };
  EXPECT_TRUE(Ask("hello", false));
}

TEST_F(ObjectMessages, WithoutAParentAMessageIsDropped) {
  hall_->SetParent({});
  Send("hello");
  EXPECT_FALSE(Ask("hello", false));
  EXPECT_TRUE(Ask("hello", true));
  EXPECT_TRUE(Climbed().empty());
}

TEST_F(ObjectMessages, RunStateRunsAndRemembers) {
  Send("RunState_open_ignored");
  EXPECT_EQ(hall_->CurrentState(), "open");
  EXPECT_EQ(hall_->Inner().StateHistory(), (Lines{"default"}));
  Send("runstates_default");
  EXPECT_EQ(Climbed(), (Lines{"runstates_default"})) << "the whole word is compared";
}

TEST_F(ObjectMessages, ChangeStateAndProcessStateChange) {
  Send("changestate_open");
  EXPECT_EQ(hall_->CurrentState(), "open");
  Send("ProcessState_default");
  EXPECT_EQ(hall_->CurrentState(), "default");
  EXPECT_TRUE(hall_->Inner().StateHistory().empty());
}

TEST_F(ObjectMessages, StateVerbsVerifiedVerifyTheState) {
  for (const char* verb : {"runstate_", "changestate_", "processstate_"}) {
    EXPECT_TRUE(Ask(std::string(verb) + "open", false)) << verb;
    EXPECT_FALSE(Ask(std::string(verb) + "nowhere")) << verb;
  }
  EXPECT_EQ(hall_->CurrentState(), "default");
}

TEST_F(ObjectMessages, RemoveObjTurnsOffAndRemovesAndClimbsOnlyWithoutAChild) {
  Send("removeobj_A");
  EXPECT_EQ(ObjectBench::NamesOf(hall_->Children()), (Lines{"b", "t"}));
  EXPECT_FALSE(children_[0]->ObjectOn());
  EXPECT_TRUE(Climbed().empty());
  Send("removeobj_a");
  EXPECT_EQ(Climbed(), (Lines{"removeobj_a"}));
}

TEST_F(ObjectMessages, RemoveObjVerifiedReallyRemoves) {
  EXPECT_TRUE(Ask("removeobj_a", false));
  EXPECT_EQ(ObjectBench::NamesOf(hall_->Children()), (Lines{"b", "t"}));
  EXPECT_FALSE(Ask("removeobj_a", false)) << "only ever set to true";
  EXPECT_EQ(Climbed(), (Lines{"removeobj_a"}));
}

TEST_F(ObjectMessages, TheFirstRowThatMatchesDecides) {
  // Row 1 comes before row 14, row 9 before 14, row 13 before 14.
  children_[0]->SetVisible(false);
  Send("showobjremoveobj_a");
  EXPECT_EQ(Visible(), "abt");
  Send("removeobjtoobj_a_changestate_open");
  EXPECT_EQ(State(0), "open");
  Send("csremoveobj_a");
  EXPECT_EQ(hall_->Children().Count(), 3U);
  EXPECT_EQ(Climbed(), (Lines{"csremoveobj_a"}));
  Climbed().clear();
  Send("hidetypehideobj_tool");
  EXPECT_EQ(Visible(), "ab");
  Send("hideobjshowtype_a");
  EXPECT_EQ(Visible(), "b");
  Send("showtypetotype_button");
  EXPECT_EQ(Visible(), "ab");
  Send("totypetoobj_button_changestate_default");
  EXPECT_EQ(State(0), "default");
  Climbed().clear();
  Send("runscripthidetype_loud");
  EXPECT_EQ(Climbed(), (Lines{"ran", "nothing"}));
  Climbed().clear();
  Send("showobjrunscript_loud");
  EXPECT_TRUE(Climbed().empty());
}

TEST_F(ObjectMessages, AMessageWithTooFewWordsIsFatalAndNamesIt) {
  for (const char* verb :
       {"showobj", "runscript", "useraction", "hidetype", "hideobj", "addglobalobj", "showtype",
        "totype", "toobj", "runstate", "changestate", "processstate", "removeobj"}) {
    EXPECT_EQ(FatalOf([&] { Send(verb); }), "\"" + std::string(verb) + "\" needs word 2 and has 1");
  }
  EXPECT_EQ(FatalOf([&] { Send("toobj_a"); }), "\"toobj_a\" needs word 3 and has 2");
  EXPECT_EQ(FatalOf([&] { Send("totype_button"); }), "\"totype_button\" needs word 3 and has 2");
  EXPECT_EQ(FatalOf([&] { Send(""); }), "\"\" needs word 1 and has 0");
  EXPECT_EQ(FatalOf([&] { Send("___"); }), "\"___\" needs word 1 and has 0");
  Send("toscreen");
  Send("cs");
  EXPECT_EQ(Climbed(), (Lines{"toscreen", "cs"})) << "they read no second word";
}

TEST_F(ObjectMessages, NotifyChildReachesChildrenOfATypeInOrder) {
  hall_->NotifyChild("hello", "BUTTON");
  EXPECT_EQ(Climbed(), (Lines{"hello", "hello"}));
  hall_->NotifyChild("hello", "a");
  EXPECT_EQ(Climbed().size(), 2U) << "names don't count";
}

TEST_F(ObjectMessages, AnObjectOnTheWayUpTakesWhatItCan) {
  bench_.Object("inner");
  children_[0]->AddChildObject(bench_.Load("inner"));
  hall_->TurnOn();
  bool result = false;
  ObjectBench::Child(*children_[0], "inner")->NotifyParent("hideobj_b", false, result);
  EXPECT_EQ(Visible(), "at");
  ObjectBench::Child(*children_[0], "inner")->NotifyParent("removeobj_b", false, result);
  EXPECT_EQ(ObjectBench::NamesOf(hall_->Children()), (Lines{"a", "t"}));
}

TEST_F(ObjectMessages, GoingRoundInCirclesIsFatalAndNamesTheMessage) {
  bench_.top->on_message = [&](const std::string& message) { hall_->Send(message); };
  EXPECT_EQ(FatalOf([&] { Send("hello"); }),
            "more than 200 levels deep: the content goes round in circles at message \"hello\"");
  EXPECT_EQ(bench_.watch.depth.Depth(), 0);
}

TEST_F(ObjectMessages, TwoObjectsThatExciteEachOtherAreFatal) {
  for (const auto& [name, other] : {std::pair{"ping", "pong"}, std::pair{"pong", "ping"}}) {
    bench_.Object(name)
        .State("default", "nothing", "nothing", "main")
        .Script("main", "begin\nmtp toobj_" + std::string(other) + "_useraction_x\nend\n");
    hall_->AddChildObject(bench_.Load(name));
  }
  hall_->TurnOn();
  EXPECT_EQ(FatalOf([&] { Send("toobj_ping_useraction_x"); }).substr(0, 90),
            "Info\\ping\\script_main.txt:2: more than 200 levels deep: the content goes round in "
            "circles ");
  EXPECT_NE(bench_.watch.depth.FailedText().find("useraction_x"), std::string::npos);
}

TEST_F(ObjectMessages, RemoveChildTakesTheFirstOfThatNameAndIgnoresUnknownOnes) {
  hall_->RemoveChild("A");
  hall_->RemoveChild("nobody");
  EXPECT_EQ(ObjectBench::NamesOf(hall_->Children()), (Lines{"b", "t"}));
}

}  // namespace
}  // namespace quendle
