#pragma once

#include <string>

namespace quendle {

struct VerifySettings {
  enum class Format { kText, kJson, kSarif };
  std::string folder;     // of the content tree
  std::string side_list;  // a file; empty: "verify.txt" in the tree's root, if it is there
  Format format = Format::kText;
};

// `quendle verify`: prints the findings. Gives the exit code: 0 when nothing counts, else 1. Throws
// std::runtime_error when a side list that was named can't be read.
int RunVerify(const VerifySettings& settings);

}  // namespace quendle
