// What a game collects: tools without a limit, and a surgery machine that is put back.
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

struct CollectionBench : testing::Test, LogicBench {
  void AddAllTools() {
    for (const std::string& name : SpareTools()) {
      Send("toscreen_tools_addglobalobj_" + name + "tool");
    }
  }
  void End() {
    logic->TurnOff();
    logic->Release();
  }
};

using ToolCollection = CollectionBench;
using SurgeryMachine = CollectionBench;

TEST_F(ToolCollection, HasNoLimitForToolsThatAreNotOffered) {
  Start();
  AddAllTools();
  ASSERT_EQ(Tools().size(), 16u);
  ForgetTrace();
  Send("toscreen_tools_addchild?_bandaid");
  EXPECT_TRUE(Sent("GameLogic: tool_toomany"));
  Send("toscreen_tools_addglobalobj_bandaidtool");
  EXPECT_EQ(Tools().size(), 17u);
}

TEST_F(ToolCollection, ComesBackWholeInTheNextRun) {
  Start();
  AddAllTools();
  const std::vector<std::string> tools = Tools();
  ASSERT_EQ(tools.size(), 16u);
  End();
  LogicBench next;
  next.files = files;
  next.Start();
  EXPECT_EQ(next.Tools(), tools);
}

// A patient whose pain passes within 200 milliseconds, beside the machine.
TEST_F(SurgeryMachine, IsHiddenAndPutBackWhenItsPatientStartsOver) {
  struct Case {
    std::int16_t edition;
    const char* patient;
    const char* stage;
  };
  for (const Case& c :
       {Case{2, "kangaroo", "tumorStage1"}, Case{1, "scarecrow", "tonsilsStage1"}}) {
    LogicBench bench;
    bench.settings.GameEdition = c.edition;
    bench.settings.DifficultyLevel = "Normal";
    PutObject(bench.files, {.type = "patient",
                            .name = c.patient,
                            .width = 60,
                            .height = 60,
                            .states = {{.name = "default"},
                                       {.name = "better1"},
                                       {.name = "better1-owww", .animation = "ouch"}},
                            .animations = {{.name = "ouch"}}});
    PutObject(bench.files, {.type = "button",
                            .name = "surgerymachine",
                            .states = {{.name = "default"}, {.name = c.stage}, {.name = "last"}}});
    PutScreen(bench.files, {.type = "hall",
                            .name = "surgeryroom",
                            .children = {ObjectPath(c.patient), ObjectPath("surgerymachine")}});
    bench.Start();
    bench.Send("cs_surgeryroom");
    const ObjectRef patient = Child(bench.logic->CurrentScreen(), c.patient);
    const ObjectRef machine = Child(bench.logic->CurrentScreen(), "surgerymachine");
    patient->ProcessState("better1");
    machine->ProcessState("last");
    patient->Send("runstate_better1-owww");
    ASSERT_TRUE(machine->Visible()) << c.patient;
    bench.Tick(500);
    EXPECT_EQ(patient->CurrentState(), "default");
    EXPECT_EQ(machine->CurrentState(), c.stage);
    EXPECT_FALSE(machine->Visible());
    EXPECT_EQ(bench.DoctorState(), "startover");
  }
}

}  // namespace
}  // namespace quendle
