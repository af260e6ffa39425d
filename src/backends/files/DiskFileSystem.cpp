#include "backends/files/DiskFileSystem.h"

#include <cstdlib>

#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::string_view kRemoved = ".removed";

// What keeps a file of the content tree from the readers.
ContentPath MarkerOf(const ContentPath& path) {
  ContentPath marker = path;
  marker.insert(marker.begin(), std::string(kRemoved));
  return marker;
}

std::string AbsoluteFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && value[0] == '/' ? value : "";
}

}  // namespace

std::string PlayerFolder(const std::string& name) {
  if (std::string data = AbsoluteFromEnvironment("XDG_DATA_HOME"); !data.empty()) {
    return data + "/" + name;
  }
  std::string home = AbsoluteFromEnvironment("HOME");
  return home.empty() ? "" : home + "/.local/share/" + name;
}

DiskFileSystem::DiskFileSystem(const DiskFolders& folders, Faults& faults)
    : faults_(faults),
      steps_(faults),
      base_(folders.base),
      write_folder_(folders.user),
      content_(folders.base, steps_) {
  if (write_folder_.empty() && !content_.IsWritable()) write_folder_ = folders.fallback;
  if (write_folder_.empty()) {
    write_folder_ = folders.base;
  } else {
    player_.emplace(write_folder_, steps_);
  }
}

bool DiskFileSystem::Exists(std::string_view path) {
  std::optional<ContentPath> split = Split(path);
  if (!split) return false;
  if (player_ && player_->Exists(*split)) return true;
  return !IsRemoved(*split) && content_.Exists(*split);
}

std::optional<std::string> DiskFileSystem::Read(std::string_view path) {
  std::optional<ContentPath> split = Split(path);
  if (!split || faults_.Fails("read")) return std::nullopt;
  if (player_ && player_->Exists(*split)) return player_->Read(*split);
  return IsRemoved(*split) ? std::nullopt : content_.Read(*split);
}

bool DiskFileSystem::Write(std::string_view path, std::string_view bytes) {
  std::optional<ContentPath> split = Split(path);
  return split && WriteTree().Write(*split, bytes);
}

bool DiskFileSystem::Remove(std::string_view path) {
  std::optional<ContentPath> split = Split(path);
  if (!split) return true;
  if (!player_) return content_.Remove(*split);
  // The marker first: stopped in between, the player's file is still there, whole.
  if (!IsRemoved(*split) && content_.Exists(*split)) {
    if (!steps_.Allows("remove") || !player_->Write(MarkerOf(*split), "")) return false;
  }
  return player_->Remove(*split);
}

std::unique_ptr<LineWriter> DiskFileSystem::CreateLineFile(std::string_view path) {
  std::optional<ContentPath> split = Split(path);
  return split ? WriteTree().CreateLineFile(*split) : nullptr;
}

std::optional<ContentPath> DiskFileSystem::Split(std::string_view path) const {
  std::optional<ContentPath> split = SplitContentPath(path, base_);
  if (player_ && split && EqualsNoCase(split->front(), kRemoved)) return std::nullopt;
  return split;
}

bool DiskFileSystem::IsRemoved(const ContentPath& path) {
  return player_ && player_->Exists(MarkerOf(path));
}

}  // namespace quendle
