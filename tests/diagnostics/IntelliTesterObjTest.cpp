#include "diagnostics/IntelliTesterObj.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/ProcessEnds.h"
#include "screens/WorldBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Mode = IntelliTesterObj::Mode;

// The game, as far as the recorder knows it.
class NotedGame : public MessageTarget {
 public:
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool&) override {
    messages.push_back(message);
    unusual = unusual || sender != nullptr || verifying;
    if (on_message) on_message();
  }
  std::vector<std::string> messages;
  bool unusual = false;  // a sender was given, or the call was verifying
  std::function<void()> on_message;
};

class NotedWatcher : public TesterWatcher {
 public:
  void RecordingStarted(const std::string& name) override { events.push_back("start " + name); }
  void ActionRecorded() override { events.push_back("action"); }
  void RecordingTicked() override { events.push_back("tick"); }
  void RecordingStopped() override { events.push_back("stop"); }
  std::vector<std::string> events;
};

struct IntelliTesterObjTest : testing::Test, WorldBench {
  static constexpr std::int16_t kInterval = 50;

  IntelliTesterObjTest() { tester->Initialize(kInterval, game, 0); }

  // Answers for the next input boxes.
  void Answer(std::initializer_list<const char*> answers) {
    for (const char* answer : answers) backend.boxes.QueueAnswer(answer);
  }
  void Record(const char* name = "session.txt") {
    Answer({name});
    tester->Record();
  }
  void Play(const char* name = "session.txt") {
    Answer({name});
    tester->Play();
  }
  // A session file of clicks; x counts them from 1.
  void PutSession(const std::string& name, std::initializer_list<int> ticks) {
    std::string text;
    int x = 0;
    for (const int count : ticks) {
      text += "B\r\nmc\r\nmc\r\n" + std::to_string(count) + "\r\n" + std::to_string(++x) +
              "\r\n0\r\nE\r\n";
    }
    files.Put("\\" + name, text);
  }
  void Ticks(int count) { Tick(kInterval * count); }
  std::vector<std::string> TakeMessages() { return std::exchange(game->messages, {}); }
  std::vector<std::string> Prompts() const {
    std::vector<std::string> prompts;
    for (const ShownBox& box : backend.boxes.Shown()) prompts.push_back(box.text);
    return prompts;
  }
  std::vector<std::string> TimerNames() const {
    std::vector<std::string> names;
    for (const TimerInfo& timer : backend.timers.Running()) names.push_back(timer.callback);
    return names;
  }

  std::shared_ptr<NotedGame> game = std::make_shared<NotedGame>();
  TesterReference reference;
  std::shared_ptr<IntelliTesterObj> tester = std::make_shared<IntelliTesterObj>(objects, reference);
};

constexpr const char* kAskMode = "Enter 'play' for play mode and 'record' for record mode";
constexpr const char* kAskNewFile = "Please enter the file name to store the user actions";
constexpr const char* kAskFile = "Please enter the file name to run";

// Asking

TEST_F(IntelliTesterObjTest, TheModeIsAskedUntilAWordIsKnown) {
  Answer({"", "records", "RECORD", "session.txt"});
  tester->RunTester();
  EXPECT_THAT(Prompts(), ElementsAre(kAskMode, kAskMode, kAskMode, kAskNewFile));
  for (const ShownBox& box : backend.boxes.Shown()) {
    EXPECT_EQ(box.kind, "input");
    EXPECT_EQ(box.title, "IntelliTester");
  }
  EXPECT_EQ(tester->GetMode(), Mode::kRecording);
}

TEST_F(IntelliTesterObjTest, PlayIsAskedForWithoutRegardToCase) {
  PutSession("session.txt", {1});
  Answer({"Play", "session.txt"});
  tester->RunTester();
  EXPECT_THAT(Prompts(), ElementsAre(kAskMode, kAskFile));
  EXPECT_EQ(tester->GetMode(), Mode::kPlaying);
}

TEST_F(IntelliTesterObjTest, ACancelledQuestionIsAskedAgain) {
  Answer({"cancel", "record", "cancel", "session.txt"});
  tester->RunTester();
  EXPECT_THAT(Prompts(), ElementsAre(kAskMode, kAskMode, kAskNewFile, kAskNewFile));
}

TEST_F(IntelliTesterObjTest, WithoutAnAnswerASessionEndsInsteadOfAskingForEver) {
  EXPECT_THAT(Fault([&] { tester->RunTester(); }), HasSubstr("no answer queued"));
}

// Recording

