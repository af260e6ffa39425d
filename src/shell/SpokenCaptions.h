#pragma once

#include <memory>
#include <optional>
#include <string>

#include "media/Captions.h"
#include "platform/CaptionSource.h"

namespace quendle {

struct Globals;

// The captions of one run: "\Info\captions.txt" and what plays. The file is read when it is first
// asked for; lines of it that can't be used are logged.
class SpokenCaptions : public CaptionSource {
 public:
  // `globals` must outlive this object; it may be null while no game is on.
  explicit SpokenCaptions(const std::unique_ptr<Globals>& globals) : globals_(globals) {}

  bool HasCaptions() override { return globals_ != nullptr && !Sentences().Empty(); }
  Caption SpokenNow() override;

 private:
  // Of a game that is on.
  const Captions& Sentences();
  void Log(const std::string& problem);

  const std::unique_ptr<Globals>& globals_;
  std::optional<Captions> captions_;
};

}  // namespace quendle
