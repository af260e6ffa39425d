#include "backends/forms/CaptionSetting.h"

#include "base/Text.h"
#include "platform/FileSystem.h"

namespace quendle {

CaptionSetting::CaptionSetting(FileSystem& files, const std::string& base_directory)
    : files_(files), path_(base_directory + "\\ShowCaptions.txt") {}

bool CaptionSetting::Read() const {
  const std::string text = files_.Read(path_).value_or("");
  return EqualsNoCase(TrimBlanks(text.substr(0, text.find_first_of("\r\n"))), "on");
}

void CaptionSetting::Write(bool on) { files_.Write(path_, on ? "On\r\n" : "Off\r\n"); }

}  // namespace quendle
