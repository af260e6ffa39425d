#pragma once

#include <string>

namespace quendle {

// Holds the media library's video and events while it lives. Make one first.
class SdlLibrary {
 public:
  SdlLibrary();
  ~SdlLibrary();
  SdlLibrary(const SdlLibrary&) = delete;
  SdlLibrary& operator=(const SdlLibrary&) = delete;

  // False without a display; Problem tells why.
  bool HasVideo() const { return problem_.empty(); }
  const std::string& Problem() const { return problem_; }

 private:
  std::string problem_;
};

}  // namespace quendle
