#include <cmath>
#include <set>

#include "backends/codecs/SoundDecoder.h"
#include "base/Text.h"
#include "toolbelt/Progress.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

constexpr const char* kMusic = "\\Info\\doodle.wma";
constexpr double kMusicSeconds = 175;

class SoundChecker {
 public:
  explicit SoundChecker(const CheckContext& context) : context_(context) {}

  void Check(const std::string& path, const std::string& object) {
    if (path.empty() || !heard_.insert(FoldCase(path)).second) return;
    Decode(path, object);
  }

  void CheckMusic(const std::string& path) {
    const auto music = Decode(path, "");
    if (music == nullptr || music->Seconds() <= kMusicSeconds) return;
    context_.findings.Add(quendle::Check::kMusicLong, "", {context_.gate.DisplayName(path), 0},
                          "the music takes " + std::to_string(std::lround(music->Seconds())) +
                              " seconds and begins anew after 175");
  }

 private:
  std::shared_ptr<const DecodedSound> Decode(const std::string& path, const std::string& object) {
    context_.progress.Step("listening to sounds", heard_.size());
    const SoundDecoding decoding = decoder_.Decode(context_.gate.Bytes(path));
    if (decoding.sound == nullptr) {
      context_.findings.Add(quendle::Check::kSoundDamaged, object,
                            {context_.gate.DisplayName(path), 0},
                            "the sound is silent: " + decoding.problem);
    }
    return decoding.sound;
  }

  const CheckContext& context_;
  SoundDecoder decoder_;
  std::set<std::string> heard_;
};

}  // namespace

void CheckSounds(const CheckContext& context) {
  SoundChecker checker(context);
  if (!context.gate.Listing().NamesOf(kMusic).empty()) {
    checker.CheckMusic(context.gate.Listing().OnDisk(kMusic));
  }
  for (const ModelSound& sound : context.model.global_sounds) {
    if (sound.found) checker.Check(sound.file, "");
  }
  for (const ModelObjectRef& object : context.model.objects) {
    for (const ModelSound& sound : object->sounds) {
      if (sound.found) checker.Check(sound.file, ModelPath(*object));
    }
  }
}

}  // namespace quendle
