// A walk passes over what has nothing to do for an event, and over nothing else.
#include <gtest/gtest.h>

#include "support/ObjectBench.h"

namespace quendle {
namespace {

// A hall with a bell at 100,100 that answers a click on it, and whatever `elsewhere` says beside
// it.
class DeafObjects : public ::testing::Test {
 protected:
  TestObject& Bell(const std::string& elsewhere = "") {
    const std::string beside =
        elsewhere.empty() ? "" : "elseif action = " + elsewhere + "\nmtp beside\n";
    return bench_.Object("bell")
        .Still(20, 20)
        .State("default", "nothing", "still", "quiet")
        .State("loud", "nothing", "still", "loud")
        .Script("quiet", "begin\nif action = click\nmtp on\n" + beside + "endif\nend\n")
        .Script("loud", "begin\nif action = clicknot\nmtp loud\nendif\nend\n");
  }
  TestedObject Hall() {
    bench_.Object("hall").Still(10, 10).Child("bell", "xpos_100 ypos_100");
    return bench_.LoadOn("hall");
  }
  Lines Event(const TestedObject& hall, int x, int y, const std::string& action = "click") {
    bench_.top->messages.clear();
    hall->UpdateGameObject(static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                           bench_.scripts.actions.Get(action));
    return bench_.top->messages;
  }
  // The second time the answer of the first is known.
  void ClickBesideTwice(const TestedObject& hall) {
    EXPECT_EQ(Event(hall, 50, 50), Lines{});
    EXPECT_EQ(Event(hall, 50, 50), Lines{});
  }

  ObjectBench bench_;
};

TEST_F(DeafObjects, AnObjectUnderThePointerIsAsked) {
  Bell();
  TestedObject hall = Hall();
  ClickBesideTwice(hall);
  EXPECT_EQ(Event(hall, 110, 110), Lines{"on"});
  EXPECT_EQ(Event(hall, 50, 50), Lines{});
}

TEST_F(DeafObjects, AnObjectThatMovesUnderThePointerIsAsked) {
  Bell();
  TestedObject hall = Hall();
  ClickBesideTwice(hall);
  bench_.Child(*hall, "bell")->Setxpos(40);
  bench_.Child(*hall, "bell")->Setypos(40);
  EXPECT_EQ(Event(hall, 50, 50), Lines{"on"});
}

TEST_F(DeafObjects, AnotherStateHearsAnew) {
  Bell();
  TestedObject hall = Hall();
  ClickBesideTwice(hall);
  bench_.Child(*hall, "bell")->ProcessState("loud");
  EXPECT_EQ(Event(hall, 50, 50), Lines{"loud"});
  EXPECT_EQ(Event(hall, 50, 50), Lines{"loud"});
  bench_.Child(*hall, "bell")->ProcessState("default");
  EXPECT_EQ(Event(hall, 50, 50), Lines{});
}

TEST_F(DeafObjects, AnotherTextIsAnotherQuestion) {
  Bell("knocknot");
  TestedObject hall = Hall();
  ClickBesideTwice(hall);
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(Event(hall, 50, 50, "knock"), Lines{"beside"}) << round;
    EXPECT_EQ(Event(hall, 50, 50, "rub"), Lines{}) << round;
    EXPECT_EQ(Event(hall, 50, 50, "click"), Lines{}) << round;
  }
}

TEST_F(DeafObjects, ATextOfNoTableIsAskedEachTime) {
  Bell("clicknot");
  TestedObject hall = Hall();
  for (int round = 0; round < 2; ++round) {
    bench_.top->messages.clear();
    hall->UpdateGameObject(50, 50, ActionText("click"));
    EXPECT_EQ(bench_.top->messages, Lines{"beside"});
  }
}

TEST_F(DeafObjects, TheChildrenOfADeafObjectAreReached) {
  Bell().Child("clapper", "xpos_-60 ypos_-60");
  bench_.Object("clapper")
      .Still(20, 20)
      .State("default", "nothing", "still", "note")
      .Script("note", "begin\nif action = click\nmtp clapper\nendif\nend\n");
  TestedObject hall = Hall();
  EXPECT_EQ(Event(hall, 50, 50), Lines{"clapper"});
  EXPECT_EQ(Event(hall, 50, 50), Lines{"clapper"});
}

TEST_F(DeafObjects, AnEventWithoutAPlaceIsForAll) {
  Bell();
  bench_.Object("hall").Still(10, 10).Child("bell");
  TestedObject hall = bench_.LoadOn("hall");
  ClickBesideTwice(hall);
  bench_.Child(*hall, "bell")->Setxpos(10);
  bench_.Child(*hall, "bell")->Setypos(10);
  EXPECT_EQ(Event(hall, -1, -1), Lines{"on"});
}

TEST_F(DeafObjects, AReleasedObjectStaysQuiet) {
  Bell("clicknot");
  TestedObject hall = Hall();
  EXPECT_EQ(Event(hall, 50, 50), Lines{"beside"});
  bench_.Child(*hall, "bell")->Release(true);
  EXPECT_EQ(Event(hall, 50, 50), Lines{});
}

TEST_F(DeafObjects, ATracerHearsOfEachScript) {
  class Counter : public Tracer {
   public:
    void Trace(const TraceEvent& event) override { scripts += event.kind == TraceKind::kScript; }
    int scripts = 0;
  } tracer;
  Bell();
  TestedObject hall = Hall();
  ClickBesideTwice(hall);
  bench_.watch.tracer = &tracer;
  Event(hall, 50, 50);
  EXPECT_EQ(tracer.scripts, 1);
}

TEST_F(DeafObjects, APointTooFarAwayIsRefusedThoughTheObjectIsDeaf) {
  Bell();
  TestedObject hall = Hall();
  ClickBesideTwice(hall);
  hall->Setxpos(-30000);
  EXPECT_THROW(Event(hall, 30000, 50), FatalError);
}

}  // namespace
}  // namespace quendle
