#include "media/DShowObj.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/FatalError.h"
#include "support/FakeSounds.h"

namespace quendle {
namespace {

using Calls = std::vector<std::string>;

class DShowObjTest : public ::testing::Test {
 protected:
  FakeSounds graphs_;
  DShowObj player_{graphs_};
};

TEST_F(DShowObjTest, AnEmptyPlayerDoesNothing) {
  player_.Play();
  player_.Pause();
  player_.StopSound();
  player_.SeekSound(1);
  player_.SetPosition(1);
  player_.SetRate(1);
  player_.SetVolume(0);
  player_.SetBalance(0);
  player_.Remove();
  EXPECT_FALSE(player_.StillPlaying(0));
  EXPECT_EQ(player_.GetRate(), 0);
  EXPECT_EQ(player_.GetDuration(), 0);
  EXPECT_EQ(player_.GetPosition(), 0);
  EXPECT_EQ(player_.GetVolume(), 0);
  EXPECT_EQ(player_.GetBalance(), 0);
  EXPECT_EQ(player_.File(), "");
}

TEST_F(DShowObjTest, AFileIsGotReadyAtNormalSpeed) {
  player_.Initialize("C:\\a.wma");
  EXPECT_EQ(graphs_.Last().path, "C:\\a.wma");
  EXPECT_EQ(graphs_.Last().rate, 1.0);
  EXPECT_EQ(player_.GetDuration(), 10);
  EXPECT_FALSE(player_.StillPlaying(0)) << "it has not been played";
}

TEST_F(DShowObjTest, TheSameFileCostsNothingWhateverItsCase) {
  player_.Initialize("C:\\a.wma");
  player_.Initialize("c:\\A.WMA");
  EXPECT_EQ(graphs_.made.size(), 1U);
}

TEST_F(DShowObjTest, AnotherFileStopsAndReplacesTheGraph) {
  player_.Initialize("a");
  player_.Play();
  player_.Initialize("b");
  EXPECT_EQ(graphs_.made.size(), 2U);
  EXPECT_EQ(graphs_.made[0]->calls, (Calls{"Run", "Stop"}));
  EXPECT_FALSE(graphs_.made[0]->alive);
  EXPECT_FALSE(player_.StillPlaying(0));
  EXPECT_EQ(player_.File(), "b");
}

TEST_F(DShowObjTest, EachPlayStartsFromTheBeginning) {
  player_.Initialize("a");
  player_.Play();
  graphs_.Last().position = 4;
  player_.Play();
  EXPECT_EQ(graphs_.Last().position, 0);
  EXPECT_EQ(graphs_.Last().calls, (Calls{"Run", "Run"}));
}

TEST_F(DShowObjTest, StopLeavesThePositionAtTheBeginning) {
  player_.Initialize("a");
  player_.Play();
  graphs_.Last().position = 4;
  player_.StopSound();
  EXPECT_EQ(graphs_.Last().position, 0);
  EXPECT_EQ(graphs_.Last().calls, (Calls{"Run", "Stop"}));
}

TEST_F(DShowObjTest, PlaysFromPlayUntilTheEndAlsoWhilePaused) {
  player_.Initialize("a");
  EXPECT_FALSE(player_.StillPlaying(0));
  player_.Play();
  EXPECT_TRUE(player_.StillPlaying(0));
  player_.Pause();
  EXPECT_TRUE(player_.StillPlaying(0));
  graphs_.Last().over = true;
  EXPECT_FALSE(player_.StillPlaying(0));
}

TEST_F(DShowObjTest, AStoppedSoundDoesNotPlay) {
  player_.Initialize("a");
  player_.Play();
  player_.StopSound();
  EXPECT_FALSE(player_.StillPlaying(0));
  player_.Play();
  EXPECT_TRUE(player_.StillPlaying(0));
}

TEST_F(DShowObjTest, SeekingStaysBetweenTheBeginningAndTheEnd) {
  player_.Initialize("a");
  player_.SeekSound(3);
  EXPECT_EQ(player_.GetPosition(), 3);
  player_.SeekSound(-1);
  EXPECT_EQ(player_.GetPosition(), 2);
  player_.SeekSound(8);
  EXPECT_EQ(player_.GetPosition(), 10);
  player_.SeekSound(0.5);
  EXPECT_EQ(player_.GetPosition(), 10);
  player_.SeekSound(-99);
  EXPECT_EQ(player_.GetPosition(), 0);
}

TEST_F(DShowObjTest, PositionsAreClamped) {
  player_.Initialize("a");
  player_.SetPosition(99);
  EXPECT_EQ(player_.GetPosition(), 10);
  player_.SetPosition(-1);
  EXPECT_EQ(player_.GetPosition(), 0);
  player_.SetPosition(5);
  player_.SetPosition(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(player_.GetPosition(), 0);
}

TEST_F(DShowObjTest, ARateOfZeroOrLessIsATenth) {
  player_.Initialize("a");
  player_.SetRate(0);
  EXPECT_EQ(player_.GetRate(), 0.1);
  player_.SetRate(-3);
  EXPECT_EQ(player_.GetRate(), 0.1);
  player_.SetRate(2);
  EXPECT_EQ(player_.GetRate(), 2);
}

TEST_F(DShowObjTest, VolumeAndBalanceAreClamped) {
  player_.Initialize("a");
  player_.SetVolume(500);
  EXPECT_EQ(player_.GetVolume(), 0);
  player_.SetVolume(-20000);
  EXPECT_EQ(player_.GetVolume(), -10000);
  player_.SetVolume(-400);
  EXPECT_EQ(player_.GetVolume(), -400);
  player_.SetBalance(20000);
  EXPECT_EQ(player_.GetBalance(), 10000);
  player_.SetBalance(-20000);
  EXPECT_EQ(player_.GetBalance(), -10000);
}

TEST_F(DShowObjTest, AGraphThatCantBeMadeIsSilence) {
  graphs_.can.create = false;
  player_.Initialize("a");
  player_.Play();
  EXPECT_FALSE(player_.StillPlaying(0));
  EXPECT_EQ(player_.File(), "");
}

TEST_F(DShowObjTest, AFileThatCantBeBuiltIsSilenceAndTriedAgain) {
  graphs_.can.render = false;
  player_.Initialize("a");
  player_.Play();
  player_.StopSound();
  EXPECT_FALSE(player_.StillPlaying(0));
  EXPECT_TRUE(graphs_.Last().calls.empty());
  graphs_.can.render = true;
  player_.Initialize("a");
  player_.Play();
  EXPECT_TRUE(player_.StillPlaying(0));
}

TEST_F(DShowObjTest, AFailedFileDoesNotLeaveTheOneBeforeInThePlayer) {
  player_.Initialize("a");
  graphs_.can.render = false;
  player_.Initialize("b");
  graphs_.can.render = true;
  player_.Initialize("a");
  player_.Play();
  EXPECT_TRUE(player_.StillPlaying(0));
}

TEST_F(DShowObjTest, ViewsAreTakenInOrderAndTheFirstFailureEndsIt) {
  graphs_.can.event = false;
  player_.Initialize("a");
  player_.SetVolume(-5);
  EXPECT_EQ(player_.GetVolume(), -5) << "the audio view was taken before";
  player_.Play();
  EXPECT_TRUE(graphs_.Last().calls.empty()) << "the position view was not taken";
  EXPECT_FALSE(player_.StillPlaying(0));
  graphs_.can = {.audio = false};
  player_.Initialize("b");
  player_.Play();
  EXPECT_TRUE(graphs_.Last().calls.empty());
  EXPECT_EQ(player_.GetVolume(), 0);
  graphs_.can = {.position = false};
  player_.Initialize("c");
  player_.Play();
  player_.Pause();
  EXPECT_EQ(graphs_.Last().calls, Calls{"Pause"}) << "the control is there all the same";
}

TEST_F(DShowObjTest, ARefusedSpeedIsSwallowedWhileLoadingAndFatalLater) {
  graphs_.can.set_rate = false;
  player_.Initialize("a");
  player_.Play();
  EXPECT_TRUE(player_.StillPlaying(0));
  EXPECT_THROW(player_.SetRate(2), FatalError);
}

TEST_F(DShowObjTest, RemoveStopsAndForgetsTheFile) {
  player_.Initialize("a");
  player_.Play();
  player_.Remove();
  EXPECT_EQ(graphs_.Last().calls, (Calls{"Run", "Stop"}));
  EXPECT_FALSE(graphs_.Last().alive);
  EXPECT_FALSE(player_.StillPlaying(0));
  player_.Initialize("a");
  EXPECT_EQ(graphs_.made.size(), 2U);
}

}  // namespace
}  // namespace quendle
