// Sounds as they are heard: sound states play on a device that mixes into memory, and what it
// mixed is measured.
#include <gtest/gtest.h>

#include "backends/sound/OpenAlFilterGraphs.h"
#include "base/ContentFiles.h"
#include "media/DShowObj.h"
#include "media/MediaPlatform.h"
#include "support/LoopbackSound.h"
#include "support/WaveFiles.h"

namespace quendle {
namespace {

constexpr double kMoment = 0.015;  // a step of the mixer and a bit
constexpr double kFull = -3.01;    // dB of a sine that reaches the largest sample
constexpr double kHalf = kFull - 6.02;

// One that says one thing at a time.
class Speaker : public SoundPlayerSource {
 public:
  explicit Speaker(FilterGraphs& graphs) : player_(graphs) {}
  DShowObj* GetDShowObj() override { return &player_; }

 private:
  DShowObj player_;
};

class SoundScenario : public ::testing::Test {
 protected:
  SoundScenario() {
    platform_.files.Put("C:\\tune.wma", ToneFile(3.0, 300, 0.5));
    platform_.files.Put("C:\\bell.wma", ToneFile(0.5, 700, 0.25));
    platform_.files.Put("C:\\hello.wma", ToneFile(1.0, 1100, 0.25));
    platform_.files.Put("C:\\ouch.wma", ToneFile(0.4, 1700, 0.25));
    platform_.files.Put("C:\\torn.wma", "rubbish");
  }
  std::unique_ptr<SoundState> Own(const std::string& path, bool preload = false) {
    auto state = std::make_unique<SoundState>(world_);
    state->Initialize(path, preload);
    return state;
  }
  std::unique_ptr<SoundState> Spoken(const std::string& path) {
    auto state = std::make_unique<SoundState>(world_);
    state->SetParent(speaker_);
    state->Initialize(path, false);
    return state;
  }
  // Level of one sound among all.
  double Level(double frequency, double from, double until) {
    return sound_.LevelOf(frequency, from, until);
  }

