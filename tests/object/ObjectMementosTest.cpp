// What a saved game keeps of an object, and how it comes back.
#include <gtest/gtest.h>

#include "screens/GameObjectMemento.h"
#include "support/ObjectBench.h"

namespace quendle {
namespace {

class ObjectMementos : public ::testing::Test {
 protected:
  ObjectMementos() {
    bench_.Object("a").State("default").State("open").State("wave");
    bench_.Object("b").State("default").State("open");
    bench_.Object("hall", "hall")
        .State("default")
        .State("night")
        .State("wave")
        .Child("a")
        .Child("b");
    hall_ = bench_.LoadOn("hall");
    a_ = ObjectBench::Child(*hall_, "a");
    b_ = ObjectBench::Child(*hall_, "b");
  }

  static GameObjectMemento Of(const TestedObject& object) {
    GameObjectMemento memento;
    object->CreateMemento(memento);
    return memento;
  }
  static GameObjectMemento Record(const std::string& name, const std::string& state, int x = 0,
                                  int y = 0, bool visible = true) {
    GameObjectMemento memento;
    memento.SetObjectName(name);
    memento.SetCurrentState(state);
    memento.Setxpos(static_cast<std::int16_t>(x));
    memento.Setypos(static_cast<std::int16_t>(y));
    memento.SetVisible(visible);
    return memento;
  }
  static void Put(GameObjectMemento& parent, const GameObjectMemento& child) {
    parent.Children().Add(std::make_shared<GameObjectMemento>(child), child.ObjectName());
  }
  std::string Saved(const GameObjectMemento& memento) {
    std::string text;
    TextComposer composer(text);
    memento.SaveToFile(composer, bench_.watch.depth);
    return text;
  }
  // Reads a record behind its first line.
  GameObjectMemento Read(const Lines& lines) {
    TextReader reader(Text(lines), "userdata.txt");
    GameObjectMemento memento;
    memento.LoadFromFile(reader, bench_.watch.depth);
    return memento;
  }