TEST_F(IntelliTesterObjTest, RecordingMakesTheFileAndStartsATimer) {
  Record();
  EXPECT_EQ(File("\\session.txt"), "");
  EXPECT_THAT(TimerNames(), ElementsAre("OnTesterTimer"));
  EXPECT_EQ(backend.timers.Running()[0].interval, Milliseconds(kInterval));
  EXPECT_EQ(reference.active.lock(), tester);
  EXPECT_EQ(tester->FileName(), "session.txt");
}

TEST_F(IntelliTesterObjTest, RecordingReplacesAnOldFile) {
  PutSession("session.txt", {1, 2});
  Record();
  EXPECT_EQ(File("\\session.txt"), "");
}

TEST_F(IntelliTesterObjTest, AnActionIsInTheFileAtOnceWithTheTicksBeforeIt) {
  Record();
  Ticks(37);
  tester->RecordUserAction("mouseclick_412_300");
  EXPECT_EQ(File("\\session.txt"), "B\r\nmc\r\nmc\r\n37\r\n412\r\n300\r\nE\r\n");
  EXPECT_EQ(tester->TickCounter(), 0);
  Ticks(2);
  tester->RecordUserAction("mousemove_-5_7");
  EXPECT_EQ(File("\\session.txt"),
            "B\r\nmc\r\nmc\r\n37\r\n412\r\n300\r\nE\r\nB\r\nmm\r\nmm\r\n2\r\n-5\r\n7\r\nE\r\n");
  EXPECT_EQ(tester->Actions().size(), 2u);
}

TEST_F(IntelliTesterObjTest, TheWordIsTakenWithoutRegardToCase) {
  Record();
  tester->RecordUserAction("MouseClick_1_2");
  EXPECT_THAT(File("\\session.txt"), HasSubstr("mc\r\nmc\r\n0\r\n1\r\n2"));
}

TEST_F(IntelliTesterObjTest, AnotherWordIsNotRecordedAndTheCounterRunsOn) {
  Record();
  Ticks(3);
  tester->RecordUserAction("keypress_27");
  tester->RecordUserAction("");
  EXPECT_EQ(File("\\session.txt"), "");
  Ticks(2);
  tester->RecordUserAction("mouseclick_1_2");
  EXPECT_THAT(tester->Actions(), testing::SizeIs(1));
  EXPECT_EQ(tester->Actions()[0].Ticks(), 5);
}

TEST_F(IntelliTesterObjTest, NothingIsRecordedWhileIdleOrPlaying) {
  tester->RecordUserAction("mouseclick_1_2");
  EXPECT_THAT(tester->Actions(), IsEmpty());
  PutSession("session.txt", {5});
  Play();
  const std::string before = File("\\session.txt");
  tester->RecordUserAction("mouseclick_1_2");
  EXPECT_EQ(tester->Actions().size(), 1u);
  EXPECT_EQ(File("\\session.txt"), before);
}

TEST_F(IntelliTesterObjTest, TheCounterHoldsSixteenBitsAndOneTickMoreIsFatal) {
  Record();
  Ticks(32767);
  EXPECT_EQ(tester->TickCounter(), 32767);
  EXPECT_THAT(Fault([&] { Ticks(1); }), HasSubstr("ticks between two user actions"));
}

TEST_F(IntelliTesterObjTest, AnActionResetsTheCounterBeforeItOverflows) {
  Record();
  Ticks(32767);
  tester->RecordUserAction("mousemove_1_1");
  Ticks(1);
  EXPECT_EQ(tester->TickCounter(), 1);
}

TEST_F(IntelliTesterObjTest, ACoordinateThatIsNoNumberIsFatal) {
  Record();
  EXPECT_NE(Fault([&] { tester->RecordUserAction("mouseclick_left_2"); }), "(none)");
  EXPECT_NE(Fault([&] { tester->RecordUserAction("mouseclick_1"); }), "(none)");
}

TEST_F(IntelliTesterObjTest, AFileThatCannotBeMadeIsFatalAndNamed) {
  faults.Plan("open", 0, 0, false);
  EXPECT_THAT(Fault([&] { Record(); }), HasSubstr("session.txt"));
}

TEST_F(IntelliTesterObjTest, ALineThatCannotBeWrittenIsFatal) {
  Record();
  faults.Plan("writeline", 3, 1, false);
  EXPECT_THAT(Fault([&] { tester->RecordUserAction("mouseclick_1_2"); }), HasSubstr("session.txt"));
}

// Playing