  MediaPlatform platform_;
  LoopbackSound sound_;
  OpenAlFilterGraphs graphs_{platform_.files, sound_.clock, sound_.device};
  Ports ports_{platform_.files,          platform_.clock,        platform_.timers,
               platform_.random,         platform_.boxes,        platform_.gdi,
               platform_.direct_draw,    platform_.modes,        graphs_,
               platform_.window,         platform_.forms,        platform_.system,
               platform_.picture_loader, platform_.picture_saver};
  MediaWorld world_{platform_.settings, ports_, platform_.content};
  std::shared_ptr<Speaker> speaker_ = std::make_shared<Speaker>(graphs_);
};

TEST_F(SoundScenario, EachSoundHasItsLevelItsStartAndItsEnd) {
  const auto music = Own("C:\\tune.wav");
  const auto bell = Own("C:\\bell.wav", true);
  const auto hello = Spoken("C:\\hello.wav");
  const auto ouch = Spoken("C:\\ouch.wav");

  music->PlaySound();  // at 0.0
  music->SetVolume(-400);
  sound_.Pass(500);
  hello->PlaySound();  // at 0.5, is cut
  sound_.Pass(250);
  bell->PlaySound();  // at 0.75, to 1.25
  sound_.Pass(250);
  ouch->PlaySound();  // at 1.0, to 1.4: the speaker drops what it said
  sound_.Pass(390);
  EXPECT_TRUE(ouch->IsPlaying());
  sound_.Pass(30);
  EXPECT_FALSE(ouch->IsPlaying());
  EXPECT_FALSE(bell->IsPlaying());
  sound_.Pass(580);
  music->StopSound();  // at 2.0
  EXPECT_FALSE(music->IsPlaying());
  sound_.Pass(500);
  music->PlaySound();  // at 2.5, from the beginning, to 5.5
  sound_.Pass(3100);
  EXPECT_FALSE(music->IsPlaying());

  EXPECT_NEAR(Level(300, 0.05, 0.45), kHalf - 4, 0.2);
  EXPECT_NEAR(Level(300, 1.5, 1.95), kHalf - 4, 0.2);
  EXPECT_NEAR(Level(300, 2.6, 5.4), kHalf - 4, 0.2) << "the volume stays with the player";
  EXPECT_NEAR(Level(1100, 0.55, 0.95), kHalf - 6.02, 0.2);
  EXPECT_LT(Level(1100, 0.1, 0.48), -60);
  EXPECT_LT(Level(1100, 1.03, 1.4), -50);
  EXPECT_NEAR(Level(700, 0.8, 1.2), kHalf - 6.02, 0.2);
  EXPECT_LT(Level(700, 0.3, 0.7), -60);
  EXPECT_LT(Level(700, 1.3, 1.9), -60);
  EXPECT_NEAR(Level(1700, 1.05, 1.35), kHalf - 6.02, 0.2);
  EXPECT_LT(Level(1700, 1.45, 1.9), -60);

  const auto heard = sound_.Stretches();
  ASSERT_EQ(heard.size(), 2U) << "music without a gap, then silence, then music";
  EXPECT_NEAR(heard[0].start, 0.0, kMoment);
  EXPECT_NEAR(heard[0].end, 2.0, 2 * kMoment);
  EXPECT_NEAR(heard[1].start, 2.5, kMoment);
  EXPECT_NEAR(heard[1].end, 5.5, kMoment);
}

TEST_F(SoundScenario, PlayingTwiceStartsAgainFromTheBeginning) {
  const auto bell = Own("C:\\bell.wma");
  bell->PlaySound();
  sound_.Pass(300);
  bell->PlaySound();
  EXPECT_NEAR(bell->Player()->GetPosition(), 0, kMoment);
  sound_.Pass(700);
  const auto heard = sound_.Stretches();
  ASSERT_FALSE(heard.empty());
  EXPECT_NEAR(heard.back().end, 0.8, kMoment);
}

TEST_F(SoundScenario, PausedMusicIsHeardAgainFromWhereItWas) {
  const auto music = Own("C:\\tune.wma");
  music->PlaySound();
  sound_.Pass(1000);
  const double position = music->Player()->GetPosition();
  music->Pause();
  EXPECT_TRUE(music->IsPlaying());
  sound_.Pass(1000);
  music->PlaySound();
  music->SetPosition(position);
  sound_.Pass(2500);
  const auto heard = sound_.Stretches();
  ASSERT_EQ(heard.size(), 2U);
  EXPECT_NEAR(heard[0].end, 1.0, 2 * kMoment);
  EXPECT_NEAR(heard[1].start, 2.0, kMoment);
  EXPECT_NEAR(heard[1].end, 4.0, 2 * kMoment) << "two of its three seconds were left";
}

TEST_F(SoundScenario, ADamagedSoundIsSilenceAndALineInTheLog) {
  world_.log = &platform_.log;
  const auto torn = Own("C:\\torn.wma");
  torn->PlaySound();
  torn->PlaySound();
  EXPECT_TRUE(torn->FileFound());
  EXPECT_FALSE(torn->IsPlaying());
  sound_.Pass(200);
  EXPECT_TRUE(sound_.Stretches().empty());
  EXPECT_EQ(
      platform_.log.lines,
      std::vector<std::string>{"Sound torn.wma is silent: it is neither Windows Media nor a wave"});
}

TEST_F(SoundScenario, WhatCouldNotBeHeardBeforeThereWasALogIsToldByTheNextSound) {
  const auto torn = Own("C:\\torn.wma", true);
  world_.log = &platform_.log;
  EXPECT_TRUE(platform_.log.lines.empty());
  Own("C:\\bell.wma")->PlaySound();
  EXPECT_EQ(platform_.log.lines.size(), 1U);
}

}  // namespace
}  // namespace quendle
