// The author's check and the engine's own answers agree.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "object/ForwardingObject.h"
#include "object/GameObject.h"
#include "object/ObjectFactory.h"
#include "shell/Globals.h"
#include "shell/Registries.h"
#include "support/TestPlatform.h"
#include "toolbelt/VerifyPairs.h"
#include "toolbelt/drive/Drive.h"
#include "toolbelt/verify/MessageRouter.h"
#include "toolbelt/verify/TreeReader.h"

namespace quendle {
namespace {

// An object of the clinic, loaded by the engine.
class LoadedObject {
 public:
  LoadedObject(const Plant& plant, const std::string& name) {
    VerifyClinic clinic;
    plant(clinic);
    clinic.CopyTo(platform_.files);
    globals_.media.UseDirectX = false;  // no surface is needed to ask
    LoadGlobalSounds(globals_);
    LoadGlobalScripts(globals_);
    object_ = CreateGameObject(
        globals_.objects,
        platform_.settings.BaseDirectory + "\\Info\\" + name + "\\" + name + ".txt", 0, {});
  }
  GameObject& operator*() { return dynamic_cast<ForwardingObject&>(*object_).Inner(); }

 private:
  TestPlatform platform_;
  Globals globals_{platform_.settings, platform_.ports, platform_.content};
  ObjectRef object_;
};

CheckPair PairOf(const std::string& code, const std::vector<CheckPair>& pairs) {
  for (const CheckPair& pair : pairs) {
    if (pair.code == code) return pair;
  }
  throw std::logic_error("no pair " + code);
}

TEST(VerifyEngine, AgreesOnSounds) {
  for (const char* code : {"V301", "V401"}) {
    const CheckPair pair = PairOf(code, PartPairs());
    EXPECT_FALSE((*LoadedObject(pair.fault, "doctor")).VerifyState("tryagain")) << code;
    EXPECT_TRUE((*LoadedObject(pair.twin, "doctor")).VerifyState("tryagain")) << code;
  }
}

TEST(VerifyEngine, AgreesOnAnimationsAndFrames) {
  for (const char* code : {"V302", "V304", "V305"}) {
    const CheckPair pair = PairOf(code, PartPairs());
    EXPECT_FALSE((*LoadedObject(pair.fault, "dog")).VerifyState("default")) << code;
    EXPECT_TRUE((*LoadedObject(pair.twin, "dog")).VerifyState("default")) << code;
  }
}

TEST(VerifyEngine, AgreesOnTheTwinsOfAPatient) {
  int pairs = 0;
  for (const CheckPair& pair : MeaningPairs()) {
    if (pair.code != "V901") continue;
    EXPECT_FALSE((*LoadedObject(pair.fault, "dog")).VerifyOwwwPair("default"));
    if (++pairs > 1) {  // the engine doesn't ask what a script leads to
      EXPECT_TRUE((*LoadedObject(pair.twin, "dog")).VerifyOwwwPair("default"));
    }
  }
  EXPECT_EQ(pairs, 3);
  for (const CheckPair& pair : MeaningPairs()) {
    if (pair.code != "V906") continue;
    EXPECT_FALSE((*LoadedObject(pair.fault, "dog")).VerifyOwwwPair("better1"));
    EXPECT_TRUE((*LoadedObject(pair.twin, "dog")).VerifyOwwwPair("better1"));
    ++pairs;
  }
  EXPECT_EQ(pairs, 5);
}

TEST(VerifyEngine, AgreesOnTheStatesOfTheDoctor) {
  EXPECT_TRUE((*LoadedObject(Nothing(), "doctor")).VerifyInfoState("soap"));
  EXPECT_FALSE((*LoadedObject(Nothing(), "doctor")).VerifyInfoState("sope"));
}

// Messages from the hall to its own parents and children, as the game answers them and as they are
// followed.
class VerifyRouting : public ::testing::TestWithParam<const char*> {};

TEST_P(VerifyRouting, TheGameAnswersTheSame) {
  const std::string message = GetParam();
  const VerifyClinic clinic;
  Faults faults;
  MemoryFileSystem files{"", &faults};
  clinic.CopyTo(files);
  DriveSession session(files, faults, "", {});
  for (const char* line : {"play", "send cs_hall"}) {
    ASSERT_TRUE(RunCommandLine(session, line)["ok"] == true) << line;
  }
  const Json answer = RunCommandLine(session, "asktell current " + message);
  ASSERT_TRUE(answer["ok"] == true) << answer.dump();

  Settings settings;
  const ContentFiles content(files, settings);
  ContentListing listing = clinic.Listing();
  Findings findings;
  FileGate gate(files, content, listing, findings);
  std::ostringstream unseen;
  Progress progress(unseen, false);
  const ContentModel model = TreeReader(gate, progress).Read();
  const ModelObject* hall = model.Screen("hall");
  const ModelObject* door = nullptr;
  for (const ModelObjectRef& object : model.objects) {
    if (object->IsNamed("dogdoor")) door = object.get();
  }
  MessageRouter router(model);
  MessageEffects effects;
  const Verdict verdict = router.SendUp({hall, door}, message, effects);
  EXPECT_EQ(answer["result"] == true, verdict.fine) << verdict.text;
}

INSTANTIATE_TEST_SUITE_P(
    Messages, VerifyRouting,
    ::testing::Values("showobj_dogdoor", "SHOWOBJECTS_dogdoor", "showobj_dog", "useraction_x",
                      "useraction", "hideobj_dogdoor", "addglobalobj_soapcursor",
                      "addglobalobj_nosuch", "showtype_button", "showtype_patient",
                      "totype_button_useraction_x", "toobj_dogdoor_runstate_default",
                      "toobj_dogdoor_runstate_nosuch", "toobj_dogdoor_changestate_default",
                      "toobj_dogdoor_runscript_press", "toobj_dogdoor_runscript_nosuch",
                      "toobj_doctor_runstate_tryagain", "toobj_doctor_processstate_nosuch",
                      "runstate_default", "runstate_nosuch", "toscreen_tools_inctoolcounter",
                      "toscreen_nosuch_useraction_x", "cs_dogroom", "cs_nosuch", "CS_dogroom",
                      "subgame_squarescreen", "subgame_nosuch", "resettools", "xresetalltoolsx",
                      "buynow", "playmusic", "stopmusic", "exitondemand", "endexitondemand",
                      "resetgame", "removeobj_currenttool", "cursor_hand", "cursor_nosuch",
                      "hidetool_dogdoor", "nosuch", "opendoor_x", "__runstate__default_"));

}  // namespace
}  // namespace quendle
