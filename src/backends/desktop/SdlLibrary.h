#pragma once

namespace quendle {

// Holds the media library's video and events while it lives. Make one first.
class SdlLibrary {
 public:
  SdlLibrary();
  ~SdlLibrary();
  SdlLibrary(const SdlLibrary&) = delete;
  SdlLibrary& operator=(const SdlLibrary&) = delete;

  // False without a display; Problem tells why.
  bool HasVideo() const { return has_video_; }
  const char* Problem() const;

 private:
  bool has_video_ = false;
};

}  // namespace quendle
