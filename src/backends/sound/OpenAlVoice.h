#pragma once

#include <cstdint>
#include <memory>

#include "backends/codecs/DecodedSound.h"
#include "backends/sound/OpenAlDevice.h"

namespace quendle {

// One sound as it is heard. It takes one of the mixer's few sources only from Play to Silence.
class OpenAlVoice {
 public:
  // Both not null. The samples are handed to the mixer at once.
  OpenAlVoice(std::shared_ptr<OpenAlDevice> device, std::shared_ptr<const DecodedSound> sound);
  ~OpenAlVoice();
  OpenAlVoice(const OpenAlVoice&) = delete;
  OpenAlVoice& operator=(const OpenAlVoice&) = delete;

  // Heard from that position on, in seconds. False when the mixer has no source left.
  bool Play(double seconds);
  // Pauses a sound that is heard, and goes on with one that is paused.
  void Pause();
  void Resume();
  // Stops and gives the source back.
  void Silence();

  // Whether there is a source: until Silence, also when the sound came to its end.
  bool HasSource() const { return source_ != 0; }
  // Has a source and did not come to its end.
  bool Sounding();
  // Where a sound stands that is sounding, in seconds.
  double Position();

  // These hold for later plays as well. Hundredths of a decibel; -10000 is silence.
  void SetVolume(std::int32_t volume);
  // -10000 (left) to 10000 (right): hundredths of a decibel that the other side loses.
  void SetBalance(std::int32_t balance);
  // 1.0 is normal; the pitch goes with it.
  void SetRate(double rate);

 private:
  int State();
  void Seek(double seconds);
  void FillBuffer();

  std::shared_ptr<OpenAlDevice> device_;
  std::shared_ptr<const DecodedSound> sound_;
  unsigned buffer_ = 0;
  unsigned source_ = 0;  // 0: none
  float gain_ = 1;
  float pitch_ = 1;
  std::int32_t balance_ = 0;
};

}  // namespace quendle
