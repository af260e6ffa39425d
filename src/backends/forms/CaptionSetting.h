#pragma once

#include <string>

namespace quendle {

class FileSystem;

// Whether captions are shown, kept in "ShowCaptions.txt" beside the game's own settings: "On" or
// "Off". Anything else, or no file, is off.
class CaptionSetting {
 public:
  // `files` must outlive the setting; `base_directory` is the content tree in it.
  CaptionSetting(FileSystem& files, const std::string& base_directory);

  bool Read() const;
  // A setting that can't be written is not kept; nothing else happens.
  void Write(bool on);

 private:
  FileSystem& files_;
  std::string path_;
};

}  // namespace quendle
