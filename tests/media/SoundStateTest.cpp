#include "media/SoundState.h"

#include <gtest/gtest.h>

#include <memory>

#include "media/DShowObj.h"
#include "media/MediaPlatform.h"

namespace quendle {
namespace {

class Speaker : public SoundPlayerSource {
 public:
  explicit Speaker(FilterGraphs& graphs) : player(std::make_unique<DShowObj>(graphs)) {}
  std::unique_ptr<DShowObj> player;
  DShowObj* GetDShowObj() override { return player.get(); }
};

class SoundStateTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* path : {"C:\\a.wma", "C:\\b.wma", "C:\\s.wma\\c.wma"}) {
      platform_.files.Put(path, "sound");
    }
  }
  std::unique_ptr<SoundState> Own(const std::string& path, bool preload = false) {
    auto state = std::make_unique<SoundState>(platform_.world);
    state->Initialize(path, preload);
    return state;
  }
  std::unique_ptr<SoundState> Shared(const std::string& path) {
    auto state = std::make_unique<SoundState>(platform_.world);
    state->SetParent(speaker_);
    state->Initialize(path, false);
    return state;
  }

  MediaPlatform platform_;
  FakeSounds& graphs_ = platform_.graphs;
  std::shared_ptr<Speaker> speaker_ = std::make_shared<Speaker>(graphs_);
};

TEST_F(SoundStateTest, BeforeInitializeNothingIsFoundOrLoaded) {
  SoundState state(platform_.world);
  EXPECT_FALSE(state.FileFound());
  EXPECT_FALSE(state.Loaded());
  state.PlaySound();
  EXPECT_FALSE(state.IsPlaying());
  EXPECT_TRUE(graphs_.made.empty());
}

TEST_F(SoundStateTest, WavIsReadAsWmaAlsoInTheNameOfAFolder) {
  EXPECT_EQ(Own("C:\\a.wav")->Sound(), "C:\\a.wma");
  EXPECT_TRUE(Own("C:\\A.WAV")->FileFound());
  auto both = Own("C:\\s.wav\\c.wav");
  EXPECT_EQ(both->Sound(), "C:\\s.wma\\c.wma");
  EXPECT_TRUE(both->FileFound());
}

TEST_F(SoundStateTest, AMissingFileIsSilentInEverything) {
  for (auto& state : {Own("C:\\none.wma"), Shared("C:\\none.wma")}) {
    EXPECT_FALSE(state->FileFound());
    state->PlaySound();
    state->Pause();
    state->StopSound();
    state->SetPosition(1);
    state->SetRate(2);
    state->SetVolume(-5);
    EXPECT_FALSE(state->IsPlaying());
  }
  EXPECT_TRUE(graphs_.made.empty());
}

TEST_F(SoundStateTest, AMissingFileIsSilentAlsoWhileAnotherSoundOfItsParentRings) {
  auto missing = Shared("C:\\none.wma"), ringing = Shared("C:\\a.wma");
  ringing->PlaySound();
  EXPECT_TRUE(ringing->IsPlaying());
  EXPECT_FALSE(missing->IsPlaying());
  missing->Pause();
  missing->SetPosition(5);
  missing->SetRate(2);
  missing->SetVolume(-100);
  missing->StopSound();
  missing->PlaySound();
  EXPECT_TRUE(ringing->IsPlaying()) << "nothing of it reaches the player that they share";
  EXPECT_EQ(graphs_.Last().calls, std::vector<std::string>{"Run"});
  EXPECT_EQ(graphs_.Last().position, 0);
  EXPECT_EQ(graphs_.Last().rate, 1);
  EXPECT_EQ(graphs_.Last().volume, -1);
}

TEST_F(SoundStateTest, OnlyThePreloadFlagLoadsAtOnce) {
  auto lazy = Own("C:\\a.wma");
  EXPECT_FALSE(lazy->Loaded());
  EXPECT_TRUE(graphs_.made.empty());
  auto eager = Own("C:\\a.wma", true);
  EXPECT_TRUE(eager->Loaded());
  EXPECT_EQ(graphs_.made.size(), 1U);
  eager->PlaySound();
  EXPECT_EQ(graphs_.made.size(), 1U) << "nothing is left to load";
}

TEST_F(SoundStateTest, AParentsPlayerStaysFreeUntilTheStatePlays) {
  auto state = std::make_unique<SoundState>(platform_.world);
  state->SetParent(speaker_);
  state->Initialize("C:\\a.wma", true);
  EXPECT_TRUE(graphs_.made.empty());
  EXPECT_FALSE(state->Loaded());
  state->PlaySound();
  EXPECT_EQ(speaker_->player->File(), "C:\\a.wma");
  EXPECT_TRUE(state->Loaded());
}

TEST_F(SoundStateTest, PlayingTwiceStartsFromTheBeginningBothTimes) {
  auto state = Own("C:\\a.wma");
  state->PlaySound();
  graphs_.Last().position = 5;
  state->PlaySound();
  EXPECT_EQ(graphs_.Last().position, 0);
  EXPECT_EQ(graphs_.made.size(), 1U);
}

