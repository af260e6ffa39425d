// What a message's first word means to an object, and the other decisions of the room.
#include "object/ObjectVerbs.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "base/Text.h"
#include "object/DoctorStates.h"
#include "object/ObjectFile.h"
#include "object/SurgeryReset.h"

namespace quendle {
namespace {

TEST(ObjectVerbs, SomeWordsAreLookedForAnywhereInTheVerb) {
  const std::pair<const char*, ObjectVerb> held[] = {
      {"showobj", ObjectVerb::kShowObj},   {"runscript", ObjectVerb::kRunScript},
      {"hidetype", ObjectVerb::kHideType}, {"hideobj", ObjectVerb::kHideObj},
      {"showtype", ObjectVerb::kShowType}, {"totype", ObjectVerb::kToType},
      {"toobj", ObjectVerb::kToObj},       {"removeobj", ObjectVerb::kRemoveObj},
  };
  for (const auto& [word, verb] : held) {
    EXPECT_EQ(ObjectVerbOf(word), verb) << word;
    EXPECT_EQ(ObjectVerbOf("x" + FoldCase(word) + "s"), verb) << word;
  }
}

TEST(ObjectVerbs, SomeWordsMustBeTheWholeVerb) {
  const std::pair<const char*, ObjectVerb> whole[] = {{"UserAction", ObjectVerb::kUserAction},
                                                      {"AddGlobalObj", ObjectVerb::kAddGlobalObj},
                                                      {"RunState", ObjectVerb::kRunState},
                                                      {"ChangeState", ObjectVerb::kChangeState},
                                                      {"ProcessState", ObjectVerb::kChangeState}};
  for (const auto& [word, verb] : whole) {
    EXPECT_EQ(ObjectVerbOf(word), verb) << word;
    EXPECT_EQ(ObjectVerbOf(std::string(word) + "s"), ObjectVerb::kClimb) << word;
  }
}

TEST(ObjectVerbs, TheFirstRowThatFitsDecides) {
  EXPECT_EQ(ObjectVerbOf("runscriptshowobj"), ObjectVerb::kShowObj);
  EXPECT_EQ(ObjectVerbOf("toobjrunscript"), ObjectVerb::kRunScript);
  EXPECT_EQ(ObjectVerbOf("hideobjhidetype"), ObjectVerb::kHideType);
  EXPECT_EQ(ObjectVerbOf("toobjtotype"), ObjectVerb::kToType);
  EXPECT_EQ(ObjectVerbOf("removeobjtoobj"), ObjectVerb::kToObj);
  EXPECT_EQ(ObjectVerbOf("csremoveobj"), ObjectVerb::kClimb);
}

TEST(ObjectVerbs, TheRestClimbs) {
  for (const char* word : {"toscreen", "cs", "CSX", "", "tool", "playmusic"}) {
    EXPECT_EQ(ObjectVerbOf(word), ObjectVerb::kClimb) << word;
  }
}

TEST(ObjectVerbs, WhatIsOnlyForChildrenEndsAtThem) {
  for (const char* word : {"showobj", "showtype", "toobj", "totype"}) {
    EXPECT_TRUE(EndsAtChildren(ObjectVerbOf(word))) << word;
  }
  for (const char* word : {"hideobj", "hidetype", "removeobj", "runscript", "cs", "useraction"}) {
    EXPECT_FALSE(EndsAtChildren(ObjectVerbOf(word))) << word;
  }
}

TEST(ObjectDirectives, AWordWithoutAKnownKeyAndValueSaysNothing) {
  for (const char* word : {"visible_on", "VISIBLE_Off", "depth_x", "state_a", "runstate_a",
                           "xpos_1", "ypos_1", "__state__a_b"}) {
    EXPECT_TRUE(SaysSomething(word)) << word;
  }
  for (const char* word : {"", "_", "visible", "visible_maybe", "state", "states_a", "zpos_1"}) {
    EXPECT_FALSE(SaysSomething(word)) << word;
  }
}

TEST(DoctorStates, EachHasANameOfItsOwn) {
  std::set<std::string> names;
  for (const DoctorState state : kDoctorStates) names.insert(NameOf(state));
  EXPECT_EQ(names.size(), kDoctorStates.size());
  EXPECT_EQ(MessageTo(DoctorState::kTryAgain), "toobj_doctor_runstate_tryagain");
  EXPECT_EQ(MessageTo(DoctorState::kHelpPatientRoom), "toobj_doctor_runstate_helppatientroom");
}

TEST(SurgeryReset, EachEditionHasItsPatient) {
  EXPECT_EQ(SurgeryResetOf(1).patient, "scarecrow");
  EXPECT_EQ(SurgeryResetOf(1).machine_state, "tonsilsStage1");
  EXPECT_EQ(SurgeryResetOf(2).patient, "kangaroo");
  EXPECT_EQ(SurgeryResetOf(2).machine_state, "tumorStage1");
}

}  // namespace
}  // namespace quendle
