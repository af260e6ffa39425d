#include "backends/headless/HeadlessFilterGraphs.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "backends/headless/VirtualClock.h"
#include "platform/Faults.h"
#include "support/WaveFiles.h"

namespace quendle {
namespace {

class HeadlessFilterGraphsTest : public ::testing::Test {
 protected:
  HeadlessFilterGraphsTest() {
    files_.Put("\\a.wma", ToneFile(1.25));
    files_.Put("\\bad.wma", "rubbish");
  }
  void Pass(int milliseconds) { clock_.AdvanceTo(clock_.Monotonic() + Milliseconds(milliseconds)); }
  std::unique_ptr<FilterGraph> Rendered() {
    auto graph = graphs_.Create();
    EXPECT_TRUE(graph->RenderFile("\\a.wma"));
    return graph;
  }

  MemoryFileSystem files_;
  VirtualClock clock_;
  Faults faults_;
  HeadlessFilterGraphs graphs_{files_, clock_, faults_};
};

TEST_F(HeadlessFilterGraphsTest, ASoundLastsAsLongAsItsSamples) {
  const auto graph = Rendered();
  EXPECT_TRUE(graph->QueryAudio() && graph->QueryEvent() && graph->QueryPosition());
  EXPECT_EQ(graph->Duration(), 1.25);
  graph->Run();
  Pass(1249);
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  EXPECT_EQ(graph->Position(), 1.249);
  Pass(1);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
  EXPECT_EQ(graph->Position(), 1.25);
}

TEST_F(HeadlessFilterGraphsTest, APausedSoundStandsAndIsNotOver) {
  const auto graph = Rendered();
  graph->Run();
  Pass(1000);
  graph->Pause();
  Pass(9000);
  EXPECT_EQ(graph->WaitForCompletion(0), 0);
  EXPECT_EQ(graph->Position(), 1.0);
  graph->Run();
  Pass(250);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
}

TEST_F(HeadlessFilterGraphsTest, AFasterSoundEndsSoonerAndKeepsItsDuration) {
  const auto graph = Rendered();
  EXPECT_TRUE(graph->SetRate(2));
  EXPECT_EQ(graph->Rate(), 2);
  EXPECT_EQ(graph->Duration(), 1.25);
  graph->Run();
  Pass(500);
  EXPECT_EQ(graph->Position(), 1.0);
  Pass(125);
  EXPECT_NE(graph->WaitForCompletion(0), 0);
  EXPECT_FALSE(graph->SetRate(11));
}

TEST_F(HeadlessFilterGraphsTest, VolumeAndBalanceAreKept) {
  const auto graph = Rendered();
  EXPECT_EQ(graph->Volume(), 0);
  EXPECT_EQ(graph->Balance(), 0);
  graph->SetVolume(-400);
  graph->SetBalance(300);
  EXPECT_EQ(graph->Volume(), -400);
  EXPECT_EQ(graph->Balance(), 300);
}

TEST_F(HeadlessFilterGraphsTest, AMissingOrDamagedFileHasNoViewsAndAReason) {
  for (const char* path : {"\\none.wma", "\\bad.wma"}) {
    const auto graph = graphs_.Create();
    EXPECT_FALSE(graph->RenderFile(path));
    EXPECT_FALSE(graph->QueryAudio() || graph->QueryEvent() || graph->QueryPosition());
    graph->Run();
    graph->Pause();
    graph->Stop();
    EXPECT_EQ(graphs_.TakeProblems().size(), 1U);
  }
}

TEST_F(HeadlessFilterGraphsTest, FailuresComeOnDemand) {
  faults_.Plan("CreateGraph", 0, 1, false);
  EXPECT_EQ(graphs_.Create(), nullptr);
  faults_.Plan("RenderFile", 0, 1, false);
  const auto graph = graphs_.Create();
  EXPECT_FALSE(graph->RenderFile("\\a.wma"));
  EXPECT_TRUE(graph->RenderFile("\\a.wma"));
}

}  // namespace
}  // namespace quendle
