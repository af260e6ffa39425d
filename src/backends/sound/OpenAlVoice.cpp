#include "backends/sound/OpenAlVoice.h"

#include <AL/al.h>
#include <AL/alext.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace quendle {
namespace {

constexpr std::int32_t kSilence = -10000;

// The factor of so many hundredths of a decibel; the lowest is no sound at all.
float GainOf(std::int32_t volume) {
  if (volume <= kSilence) return 0;
  return std::pow(10.0F, static_cast<float>(std::min(volume, 0)) / 2000.0F);
}

std::int16_t Scaled(std::int16_t sample, float gain) {
  return static_cast<std::int16_t>(std::lround(static_cast<float>(sample) * gain));
}

// The usual one dulls speech of low rates: 1.3 dB are lost at a fifth of the rate.
void UseBestResampler(ALuint source) {
  if (alIsExtensionPresent("AL_SOFT_source_resampler") == AL_FALSE) return;
  alSourcei(source, AL_SOURCE_RESAMPLER_SOFT, alGetInteger(AL_NUM_RESAMPLERS_SOFT) - 1);
}

}  // namespace

OpenAlVoice::OpenAlVoice(std::shared_ptr<OpenAlDevice> device,
                         std::shared_ptr<const DecodedSound> sound)
    : device_(std::move(device)), sound_(std::move(sound)) {
  device_->MakeCurrent();
  alGenBuffers(1, &buffer_);
  FillBuffer();
}

OpenAlVoice::~OpenAlVoice() {
  Silence();
  alDeleteBuffers(1, &buffer_);
}

// Two channels, also of a sound with one: they go straight to the speakers at their own level,
// where the mixer would place a single channel in the room and weaken it.
void OpenAlVoice::FillBuffer() {
  const float left = GainOf(-std::max(balance_, 0));
  const float right = GainOf(std::min(balance_, 0));
  const auto channels = static_cast<std::size_t>(sound_->channels);
  std::vector<std::int16_t> samples(sound_->Frames() * 2);
  for (std::size_t i = 0; i < sound_->Frames(); ++i) {
    samples[2 * i] = Scaled(sound_->samples[i * channels], left);
    samples[2 * i + 1] = Scaled(sound_->samples[i * channels + channels - 1], right);
  }
  alBufferData(buffer_, AL_FORMAT_STEREO16, samples.data(),
               static_cast<ALsizei>(samples.size() * sizeof(std::int16_t)), sound_->rate);
}

bool OpenAlVoice::Play(double seconds) {
  Silence();
  alGetError();
  alGenSources(1, &source_);
  if (alGetError() != AL_NO_ERROR) {
    source_ = 0;
    return false;
  }
  alSourcei(source_, AL_DIRECT_CHANNELS_SOFT, AL_TRUE);
  UseBestResampler(source_);
  alSourcei(source_, AL_BUFFER, static_cast<ALint>(buffer_));
  alSourcef(source_, AL_GAIN, gain_);
  alSourcef(source_, AL_PITCH, pitch_);
  Seek(seconds);
  alSourcePlay(source_);
  return true;
}

void OpenAlVoice::Pause() {
  device_->MakeCurrent();
  if (source_ != 0) alSourcePause(source_);
}

void OpenAlVoice::Resume() {
  // Playing a source that plays would begin it again.
  if (source_ != 0 && State() == AL_PAUSED) alSourcePlay(source_);
}

void OpenAlVoice::Silence() {
  device_->MakeCurrent();
  if (source_ == 0) return;
  alSourceStop(source_);
  alDeleteSources(1, &source_);
  source_ = 0;
}

int OpenAlVoice::State() {
  device_->MakeCurrent();
  ALint state = AL_STOPPED;
  alGetSourcei(source_, AL_SOURCE_STATE, &state);
  return state;
}

bool OpenAlVoice::Sounding() {
  if (source_ == 0) return false;
  const int state = State();
  return state == AL_PLAYING || state == AL_PAUSED;
}

double OpenAlVoice::Position() {
  device_->MakeCurrent();
  ALint frame = 0;
  alGetSourcei(source_, AL_SAMPLE_OFFSET, &frame);
  return static_cast<double>(frame) / sound_->rate;
}

void OpenAlVoice::Seek(double seconds) {
  const double frame = std::clamp(std::floor(seconds * sound_->rate), 0.0,
                                  static_cast<double>(sound_->Frames() - 1));
  alSourcei(source_, AL_SAMPLE_OFFSET, static_cast<ALint>(frame));
}

void OpenAlVoice::SetVolume(std::int32_t volume) {
  gain_ = GainOf(volume);
  device_->MakeCurrent();
  if (source_ != 0) alSourcef(source_, AL_GAIN, gain_);
}

void OpenAlVoice::SetRate(double rate) {
  pitch_ = static_cast<float>(rate);
  device_->MakeCurrent();
  if (source_ != 0) alSourcef(source_, AL_PITCH, pitch_);
}

void OpenAlVoice::SetBalance(std::int32_t balance) {
  if (balance == balance_) return;
  balance_ = balance;
  const bool sounding = Sounding();
  const bool paused = sounding && State() == AL_PAUSED;
  const double position = sounding ? Position() : 0;
  // The samples of a buffer in use can't be changed.
  Silence();
  FillBuffer();
  if (!sounding) return;
  Play(position);
  if (paused) Pause();
}

}  // namespace quendle