TEST_F(IntelliTesterObjTest, AnActionComesAtItsTicksAfterTheOneBefore) {
  PutSession("session.txt", {3, 1, 2});
  Play();
  Ticks(2);
  EXPECT_THAT(TakeMessages(), IsEmpty());
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_1_0"));
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_2_0"));
  Ticks(1);
  EXPECT_THAT(TakeMessages(), IsEmpty());
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_3_0"));
  EXPECT_FALSE(game->unusual);
}

TEST_F(IntelliTesterObjTest, AnActionWithoutTicksComesWithTheOneBefore) {
  PutSession("session.txt", {2, 0, 0, 1});
  Play();
  Ticks(2);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_1_0", "mouseclick_2_0", "mouseclick_3_0"));
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_4_0"));
}

TEST_F(IntelliTesterObjTest, AnActionWithoutTicksAtTheHeadComesWithTheFirstTick) {
  PutSession("session.txt", {0, 0, 1});
  Play();
  EXPECT_THAT(TakeMessages(), IsEmpty());
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_1_0", "mouseclick_2_0"));
}

TEST_F(IntelliTesterObjTest, ANegativeCountBehindAnotherWaitsForATick) {
  PutSession("session.txt", {1, -3});
  Play();
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_1_0"));
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_2_0"));
}

TEST_F(IntelliTesterObjTest, ACountThatCannotGoLowerIsFatal) {
  PutSession("session.txt", {-32768});
  Play();
  EXPECT_THAT(Fault([&] { Ticks(1); }), HasSubstr("ticks of a user action"));
}

TEST_F(IntelliTesterObjTest, TheMessageIsTheNameAndTheTypeOnlyDecidesWhetherThereIsOne) {
  files.Put("\\session.txt", "B\nmc\nmm\n1\n2\n3\nE\nB\nother\nmc\n0\n4\n5\nE\n");
  Play();
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mousemove_2_3", ""));
}

TEST_F(IntelliTesterObjTest, TheEndIsToldOnceInABox) {
  PutSession("session.txt", {1});
  Play();
  Ticks(1);
  const std::size_t before = backend.boxes.Shown().size();
  Ticks(5);
  ASSERT_EQ(backend.boxes.Shown().size(), before + 1);
  EXPECT_EQ(backend.boxes.Shown().back().kind, "message");
  EXPECT_EQ(backend.boxes.Shown().back().text, "IntelliTester has finished playing");
  EXPECT_THAT(TimerNames(), IsEmpty());
  EXPECT_TRUE(reference.active.expired());
  EXPECT_EQ(tester->TimerId(), 0);
}

TEST_F(IntelliTesterObjTest, TheTickThatFindsTheListEmptyIsTheOneBehindTheLastAction) {
  PutSession("session.txt", {1});
  Play();
  const std::size_t asked = backend.boxes.Shown().size();
  Ticks(1);
  EXPECT_EQ(backend.boxes.Shown().size(), asked);
  Ticks(1);
  EXPECT_EQ(backend.boxes.Shown().size(), asked + 1);
}

TEST_F(IntelliTesterObjTest, AnEmptyFileIsFinishedAtTheFirstTick) {
  files.Put("\\session.txt", "");
  Play();
  Ticks(1);
  EXPECT_EQ(backend.boxes.Shown().back().text, "IntelliTester has finished playing");
}

TEST_F(IntelliTesterObjTest, ANameThatHoldsLoopIsPlayedForEver) {
  PutSession("My Loop.txt", {2});
  Play("My Loop.txt");
  EXPECT_TRUE(tester->Loop());
  Ticks(2);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_1_0"));
  // One tick to load it again, two to reach the action.
  Ticks(2);
  EXPECT_THAT(TakeMessages(), IsEmpty());
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_1_0"));
  Ticks(300);
  EXPECT_EQ(game->messages.size(), 100u);
}

TEST_F(IntelliTesterObjTest, PlayTakesTheLoopFlagFromTheNameAndForgetsTheOneOfInitialize) {
  PutSession("session.txt", {1});
  tester->Initialize(kInterval, game, 1);
  EXPECT_TRUE(tester->Loop());
  Play();
  EXPECT_FALSE(tester->Loop());
}

TEST_F(IntelliTesterObjTest, InitializeSwitchesTheLoopFlagOnByItsLowBitAndNeverOff) {
  tester->Initialize(kInterval, game, 2);
  EXPECT_FALSE(tester->Loop());
  tester->Initialize(kInterval, game, -1);
  EXPECT_TRUE(tester->Loop());
  tester->Initialize(kInterval, game, 0);
  EXPECT_TRUE(tester->Loop());
}

