#include "backends/codecs/SoundLibrary.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "platform/FileSystem.h"

namespace quendle {

SoundLibrary::SoundLibrary(FileSystem& files, SoundDecoder decoder, std::size_t kept_bytes)
    : files_(files), decoder_(decoder), kept_bytes_(kept_bytes) {}

std::shared_ptr<const DecodedSound> SoundLibrary::Get(const std::string& path) {
  std::string key = FoldCase(path);
  const auto found = std::find_if(kept_.begin(), kept_.end(),
                                  [&key](const Kept& kept) { return kept.key == key; });
  if (found != kept_.end()) {
    std::rotate(found, found + 1, kept_.end());
    return kept_.back().sound;
  }
  SoundDecoding decoding{nullptr, "it is missing"};
  if (std::optional<std::string> bytes = files_.Read(path)) decoding = decoder_.Decode(*bytes);
  if (decoding.sound == nullptr) {
    if (told_.insert(std::move(key)).second) {
      AddProblem("Sound " + path + " is silent: " + decoding.problem);
    }
    return nullptr;
  }
  Keep(std::move(key), decoding.sound);
  return decoding.sound;
}

std::vector<std::string> SoundLibrary::TakeProblems() { return std::exchange(problems_, {}); }

void SoundLibrary::Keep(std::string key, std::shared_ptr<const DecodedSound> sound) {
  kept_.push_back({std::move(key), std::move(sound)});
  std::size_t bytes = 0;
  auto first = kept_.end();
  while (first != kept_.begin() && bytes + (first - 1)->sound->Bytes() <= kept_bytes_) {
    --first;
    bytes += first->sound->Bytes();
  }
  kept_.erase(kept_.begin(), first);
}

}  // namespace quendle
