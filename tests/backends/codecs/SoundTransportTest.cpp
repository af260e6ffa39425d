#include "backends/codecs/SoundTransport.h"

#include <gtest/gtest.h>

#include <limits>

#include "backends/headless/VirtualClock.h"

namespace quendle {
namespace {

class SoundTransportTest : public ::testing::Test {
 protected:
  void Pass(int milliseconds) { clock_.AdvanceTo(clock_.Monotonic() + Milliseconds(milliseconds)); }
  VirtualClock clock_;
  SoundTransport sound_{clock_, 2.0};
};

TEST_F(SoundTransportTest, OnlyARunningSoundMoves) {
  Pass(500);
  EXPECT_EQ(sound_.Position(), 0);
  sound_.Run();
  Pass(500);
  EXPECT_EQ(sound_.Position(), 0.5);
  sound_.Pause();
  Pass(500);
  EXPECT_EQ(sound_.Position(), 0.5);
  sound_.Run();
  Pass(250);
  EXPECT_EQ(sound_.Position(), 0.75);
  sound_.Stop();
  Pass(500);
  EXPECT_EQ(sound_.Position(), 0.75);
}

TEST_F(SoundTransportTest, CompletesAtExactlyItsDuration) {
  sound_.Run();
  Pass(1999);
  EXPECT_FALSE(sound_.Completed());
  Pass(1);
  EXPECT_TRUE(sound_.Completed());
  Pass(5000);
  EXPECT_TRUE(sound_.Completed());
  EXPECT_EQ(sound_.Position(), 2.0);
  sound_.Stop();
  EXPECT_FALSE(sound_.Completed());
}

TEST_F(SoundTransportTest, APositionBeforeTheEndPlaysOnAfterCompletion) {
  sound_.Run();
  Pass(3000);
  sound_.SetPosition(1.5);
  EXPECT_FALSE(sound_.Completed());
  Pass(499);
  EXPECT_FALSE(sound_.Completed());
  Pass(1);
  EXPECT_TRUE(sound_.Completed());
}

TEST_F(SoundTransportTest, PositionsAreKeptInTheSound) {
  sound_.SetPosition(-1);
  EXPECT_EQ(sound_.Position(), 0);
  sound_.SetPosition(9);
  EXPECT_EQ(sound_.Position(), 2.0);
  sound_.SetPosition(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(sound_.Position(), 0);
}

TEST_F(SoundTransportTest, AnotherRateMovesThePositionAndLeavesTheDuration) {
  sound_.Run();
  Pass(500);
  EXPECT_TRUE(sound_.SetRate(2));
  EXPECT_EQ(sound_.Position(), 0.5);
  EXPECT_EQ(sound_.Duration(), 2.0);
  Pass(500);
  EXPECT_EQ(sound_.Position(), 1.5);
  EXPECT_TRUE(sound_.SetRate(0.1));
  Pass(4999);
  EXPECT_FALSE(sound_.Completed());
  Pass(2);
  EXPECT_TRUE(sound_.Completed());
}

TEST_F(SoundTransportTest, RatesThatNobodyHearsAreRefused) {
  for (double rate : {0.0, -1.0, 0.009, 10.1, std::numeric_limits<double>::infinity(),
                      std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_FALSE(sound_.SetRate(rate)) << rate;
    EXPECT_EQ(sound_.Rate(), 1.0);
  }
}

}  // namespace
}  // namespace quendle
