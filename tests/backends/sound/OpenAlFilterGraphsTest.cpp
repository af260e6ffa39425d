#include "backends/sound/OpenAlFilterGraphs.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

#include "backends/desktop/DesktopClock.h"
#include "backends/files/MemoryFileSystem.h"
#include "support/LoopbackSound.h"
#include "support/WaveFiles.h"

namespace quendle {
namespace {

using Lines = std::vector<std::string>;

constexpr double kHalfSine = -9.03;  // dB of a sine that reaches half of the largest sample
constexpr double kMoment = 0.015;    // a step of the mixer and a bit

class OpenAlFilterGraphsTest : public ::testing::Test {
 protected:
  OpenAlFilterGraphsTest() {
    files_.Put("\\tone.wma", ToneFile(1));
    files_.Put("\\bad.wma", "rubbish");
  }
  std::unique_ptr<FilterGraph> Rendered() {
    auto graph = graphs_.Create();
    EXPECT_TRUE(graph->RenderFile("\\tone.wma"));
    EXPECT_TRUE(graph->QueryAudio() && graph->QueryEvent() && graph->QueryPosition());
    return graph;
  }

  MemoryFileSystem files_;
  LoopbackSound loopback_;
  OpenAlFilterGraphs graphs_{files_, loopback_.clock, loopback_.device};
};

TEST_F(OpenAlFilterGraphsTest, ASoundIsHeardAtItsOwnLevelOnBothSidesFromRunToItsEnd) {
  const auto graph = Rendered();
  loopback_.Pass(500);
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  graph->Run();
  loopback_.Pass(980);
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  EXPECT_NEAR(graph->Position(), 0.98, kMoment);
  loopback_.Pass(40);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
  EXPECT_EQ(graph->Position(), 1.0);
  loopback_.Pass(500);
  const auto heard = loopback_.Stretches();
  ASSERT_EQ(heard.size(), 1U);
  EXPECT_NEAR(heard[0].start, 0.5, kMoment);
  EXPECT_NEAR(heard[0].end, 1.5, kMoment);
  EXPECT_NEAR(loopback_.Level(0.6, 1.4, LoopbackSound::kLeft), kHalfSine, 0.1);
  EXPECT_NEAR(loopback_.Level(0.6, 1.4, LoopbackSound::kRight), kHalfSine, 0.1);
  EXPECT_NEAR(loopback_.LevelOf(440, 0.6, 1.4), kHalfSine, 0.1);
}

TEST_F(OpenAlFilterGraphsTest, VolumeIsInHundredthsOfADecibelAndTheLowestIsNothing) {
  const auto graph = Rendered();
  graph->SetVolume(-400);
  EXPECT_EQ(graph->Volume(), -400);
  graph->Run();
  loopback_.Pass(300);
  graph->SetVolume(-2000);
  loopback_.Pass(300);
  graph->SetVolume(-10000);
  loopback_.Pass(300);
  EXPECT_NEAR(loopback_.Level(0.05, 0.28), kHalfSine - 4, 0.1);
  EXPECT_NEAR(loopback_.Level(0.35, 0.58), kHalfSine - 20, 0.1);
  EXPECT_EQ(loopback_.Level(0.7, 0.88), -200);
  EXPECT_NEAR(graph->Position(), 0.9, kMoment) << "an inaudible sound goes on all the same";
}

TEST_F(OpenAlFilterGraphsTest, BalanceWeakensTheOtherSideAndGoesOnWhereTheSoundWas) {
  const auto graph = Rendered();
  graph->SetBalance(-1000);
  graph->Run();
  loopback_.Pass(300);
  graph->SetBalance(10000);
  EXPECT_EQ(graph->Balance(), 10000);
  EXPECT_NEAR(graph->Position(), 0.3, kMoment);
  loopback_.Pass(300);
  EXPECT_NEAR(loopback_.Level(0.05, 0.28, LoopbackSound::kLeft), kHalfSine, 0.1);
  EXPECT_NEAR(loopback_.Level(0.05, 0.28, LoopbackSound::kRight), kHalfSine - 10, 0.1);
  EXPECT_EQ(loopback_.Level(0.35, 0.58, LoopbackSound::kLeft), -200);
  EXPECT_NEAR(loopback_.Level(0.35, 0.58, LoopbackSound::kRight), kHalfSine, 0.1);
  graph->Pause();
  graph->SetBalance(0);
  loopback_.Pass(200);
  EXPECT_EQ(loopback_.Level(0.65, 0.79, LoopbackSound::kRight), -200) << "a paused one stays so";
  graph->Run();
  loopback_.Pass(300);
  EXPECT_NEAR(graph->Position(), 0.9, 2 * kMoment);
}

TEST_F(OpenAlFilterGraphsTest, AFasterSoundIsHigherAndShorterAndCountsItsOwnSeconds) {
  const auto graph = Rendered();
  EXPECT_TRUE(graph->SetRate(2));
  graph->Run();
  loopback_.Pass(250);
  EXPECT_EQ(graph->Duration(), 1.0);
  EXPECT_NEAR(graph->Position(), 0.5, 2 * kMoment);
  EXPECT_NEAR(loopback_.LevelOf(880, 0.05, 0.24), kHalfSine, 0.3);
  loopback_.Pass(270);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
  EXPECT_NEAR(loopback_.Stretches().at(0).end, 0.5, kMoment);
  EXPECT_FALSE(graph->SetRate(100));
  EXPECT_EQ(graph->Rate(), 2);
}

TEST_F(OpenAlFilterGraphsTest, APausedSoundGoesOnWhereItStood) {
  const auto graph = Rendered();
  graph->Run();
  loopback_.Pass(400);
  graph->Pause();
  const double stood = graph->Position();
  loopback_.Pass(5000);
  EXPECT_EQ(graph->Position(), stood);
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  graph->Run();
  loopback_.Pass(580);
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  loopback_.Pass(40);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
  const auto heard = loopback_.Stretches();
  ASSERT_EQ(heard.size(), 2U);
  EXPECT_NEAR(heard[0].end, 0.4, kMoment);
  EXPECT_NEAR(heard[1].start, 5.4, kMoment);
  EXPECT_NEAR(heard[1].end, 6.0, kMoment);
}

TEST_F(OpenAlFilterGraphsTest, APositionIsTakenWhileRunningPausedStoppedAndAfterTheEnd) {
  const auto graph = Rendered();
  graph->SetPosition(0.8);
  EXPECT_EQ(graph->Position(), 0.8);
  graph->Run();
  loopback_.Pass(100);
  graph->SetPosition(0.2);
  loopback_.Pass(100);
  EXPECT_NEAR(graph->Position(), 0.3, kMoment);
  graph->Pause();
  graph->SetPosition(0.5);
  loopback_.Pass(100);
  EXPECT_EQ(graph->Position(), 0.5);
  graph->Run();
  loopback_.Pass(600);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
  graph->SetPosition(0.9);
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  loopback_.Pass(150);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
  EXPECT_NEAR(loopback_.Stretches().back().end, 1.0, kMoment);
  graph->SetPosition(5);
  EXPECT_EQ(graph->Position(), 1.0);
}

TEST_F(OpenAlFilterGraphsTest, AStoppedOrDroppedSoundIsSilentAtOnce) {
  auto graph = Rendered();
  graph->Run();
  loopback_.Pass(200);
  graph->Stop();
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  loopback_.Pass(200);
  graph->SetPosition(0);
  graph->Run();
  loopback_.Pass(200);
  graph.reset();
  loopback_.Pass(200);
  const auto heard = loopback_.Stretches();
  ASSERT_EQ(heard.size(), 2U);
  EXPECT_NEAR(heard[0].end, 0.2, 2 * kMoment);
  EXPECT_NEAR(heard[1].start, 0.4, kMoment);
  EXPECT_NEAR(heard[1].end, 0.6, 2 * kMoment);
}

TEST_F(OpenAlFilterGraphsTest, MoreSoundsThanTheMixerHasSourcesLastAsLongAsTheOthers) {
  std::vector<std::unique_ptr<FilterGraph>> many;
  for (int i = 0; i < 300; ++i) {
    many.push_back(Rendered());
    many.back()->Run();
  }
  loopback_.Pass(950);
  for (const auto& graph : many) EXPECT_EQ(graph->WaitForCompletion(0), 0);
  loopback_.Pass(100);
  for (const auto& graph : many) EXPECT_NE(graph->WaitForCompletion(0), 0);
  const auto next = Rendered();
  next->Run();
  loopback_.Pass(100);
  EXPECT_NEAR(loopback_.Level(1.08, 1.15), kHalfSine, 0.2) << "the sources were given back";
}

TEST_F(OpenAlFilterGraphsTest, AMixerThatStandsStillDoesNotHoldTheGameUp) {
  const auto graph = Rendered();
  graph->Run();
  loopback_.Pass(100);
  for (int i = 0; i < 60; ++i) {
    loopback_.clock.AdvanceTo(loopback_.clock.Monotonic() + Milliseconds(50));
    graph->WaitForCompletion(0);
  }
  loopback_.clock.AdvanceTo(loopback_.clock.Monotonic() + Milliseconds(1000));
  EXPECT_NE(graph->WaitForCompletion(0), 0);
}

TEST_F(OpenAlFilterGraphsTest, AFileThatCantBePlayedHasNoViewsAndAReason) {
  const auto graph = graphs_.Create();
  EXPECT_FALSE(graph->RenderFile("\\bad.wma"));
  EXPECT_FALSE(graph->QueryAudio() || graph->QueryEvent() || graph->QueryPosition());
  graph->Run();
  graph->Pause();
  graph->Stop();
  EXPECT_EQ(graphs_.TakeProblems(),
            Lines{"Sound \\bad.wma is silent: it is neither Windows Media nor a wave"});
}

TEST_F(OpenAlFilterGraphsTest, TwoDevicesDoNotTakeEachOthersSounds) {
  LoopbackSound other;
  OpenAlFilterGraphs others(files_, other.clock, other.device);
  const auto graph = Rendered();
  const auto second = others.Create();
  ASSERT_TRUE(second->RenderFile("\\tone.wma"));
  graph->Run();
  loopback_.Pass(200);
  other.Pass(200);
  EXPECT_NEAR(loopback_.Level(0.05, 0.19), kHalfSine, 0.2);
  EXPECT_EQ(other.Level(0, 0.2), -200);
}

TEST_F(OpenAlFilterGraphsTest, WithoutADeviceDurationsRunAndTheReasonIsToldOnce) {
  OpenAlFilterGraphs silent(files_, loopback_.clock, nullptr);
  for (int i = 0; i < 2; ++i) {
    const auto graph = silent.Create();
    ASSERT_TRUE(graph->RenderFile("\\tone.wma"));
    EXPECT_TRUE(graph->QueryAudio() && graph->QueryEvent() && graph->QueryPosition());
    EXPECT_TRUE(graph->SetRate(2));
    graph->SetVolume(-400);
    graph->SetBalance(5);
    EXPECT_EQ(graph->Volume(), -400);
    EXPECT_EQ(graph->Balance(), 5);
    graph->Run();
    loopback_.Pass(490);
    EXPECT_EQ(graph->WaitForCompletion(0), 0);
    loopback_.Pass(10);
    EXPECT_NE(graph->WaitForCompletion(0), 0);
  }
  EXPECT_EQ(silent.TakeProblems(), Lines{"There is no sound device: all sounds are silent"});
}

TEST_F(OpenAlFilterGraphsTest, WhateverDeviceTheSystemHasASoundComesToItsEnd) {
  DesktopClock clock;
  OpenAlFilterGraphs system(files_, clock);
  const auto graph = system.Create();
  ASSERT_TRUE(graph->RenderFile("\\tone.wma"));
  EXPECT_EQ(system.TakeProblems().size(), system.Device() == nullptr ? 1U : 0U);
  graph->SetVolume(-10000);
  graph->SetPosition(0.8);
  graph->Run();
  EXPECT_EQ(graph->WaitForCompletion(50), 0);
  EXPECT_NE(graph->WaitForCompletion(10000), 0);
}

TEST_F(OpenAlFilterGraphsTest, WaitingEndsWithTheSoundOrTheTime) {
  DesktopClock clock;
  OpenAlFilterGraphs silent(files_, clock, nullptr);
  const auto graph = silent.Create();
  ASSERT_TRUE(graph->RenderFile("\\tone.wma"));
  graph->SetPosition(0.9);
  graph->Run();
  EXPECT_EQ(graph->WaitForCompletion(10), 0);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_NE(graph->WaitForCompletion(60000), 0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
}  // namespace quendle
