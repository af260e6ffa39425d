// The background music: when it starts, pauses, goes on and starts again.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logic/LogicBench.h"

namespace quendle {
namespace {

using testing::Contains;
using testing::Not;

struct MusicBench : testing::Test, LogicBench {
  GraphRecord& Graph() { return graphs.Last(); }
  // How often it was set going.
  long Runs() { return std::ranges::count(Graph().calls, "Run"); }
};

using Music = MusicBench;

TEST_F(Music, TheGameStartsItsMusicSoftly) {
  Start();
  ASSERT_EQ(graphs.made.size(), 1u);
  EXPECT_EQ(Graph().path, "C:\\game\\info\\doodle.wma");
  EXPECT_EQ(Runs(), 1);
  EXPECT_EQ(Graph().volume, -400);
  EXPECT_TRUE(logic->Music()->DoWeLoop());
}

TEST_F(Music, WithoutTheFileTheGameIsSilentAndGoesOn) {
  files.Remove("C:\\game\\info\\doodle.wma");
  Start();
  EXPECT_TRUE(graphs.made.empty());
  for (const char* message : {"stopmusic", "playmusic"}) Send(message);
  logic->PauseSound();
  logic->PlaySound();
}

TEST_F(Music, ALossOfFocusPausesAndItGoesOnWhereItWas) {
  Start();

  Graph().position = 7.5;
  logic->PauseSound();
  EXPECT_EQ(Graph().calls.back(), "Pause");
  logic->PlaySound();
  EXPECT_EQ(Runs(), 2);
  EXPECT_EQ(Graph().position, 7.5);
}

TEST_F(Music, TwoLossesInARowKeepTheFirstPlace) {
  Start();
  Graph().position = 7.5;
  logic->PauseSound();
  logic->PauseSound();
  logic->PlaySound();
  EXPECT_EQ(Graph().position, 7.5);
}

TEST_F(Music, AGainOfFocusWithoutALossStartsAtTheBeginning) {
  Start();
  Graph().position = 7.5;
  logic->PlaySound();
  EXPECT_EQ(Graph().position, 0);
}

TEST_F(Music, ThePlaceIsUsedOnce) {
  Start();
  Graph().position = 7.5;
  logic->PauseSound();
  logic->PlaySound();
  logic->PlaySound();
  EXPECT_EQ(Graph().position, 0);
}

TEST_F(Music, StoppedMusicStartsAtTheBeginningWhenTheFocusReturns) {
  Start();
  Graph().position = 7.5;
  Send("stopmusic");
  EXPECT_FALSE(const_cast<SoundState*>(logic->Music())->IsPlaying());
  logic->PauseSound();
  logic->PlaySound();
  EXPECT_EQ(Graph().position, 0);
  EXPECT_EQ(Runs(), 2);
}

TEST_F(Music, MusicThatWasStartedByAMessageWhileAwayForgetsItsPlace) {
  Start();
  Graph().position = 7.5;
  logic->PauseSound();
  Send("playmusic");
  EXPECT_EQ(Graph().position, 0);
  Graph().position = 3;
  logic->PlaySound();
  EXPECT_EQ(Graph().position, 0);
}

TEST_F(Music, MusicThatHasEndedIsNotPaused) {
  Start();
  Graph().position = 10;
  Graph().over = true;
  logic->PauseSound();
  logic->PlaySound();
  EXPECT_EQ(Graph().position, 0);
}

TEST_F(Music, TheDrawOfNumber3500StartsItAgainAlsoWhenItWasStopped) {
  Start();
  Send("stopmusic");
  for (int i = 0; i < 3499; ++i) logic->draw();
  EXPECT_EQ(Runs(), 1);
  EXPECT_EQ(logic->FrameCounter(), 3499);
  logic->draw();
  EXPECT_EQ(Runs(), 2);
  EXPECT_EQ(logic->FrameCounter(), 0);
}

TEST_F(Music, ItIsGoneAfterTheRelease) {
  Start();
  std::shared_ptr<GraphRecord> graph = graphs.made.back();
  logic->TurnOff();
  logic->Release();
  EXPECT_FALSE(graph->alive);
  EXPECT_THAT(graph->calls, Contains("Stop"));
}

}  // namespace
}  // namespace quendle
