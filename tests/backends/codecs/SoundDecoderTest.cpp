#include "backends/codecs/SoundDecoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "backends/codecs/WmaFile.h"

namespace quendle {
namespace {

SoundDecoding Decode(const std::string& bytes) { return SoundDecoder().Decode(bytes); }

Samples WithSilence(double before, const Samples& samples, double after, int rate) {
  Samples all(static_cast<std::size_t>(before * rate), 0);
  all.insert(all.end(), samples.begin(), samples.end());
  all.insert(all.end(), static_cast<std::size_t>(after * rate), 0);
  return all;
}

// The first or last moment at which the sound is loud, in seconds.
double LoudFrom(const DecodedSound& sound) {
  std::size_t i = 0;
  while (i < sound.samples.size() && std::abs(sound.samples[i]) < 1500) ++i;
  return static_cast<double>(i) / sound.rate;
}
double LoudUntil(const DecodedSound& sound) {
  std::size_t i = sound.samples.size();
  while (i > 0 && std::abs(sound.samples[i - 1]) < 1500) --i;
  return static_cast<double>(i) / sound.rate;
}

TEST(SoundDecoder, AWaveGivesItsSamples) {
  const Samples samples{0, 1, -1, 32767, -32768, 300};
  const auto mono = Decode(WaveFile(samples, 8000)).sound;
  ASSERT_NE(mono, nullptr);
  EXPECT_EQ(mono->samples, samples);
  EXPECT_EQ(mono->rate, 8000);
  EXPECT_EQ(mono->channels, 1);
  EXPECT_EQ(mono->Frames(), 6U);
  EXPECT_EQ(mono->Seconds(), 6.0 / 8000);
  const auto stereo = Decode(WaveFile(samples, 44100, 2)).sound;
  ASSERT_NE(stereo, nullptr);
  EXPECT_EQ(stereo->samples, samples);
  EXPECT_EQ(stereo->channels, 2);
  EXPECT_EQ(stereo->Frames(), 3U);
}

TEST(SoundDecoder, EightBitsAreSpreadOverSixteen) {
  const auto sound = Decode(WaveOf(std::string("\x80\x00\xFF\x81", 4), 8000, 1, 8)).sound;
  ASSERT_NE(sound, nullptr);
  EXPECT_EQ(sound->samples, (Samples{0, -32768, 32512, 256}));
}

TEST(SoundDecoder, WindowsMediaKeepsTheMomentsOfTheSound) {
  for (int rate : {8000, 16000, 22050, 32000, 44100}) {
    const Samples samples = WithSilence(0.25, Tone(0.5, rate), 0.25, rate);
    const SoundDecoding decoding = Decode(WmaFile(samples, rate));
    ASSERT_NE(decoding.sound, nullptr) << rate << ": " << decoding.problem;
    EXPECT_EQ(decoding.sound->rate, rate);
    EXPECT_EQ(decoding.sound->channels, 1);
    EXPECT_NEAR(LoudFrom(*decoding.sound), 0.25, 0.005) << rate;
    EXPECT_NEAR(LoudUntil(*decoding.sound), 0.75, 0.005) << rate;
    EXPECT_GE(decoding.sound->Seconds(), 1.0) << rate;
    EXPECT_LT(decoding.sound->Seconds(), 1.15) << rate;
    EXPECT_NEAR(*std::ranges::max_element(decoding.sound->samples), 16384, 700) << rate;
  }
}

TEST(SoundDecoder, TheBytesTellTheKindAndOthersAreRefused) {
  for (const std::string bytes : {"", "R", "RIFF", "RIFF1234", "RIFF1234AVI ", "OggS and more",
                                  "ID3\x03", "#EXTM3U\nhttp://x/y.wma\n", "0&\xB2u"}) {
    const SoundDecoding decoding = Decode(bytes);
    EXPECT_EQ(decoding.sound, nullptr);
    EXPECT_EQ(decoding.problem, "it is neither Windows Media nor a wave") << bytes;
  }
}

TEST(SoundDecoder, OtherEncodingsInAWaveAreNamed) {
  constexpr int kMp3 = 0x55;
  const SoundDecoding decoding = Decode(WaveOf(std::string(4000, 'x'), 8000, 1, 16, kMp3));
  EXPECT_EQ(decoding.sound, nullptr);
  EXPECT_EQ(decoding.problem, "its sound is encoded as mp3, which is not played");
}

TEST(SoundDecoder, AnEmptyWaveIsNoSound) { EXPECT_EQ(Decode(WaveFile({}, 8000)).sound, nullptr); }

TEST(SoundDecoder, RatesAndChannelsOutOfRangeAreRefused) {
  const Samples samples(600, 5);
  EXPECT_EQ(Decode(WaveFile(samples, 3999)).problem, "its rate of 3999 Hz is out of range");
  EXPECT_EQ(Decode(WaveFile(samples, 96001)).problem, "its rate of 96001 Hz is out of range");
  EXPECT_EQ(Decode(WaveFile(samples, 8000, 3)).problem, "it has 3 channels");
  EXPECT_NE(Decode(WaveFile(samples, 4000)).sound, nullptr);
  EXPECT_NE(Decode(WaveFile(samples, 96000)).sound, nullptr);
}

TEST(SoundDecoder, TooLongASoundIsRefusedByTimeAndBySize) {
  const std::string second = WaveFile(Tone(1, 8000), 8000);
  EXPECT_NE(SoundDecoder({.seconds = 1}).Decode(second).sound, nullptr);
  EXPECT_EQ(SoundDecoder({.seconds = 0.99}).Decode(second).sound, nullptr);
  EXPECT_NE(SoundDecoder({.samples = 8000}).Decode(second).sound, nullptr);
  const SoundDecoding decoding = SoundDecoder({.samples = 7999}).Decode(second);
  EXPECT_EQ(decoding.sound, nullptr);
  EXPECT_EQ(decoding.problem, "it is longer than 900 seconds or larger than 7999 samples");
}

TEST(SoundDecoder, ACutFileGivesTheSoundUpToTheCut) {
  const std::string wave = WaveFile(Tone(1, 8000), 8000);
  const auto sound = Decode(wave.substr(0, wave.size() / 2)).sound;
  ASSERT_NE(sound, nullptr);
  EXPECT_NEAR(sound->Seconds(), 0.5, 0.01);
  const std::string media = WmaFile(Tone(4, 22050), 22050);
  const auto cut = Decode(media.substr(0, media.size() * 3 / 5)).sound;
  ASSERT_NE(cut, nullptr);
  EXPECT_GT(cut->Seconds(), 1.5);
  EXPECT_LT(cut->Seconds(), 2.5);
}

TEST(SoundDecoder, ASoundOfWhichMoreThanHalfIsLostIsDamaged) {
  std::string rubbish = WmaFile(Tone(4, 22050), 22050);
  constexpr std::size_t kGood = 4000;  // the header and the first pieces
  for (std::size_t i = kGood; i < rubbish.size(); ++i) rubbish[i] = '\x55';
  const SoundDecoding decoding = Decode(rubbish);
  EXPECT_EQ(decoding.sound, nullptr);
  EXPECT_EQ(decoding.problem, "most of it is damaged");
}

// Whatever comes out, it is whole and within the limits.
void ExpectSound(const SoundDecoding& decoding, const SoundLimits& limits) {
  if (decoding.sound == nullptr) {
    EXPECT_FALSE(decoding.problem.empty());
    return;
  }
  EXPECT_TRUE(decoding.problem.empty());
  EXPECT_FALSE(decoding.sound->samples.empty());
  EXPECT_EQ(decoding.sound->samples.size() % decoding.sound->channels, 0U);
  EXPECT_LE(decoding.sound->samples.size(), limits.samples);
  EXPECT_LE(decoding.sound->Seconds(), limits.seconds);
}

class HostileSounds : public ::testing::TestWithParam<const char*> {
 protected:
  static std::string File(std::string_view kind) {
    return kind == "wave" ? WaveFile(Tone(0.05, 8000), 8000) : WmaFile(Tone(0.05, 8000), 8000);
  }
  const SoundLimits limits_{.seconds = 60, .samples = 1'000'000};
  const SoundDecoder decoder_{limits_};
  const std::string file_ = File(GetParam());
};

TEST_P(HostileSounds, EveryChangedByteGivesASoundOrAReason) {
  ASSERT_NE(decoder_.Decode(file_).sound, nullptr);
  for (std::size_t i = 0; i < file_.size(); ++i) {
    for (int flip : {0x01, 0xFF}) {
      std::string bytes = file_;
      bytes[i] = static_cast<char>(bytes[i] ^ flip);
      ExpectSound(decoder_.Decode(bytes), limits_);
    }
  }
}

TEST_P(HostileSounds, EveryLengthGivesASoundOrAReason) {
  for (std::size_t size = 0; size < file_.size(); size += size < 1000 ? 1 : 7) {
    ExpectSound(decoder_.Decode(file_.substr(0, size)), limits_);
  }
}

TEST_P(HostileSounds, NumbersThatWereMadeHugeGiveASoundOrAReason) {
  for (std::size_t i = 0; i + 4 < file_.size() && i < 1200; ++i) {
    for (const char* number : {"\xFF\xFF\xFF\xFF", "\xFF\xFF\xFF\x7F", "\0\0\0\0"}) {
      std::string bytes = file_;
      bytes.replace(i, 4, number, 4);
      ExpectSound(decoder_.Decode(bytes), limits_);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, HostileSounds, ::testing::Values("wave", "wma"),
                         [](const auto& kind) { return std::string(kind.param); });

}  // namespace
}  // namespace quendle