TEST_F(IntelliTesterObjTest, AnEmptyFileInALoopIsReadAgainOnEveryTick) {
  files.Put("\\loop.txt", "");
  Play("loop.txt");
  files.Record(true);
  files.ForgetOperations();
  Ticks(4);
  long reads = 0;
  for (const auto& operation : files.Operations()) reads += operation.name == "read" ? 1 : 0;
  EXPECT_EQ(reads, 4);
  EXPECT_EQ(backend.boxes.Shown().back().kind, "input");
}

TEST_F(IntelliTesterObjTest, AFileIsAskedForUntilItIsThere) {
  PutSession("session.txt", {1});
  Answer({"", "missing.txt", "session.txt"});
  tester->Play();
  EXPECT_THAT(Prompts(), ElementsAre(kAskFile, kAskFile, kAskFile));
}

TEST_F(IntelliTesterObjTest, TheNameIsLookedForAsTypedButOpenedUnderTheBaseDirectory) {
  PutSession("session.txt", {1});
  // Seen from the root of the drive there is no such file, though it would be opened.
  Answer({"\\session.txt", "session.txt"});
  tester->Play();
  EXPECT_EQ(Prompts().size(), 2u);
  // A full path is there, but not below the base directory once more.
  Answer({"C:\\game\\session.txt"});
  EXPECT_THAT(Fault([&] { tester->Play(); }), HasSubstr("not found"));
}

TEST_F(IntelliTesterObjTest, TheTimerRunsWhileTheNameIsAskedAndDoesNothing) {
  // No answer: the question ends the call, with the timer started before.
  EXPECT_NE(Fault([&] { tester->Play(); }), "(none)");
  EXPECT_THAT(TimerNames(), ElementsAre("OnTesterTimer"));
  EXPECT_EQ(tester->GetMode(), Mode::kIdle);
  Ticks(3);
  EXPECT_THAT(game->messages, IsEmpty());
  EXPECT_EQ(tester->TickCounter(), 0);
}

TEST_F(IntelliTesterObjTest, AMalformedFileIsFatal) {
  files.Put("\\session.txt", "B\nmc\nmc\nsoon\n1\n2\nE\n");
  EXPECT_THAT(Fault([&] { Play(); }), HasSubstr("session.txt:4"));
}

TEST_F(IntelliTesterObjTest, AFileThatEndsInTheMiddleOfARecordIsFatal) {
  files.Put("\\session.txt", "B\nmc\nmc\n1\n1\n2\nE\nB\nmc\n");
  EXPECT_NE(Fault([&] { Play(); }), "(none)");
}

// Stopping

TEST_F(IntelliTesterObjTest, StoppingClosesTheFileAndKeepsTheMode) {
  Record();
  tester->RecordUserAction("mouseclick_1_2");
  tester->StopTesting();
  EXPECT_EQ(tester->GetMode(), Mode::kRecording);
  EXPECT_EQ(tester->FileName(), "");
  EXPECT_THAT(TimerNames(), IsEmpty());
  EXPECT_TRUE(reference.active.expired());
  Ticks(3);
  EXPECT_EQ(tester->TickCounter(), 0);
  EXPECT_EQ(tester->Actions().size(), 1u);
}

TEST_F(IntelliTesterObjTest, AStoppedPlayerKeepsItsModeAndItsFileName) {
  PutSession("session.txt", {9});
  Play();
  tester->StopTesting();
  EXPECT_EQ(tester->GetMode(), Mode::kPlaying);
  EXPECT_EQ(tester->FileName(), "session.txt");
  Ticks(20);
  EXPECT_THAT(game->messages, IsEmpty());
}

TEST_F(IntelliTesterObjTest, StoppingTwiceIsHarmless) {
  Record();
  tester->StopTesting();
  tester->StopTesting();
  tester->RecordUserAction("mouseclick_1_2");
  EXPECT_EQ(File("\\session.txt"), "");
}

TEST_F(IntelliTesterObjTest, ReleaseLetsGoOfTheGameAndTheActions) {
  PutSession("session.txt", {1});
  Play();
  tester->Release();
  EXPECT_THAT(tester->Actions(), IsEmpty());
  EXPECT_EQ(game.use_count(), 1);
}

TEST_F(IntelliTesterObjTest, ADetachedRecorderHasStopped) {
  Record();
  tester->RecordUserAction("mouseclick_1_2");
  tester->Detach();
  EXPECT_THAT(TimerNames(), IsEmpty());
  EXPECT_THAT(tester->Actions(), IsEmpty());
  EXPECT_THAT(File("\\session.txt"), HasSubstr("mc"));
}

