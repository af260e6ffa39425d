#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/TextSource.h"

namespace quendle {

// The debug window: a caption and one text of many lines, the newest on top. The oldest lines go
// when the text grows too long.
struct Debomb_Window : public TextSource {
  static constexpr std::size_t kMostCharacters = 64 * 1024;

  std::string caption = "Quendle -- Debomber";
  std::string txt_diffuse;
  std::uint64_t changes = 0;

  void PutOnTop(std::string_view line);

  const std::string& Caption() const override { return caption; }
  const std::string& Text() const override { return txt_diffuse; }
  std::uint64_t Changes() const override { return changes; }
};

}  // namespace quendle
