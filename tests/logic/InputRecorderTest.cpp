#include "logic/InputRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NotedRecorder : public InputRecorder {
 public:
  explicit NotedRecorder(LogicBench& bench) : bench_(bench) {}
  void RecordUserAction(const std::string& message) override {
    actions.push_back(message);
    screens.push_back(bench_.Current());
  }
  void Detach() override { ++detached; }
  std::vector<std::string> actions;
  std::vector<std::string> screens;  // in view when the action was told
  int detached = 0;

 private:
  LogicBench& bench_;
};

struct InputRecorderTest : testing::Test, LogicBench {
  InputRecorderTest() {
    Start();
    logic->SetTester(recorder);
  }
  std::shared_ptr<NotedRecorder> recorder = std::make_shared<NotedRecorder>(*this);
};

TEST_F(InputRecorderTest, PressesAndMovesAreToldInTheFormOfMessages) {
  Move(10, 20);
  Click(-3, 599);
  EXPECT_THAT(recorder->actions, ElementsAre("mousemove_10_20", "mouseclick_-3_599"));
}

TEST_F(InputRecorderTest, AnActionIsToldBeforeTheGameActsOnIt) {
  Click(110, 110);
  EXPECT_EQ(Current(), "floor1hall1");
  EXPECT_THAT(recorder->screens, ElementsAre("introscreen"));
}

TEST_F(InputRecorderTest, AMessageFromOutsideIsAnActionToo) {
  Send("mouseclick_1_2");
  EXPECT_THAT(recorder->actions, ElementsAre("mouseclick_1_2"));
}

TEST_F(InputRecorderTest, WhatContentSendsItselfIsNotThePlayersAction) {
  PutObject(files, ClickButton("echo", "mtp mousemove_5_5\n"));
  logic->CurrentScreen()->AddChildObject(Make("echo"));
  logic->CurrentScreen()->TurnOn();
  ForgetTrace();
  Click(10, 10);
  EXPECT_TRUE(Sent("GameLogic: mousemove_5_5"));
  EXPECT_THAT(recorder->actions, ElementsAre("mouseclick_10_10"));
}

TEST_F(InputRecorderTest, ReleaseDetachesTheRecorderOnce) {
  logic->TurnOff();
  logic->Release();
  logic->Release();
  EXPECT_EQ(recorder->detached, 1);
}

TEST_F(InputRecorderTest, TheGameDoesNotKeepTheRecorderAlive) {
  const std::weak_ptr<NotedRecorder> watched = recorder;
  recorder.reset();
  EXPECT_TRUE(watched.expired());
  Click(1, 1);
  logic->Release();
}

}  // namespace
}  // namespace quendle