  ObjectBench bench_;
  TestedObject hall_;
  TestedObject a_;
  TestedObject b_;
};

using MementoFiles = ObjectMementos;

TEST_F(ObjectMementos, HoldStatePlaceAndVisibilityOfTheWholeTree) {
  hall_->ProcessState("night");
  a_->ProcessState("open");
  a_->Setxpos(-12);
  a_->Setypos(34);
  a_->SetVisible(false);
  const GameObjectMemento memento = Of(hall_);
  EXPECT_EQ(Saved(memento), Text({"begin", "hall",    "night", "0",  "0",     "True", "begin",
                                  "a",     "open",    "-12",   "34", "False", "end",  "begin",
                                  "b",     "default", "0",     "0",  "True",  "end",  "end"}));
}

TEST_F(ObjectMementos, InAPassingStateTheOneItReturnsToIsSaved) {
  a_->ProcessState("open");
  a_->Inner().RunState("wave");
  EXPECT_EQ(Of(hall_).Children().Item(1)->CurrentState(), "open");
  a_->ProcessState("default");
  EXPECT_EQ(Of(hall_).Children().Item(1)->CurrentState(), "open") << "also after a change";
}

TEST_F(ObjectMementos, TurnedOffTheObjectIsBackAlready) {
  a_->Inner().RunState("wave");
  a_->TurnOff();
  a_->ProcessState("open");
  EXPECT_EQ(Of(a_).CurrentState(), "open");
}

TEST_F(ObjectMementos, ComeBackOntoTheTree) {
  a_->ProcessState("open");
  a_->Setxpos(5);
  b_->SetVisible(false);
  hall_->Setypos(9);
  const GameObjectMemento memento = Of(hall_);
  TestedObject fresh = bench_.Load("hall");
  fresh->LoadMemento(memento);
  EXPECT_EQ(Saved(Of(fresh)), Saved(memento));
}

TEST_F(ObjectMementos, TheStateComesBeforeThePlace) {
  // The animation of the state would put the object at 30.
  bench_.Object("door")
      .Frame("x", {}, "30")
      .Animation("one", 9, "loop", {"x"})
      .State("default")
      .State("go", "nothing", "one");
  TestedObject door = bench_.LoadOn("door");
  door->LoadMemento(Record("door", "go", 7));
  EXPECT_EQ(ObjectBench::FramesOf(*door), (Lines{"x"})) << "it starts when the object is on";
  EXPECT_EQ(door->xpos(), 7);
}

TEST_F(ObjectMementos, AnUnknownStateLeavesTheStateAndTheRestIsTaken) {
  a_->LoadMemento(Record("a", "nowhere", 3));
  EXPECT_EQ(a_->CurrentState(), "default");
  EXPECT_EQ(a_->xpos(), 3);
}

TEST_F(ObjectMementos, DoNotClearTheHistory) {
  a_->Inner().RunState("wave");
  a_->LoadMemento(Record("a", "open"));
  EXPECT_EQ(a_->Inner().StateHistory(), (Lines{"default"}));
}

TEST_F(ObjectMementos, NamesAreMatchedInAnyCaseAndTaken) {
  GameObjectMemento memento = Record("hall", "default");
  Put(memento, Record("A", "open"));
  hall_->LoadMemento(memento);
  EXPECT_EQ(a_->CurrentState(), "open");
  EXPECT_EQ(a_->ObjectName(), "A");
}

TEST_F(ObjectMementos, ChildrenWithoutARecordStayAsTheyAre) {
  b_->ProcessState("open");
  hall_->LoadMemento(Record("hall", "default"));
  EXPECT_EQ(ObjectBench::NamesOf(hall_->Children()), (Lines{"a", "b"}));
  EXPECT_EQ(b_->CurrentState(), "open");
}

TEST_F(ObjectMementos, ARecordOfNoChildAndNoGlobalObjectIsSkipped) {
  GameObjectMemento memento = Record("hall", "default");
  Put(memento, Record("nobody", "open"));
  Put(memento, Record("b", "open"));
  hall_->LoadMemento(memento);
  EXPECT_EQ(hall_->Children().Count(), 2U);
  EXPECT_EQ(b_->CurrentState(), "open");
}

TEST_F(ObjectMementos, AGlobalObjectComesBackToItsScreenWithoutBeingTurnedOn) {
  bench_.Object("handtool", "tool").State("default").State("used");
  TestedObject tool = bench_.LoadGlobal("handtool");
  GameObjectMemento memento = Record("hall", "default");
  Put(memento, Record("handtool", "used", 60));
  hall_->LoadMemento(memento);
  EXPECT_EQ(ObjectBench::Child(*hall_, "handtool"), tool);
  EXPECT_EQ(tool->CurrentState(), "used");
  EXPECT_EQ(tool->xpos(), 60);
  EXPECT_FALSE(tool->ObjectOn());
  EXPECT_EQ(tool->Parent(), bench_.top);
}

TEST_F(ObjectMementos, AGlobalObjectThatIsAChildIsNotAddedAgain) {
  bench_.Object("handtool", "tool").State("default").State("used");
  hall_->AddChildObject(bench_.LoadGlobal("handtool"));
  const GameObjectMemento memento = Of(hall_);
  hall_->LoadMemento(memento);
  EXPECT_EQ(hall_->Children().Count(), 3U);
}

TEST_F(ObjectMementos, ARecordThatPutsAnObjectBelowItselfIsFatal) {
  bench_.Object("doctor", "doctor");
  TestedObject doctor = bench_.LoadGlobal("doctor");
  GameObjectMemento memento = Record("doctor", "default");
  Put(memento, Record("doctor", "default"));
  EXPECT_EQ(FatalOf([&] { doctor->LoadMemento(memento); }),
            "\"doctor\" can't become a child of \"doctor\", which it holds");
}

TEST_F(MementoFiles, AreReadBackExactly) {
  const Lines lines = {"hall", "default", "-32768", "32767", "true", "begin", "a",
                       "open", "1",       "2",      "FALSE", "END",  "end"};
  const GameObjectMemento memento = Read(lines);
  EXPECT_EQ(memento.ObjectName(), "hall");
  EXPECT_EQ(memento.xpos(), -32768);
  EXPECT_EQ(memento.ypos(), 32767);
  EXPECT_TRUE(memento.Visible());
  ASSERT_EQ(memento.Children().Count(), 1U);
  EXPECT_EQ((*memento.Children().Find("A"))->CurrentState(), "open");
  EXPECT_FALSE(memento.Children().Item(1)->Visible());
  EXPECT_EQ(Saved(memento), Text({"begin", "hall", "default", "-32768", "32767", "True", "begin",
                                  "a", "open", "1", "2", "False", "end", "end"}));
}

TEST_F(MementoFiles, AnyLineButEndBeginsARecord) {
  const GameObjectMemento memento =
      Read({"hall", "x", "0", "0", "True", "whatever", "a", "y", "0", "0", "True", "end", "end"});
  EXPECT_EQ(memento.Children().Item(1)->ObjectName(), "a");
}

TEST_F(MementoFiles, ReadingStopsBehindTheRecord) {
  TextReader reader(Text({"a", "x", "0", "0", "True", "end", "next"}), "userdata.txt");
  GameObjectMemento memento;
  memento.LoadFromFile(reader, bench_.watch.depth);
  EXPECT_EQ(reader.ReadLine("the rest"), "next");
}

TEST_F(MementoFiles, DamageIsFatalAndNamesTheLine) {
  const auto fault = [&](const Lines& lines) { return FatalOf([&] { Read(lines); }); };
  EXPECT_EQ(fault({"a", "x", "left", "0", "True", "end"}),
            "userdata.txt:3: \"left\" is not a number (x of a saved object)");
  EXPECT_EQ(fault({"a", "x", "0", "True", "True", "end"}),
            "userdata.txt:4: \"True\" is not a number (y of a saved object)");
  EXPECT_EQ(fault({"a", "x", "0", "0", "maybe", "end"}),
            "userdata.txt:5: \"maybe\" is neither \"True\" nor \"False\"");
  EXPECT_EQ(fault({"a", "x", "0", "0", "True"}),
            "userdata.txt:6: the file ends where \"begin\" or \"end\" of a saved object should "
            "stand");
  EXPECT_EQ(fault({"a"}),
            "userdata.txt:2: the file ends where the state of a saved object should stand");
  EXPECT_EQ(fault({"hall", "x",   "0",     "0", "True", "begin", "a", "x",    "0",   "0",
                   "True", "end", "begin", "A", "x",    "0",     "0", "True", "end", "end"}),
            "userdata.txt:19: two saved objects named \"A\" in \"hall\"");
}

TEST_F(MementoFiles, RecordsWithoutEndAreFatalAndNotTheEndOfTheStack) {
  Lines lines;
  for (int i = 0; i < 50000; ++i) {
    lines.insert(lines.end(), {"a", "x", "0", "0", "True", "begin"});
  }
  EXPECT_EQ(
      FatalOf([&] { Read(lines); }),
      "more than 200 levels deep: the content is nested too deep at file \"a record of the saved "
      "game\"");
}

}  // namespace
}  // namespace quendle