TEST_F(SoundStateTest, StatesOfOneParentCutEachOtherOff) {
  auto a = Shared("C:\\a.wma"), b = Shared("C:\\b.wma");
  a->PlaySound();
  EXPECT_TRUE(a->IsPlaying());
  b->PlaySound();
  EXPECT_FALSE(graphs_.made[0]->alive);
  EXPECT_TRUE(a->IsPlaying()) << "both ask the one player";
  a->StopSound();
  EXPECT_FALSE(b->IsPlaying());
  a->PlaySound();
  EXPECT_EQ(speaker_->player->File(), "C:\\a.wma") << "the file is given to the player again";
}

TEST_F(SoundStateTest, StatesWithoutAParentPlayTogether) {
  auto a = Own("C:\\a.wma"), b = Own("C:\\b.wma");
  a->PlaySound();
  b->PlaySound();
  b->StopSound();
  EXPECT_TRUE(a->IsPlaying());
  EXPECT_FALSE(b->IsPlaying());
}

TEST_F(SoundStateTest, VolumeBeforeLoadingIsLost) {
  auto state = Own("C:\\a.wma");
  state->SetVolume(-400);
  EXPECT_TRUE(graphs_.made.empty());
  state->PlaySound();
  EXPECT_EQ(graphs_.Last().volume, -1);
  state->SetVolume(-400);
  EXPECT_EQ(graphs_.Last().volume, -400);
}

TEST_F(SoundStateTest, TransportReachesThePlayer) {
  auto state = Own("C:\\a.wma");
  state->PlaySound();
  state->Pause();
  state->SetPosition(3);
  state->SetRate(0);
  EXPECT_EQ(graphs_.Last().calls, (std::vector<std::string>{"Run", "Pause"}));
  EXPECT_EQ(graphs_.Last().position, 3);
  EXPECT_EQ(graphs_.Last().rate, 0.1);
  state->StopSound();
  EXPECT_EQ(graphs_.Last().position, 0);
  EXPECT_FALSE(state->IsPlaying());
}

TEST_F(SoundStateTest, LoadingWithAParentAsksThePlayerWhateverWasFound) {
  auto state = Shared("C:\\none.wma");
  state->LoadSound();
  EXPECT_TRUE(state->Loaded());
  EXPECT_EQ(graphs_.Last().path, "C:\\none.wma");
}

TEST_F(SoundStateTest, LoadingWithoutAParentHappensOnceAndOnlyWhenFound) {
  auto missing = Own("C:\\none.wma");
  missing->LoadSound();
  EXPECT_FALSE(missing->Loaded());
  auto state = Own("C:\\a.wma");
  state->LoadSound();
  state->LoadSound();
  EXPECT_EQ(graphs_.made.size(), 1U);
}

TEST_F(SoundStateTest, TheLoopWordIsKeptAndRepeatsNothing) {
  auto state = Own("C:\\a.wma");
  state->SetLoopState("LOOP");
  EXPECT_TRUE(state->DoWeLoop());
  state->PlaySound();
  graphs_.Last().over = true;
  EXPECT_FALSE(state->IsPlaying());
  state->SetLoopState("loops");
  EXPECT_FALSE(state->DoWeLoop());
}

TEST_F(SoundStateTest, AFileThatCantBeBuiltIsFoundAndSilent) {
  graphs_.can.render = false;
  auto state = Own("C:\\a.wma");
  state->PlaySound();
  EXPECT_TRUE(state->FileFound());
  EXPECT_FALSE(state->IsPlaying());
}

TEST_F(SoundStateTest, AParentThatIsGoneOrHasNoPlayerIsSilence) {
  auto state = Shared("C:\\a.wma");
  state->PlaySound();
  speaker_->player.reset();
  EXPECT_FALSE(state->IsPlaying());
  state->PlaySound();
  speaker_.reset();
  state->PlaySound();
  state->LoadSound();
  state->StopSound();
  EXPECT_FALSE(state->IsPlaying());
}

TEST_F(SoundStateTest, TheEndOfAStateStopsItsOwnPlayerOnly) {
  auto own = Own("C:\\a.wma");
  own->PlaySound();
  own.reset();
  EXPECT_EQ(graphs_.made[0]->calls, (std::vector<std::string>{"Run", "Stop"}));
  auto shared = Shared("C:\\a.wma");
  shared->PlaySound();
  shared.reset();
  EXPECT_EQ(graphs_.made[1]->calls, std::vector<std::string>{"Run"});
}

TEST_F(SoundStateTest, GlobalSoundsAreFoundByName) {
  auto state = std::make_shared<SoundState>(platform_.world);
  platform_.world.GlobalSounds.Add(state, "Bell");
  EXPECT_EQ(platform_.world.FindGlobalSound("BELL"), state);
  EXPECT_EQ(platform_.world.FindGlobalSound("drum"), nullptr);
}

}  // namespace
}  // namespace quendle
