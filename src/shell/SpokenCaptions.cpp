#include "shell/SpokenCaptions.h"

#include <string>
#include <utility>

#include "base/TextStream.h"
#include "logic/GameLogicLayer.h"
#include "logic/ScreenObject.h"
#include "logic/SpokenCaption.h"
#include "platform/FileSystem.h"
#include "shell/Globals.h"

namespace quendle {
namespace {

constexpr const char* kFile = "\\Info\\captions.txt";
constexpr int kLogLevel = 1;

}  // namespace

Caption SpokenCaptions::SpokenNow() {
  if (globals_ == nullptr || globals_->GameLogic == nullptr) return {};
  const GameLogicLayer& logic = *globals_->GameLogic;
  Caption caption;
  caption.text = SpokenCaption(Sentences(), logic, globals_->objects);
  if (EqualsNoCase(logic.ToolsState(), "on")) caption.bottom = ScreenObject::kBarTop;
  return caption;
}

const Captions& SpokenCaptions::Sentences() {
  if (captions_) return *captions_;
  const ContentFiles& content = globals_->media.content;
  FileSystem& files = globals_->media.ports.files;
  const std::string path = content.BaseDirectory() + kFile;
  captions_.emplace();
  if (!files.Exists(path)) return *captions_;
  std::optional<std::string> bytes = files.Read(path);
  if (!bytes) {
    Log(content.DisplayName(path) + " can't be read: there are no captions");
    return *captions_;
  }
  TextReader reader(std::move(*bytes), content.DisplayName(path));
  CaptionFile file(reader);
  captions_ = std::move(file.captions);
  for (const std::string& problem : file.problems) Log(problem);
  return *captions_;
}

void SpokenCaptions::Log(const std::string& problem) {
  globals_->objects.LogGeneral(problem, kLogLevel);
}

}  // namespace quendle
