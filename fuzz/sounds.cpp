// Sound files, decoded within small limits so that a run is quick.

#include "Fuzz.h"
#include "backends/codecs/SoundDecoder.h"

using namespace quendle;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const SoundLimits limits{.seconds = 20, .samples = 1'000'000};
  const SoundDecoding decoding = SoundDecoder(limits).Decode(BytesOf(data, size));
  Require((decoding.sound == nullptr) != decoding.problem.empty(), "a sound, or a reason");
  if (decoding.sound == nullptr) return 0;
  const DecodedSound& sound = *decoding.sound;
  Require(sound.rate > 0 && (sound.channels == 1 || sound.channels == 2), "a sound can be played");
  Require(!sound.samples.empty() && sound.samples.size() <= limits.samples &&
              sound.samples.size() % static_cast<std::size_t>(sound.channels) == 0,
          "a sound has whole frames within its limits");
  return 0;
}