TEST_F(IntelliTesterObjTest, ADyingRecorderKillsItsTimer) {
  Record();
  tester.reset();
  EXPECT_THAT(TimerNames(), IsEmpty());
  Ticks(3);
}

TEST_F(IntelliTesterObjTest, TheRecorderDoesNotKeepTheGameAlive) {
  PutSession("session.txt", {2});
  Play();
  const std::weak_ptr<NotedGame> watched = game;
  game.reset();
  EXPECT_TRUE(watched.expired());
  Ticks(3);
}

TEST_F(IntelliTesterObjTest, AnActionThatEndsTheProcessLeavesTheRecorderUsable) {
  PutSession("session.txt", {1, 0, 0});
  Play();
  game->on_message = [] { throw ProcessEnds{true}; };
  EXPECT_THROW(Ticks(1), ProcessEnds);
  tester->Detach();
  EXPECT_EQ(game->messages.size(), 1u);
  EXPECT_THAT(TimerNames(), IsEmpty());
}

TEST_F(IntelliTesterObjTest, AnActionThatDetachesTheRecorderEndsItsTick) {
  PutSession("session.txt", {1, 0, 0});
  Play();
  game->on_message = [this] { tester->Detach(); };
  Ticks(1);
  EXPECT_EQ(game->messages.size(), 1u);
}

TEST_F(IntelliTesterObjTest, AnActionThatDropsTheRecorderEndsItsTick) {
  PutSession("session.txt", {1, 5});
  Play();
  game->on_message = [this] { tester.reset(); };
  Ticks(1);
  EXPECT_EQ(game->messages.size(), 1u);
  EXPECT_THAT(TimerNames(), IsEmpty());
}

// The focus

TEST_F(IntelliTesterObjTest, TicksCountOnlyWhileTheApplicationIsActive) {
  Record();
  Ticks(2);
  objects.GameActive = false;
  Ticks(10);
  objects.GameActive = true;
  Ticks(1);
  EXPECT_EQ(tester->TickCounter(), 3);
  EXPECT_EQ(objects.gated_ticks, 10);
}

TEST_F(IntelliTesterObjTest, PlayingPausesWhileTheApplicationIsNotActive) {
  PutSession("session.txt", {2});
  Play();
  Ticks(1);
  objects.GameActive = false;
  Ticks(10);
  EXPECT_THAT(game->messages, IsEmpty());
  objects.GameActive = true;
  Ticks(1);
  EXPECT_EQ(game->messages.size(), 1u);
}

TEST_F(IntelliTesterObjTest, TheTimerDoesNothingWithoutARecorder) {
  Record();
  reference.active.reset();
  Ticks(3);
  EXPECT_EQ(tester->TickCounter(), 0);
}

// Beside it

TEST_F(IntelliTesterObjTest, TheWholeListCanBeWrittenAnew) {
  Record();
  tester->RecordUserAction("mouseclick_1_2");
  Ticks(4);
  tester->RecordUserAction("mousemove_3_4");
  tester->SaveAllActions("copy.txt");
  EXPECT_EQ(File("\\copy.txt"), File("\\session.txt"));
}

TEST_F(IntelliTesterObjTest, WhatIsRecordedIsPlayedWithTheSameSpacing) {
  Record();
  Ticks(3);
  tester->RecordUserAction("mousemove_10_20");
  tester->RecordUserAction("mouseclick_10_20");
  Ticks(7);
  tester->RecordUserAction("mouseclick_30_40");
  tester->StopTesting();
  Play();
  Ticks(2);
  EXPECT_THAT(TakeMessages(), IsEmpty());
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mousemove_10_20", "mouseclick_10_20"));
  Ticks(6);
  EXPECT_THAT(TakeMessages(), IsEmpty());
  Ticks(1);
  EXPECT_THAT(TakeMessages(), ElementsAre("mouseclick_30_40"));
}

TEST_F(IntelliTesterObjTest, AWatcherIsToldOfRecordingOnly) {
  NotedWatcher watcher;
  tester->SetWatcher(&watcher);
  Record();
  Ticks(1);
  tester->RecordUserAction("mouseclick_1_2");
  tester->RecordUserAction("other");
  tester->StopTesting();
  Play();
  Ticks(2);
  EXPECT_THAT(watcher.events, ElementsAre("start session.txt", "tick", "action", "stop"));
}

}  // namespace
}  // namespace quendle
