#include "backends/files/DiskFileSystem.h"

#include <cerrno>
#include <cstdlib>

#include "backends/files/Descriptor.h"
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
  if (!MeansMissing(LookAtPlayers(*split))) return true;
  const int marker = LookAtMarker(*split);
  return marker != 0 && (!MeansMissing(marker) || !MeansMissing(content_.Look(*split)));
}

FileAnswer DiskFileSystem::Read(std::string_view path) {
  std::optional<ContentPath> split = Split(path);
  if (!split) return FileAnswer();
  if (faults_.Fails("read")) return FileAnswer::Error(ReasonOf(EIO));
  if (player_) {
    FileAnswer own = player_->Read(*split);
    if (!own.IsMissing()) return own;
    const int marker = LookAtMarker(*split);
    if (marker == 0) return FileAnswer();
    if (!MeansMissing(marker)) return FileAnswer::Error(ReasonOf(marker));
  }
  return content_.Read(*split);
}

FileChange DiskFileSystem::Write(std::string_view path, std::string_view bytes) {
  std::optional<ContentPath> split = Split(path);
  return split ? WriteTree().Write(*split, bytes) : FileChange::Failed("not a file of the game");
}

FileChange DiskFileSystem::Remove(std::string_view path) {
  std::optional<ContentPath> split = Split(path);
  if (!split) return FileChange::Done();
  if (!player_) return content_.Remove(*split);
  // The marker first: stopped in between, the player's file is still there, whole.
  if (LookAtMarker(*split) != 0 && !MeansMissing(content_.Look(*split))) {
    if (!steps_.Allows("remove")) return FileChange::Failed(ReasonOf(errno));
    if (FileChange marked = player_->Write(MarkerOf(*split), ""); !marked) return marked;
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

int DiskFileSystem::LookAtPlayers(const ContentPath& path) {
  return player_ ? player_->Look(path) : ENOENT;
}

int DiskFileSystem::LookAtMarker(const ContentPath& path) {
  return player_ ? player_->Look(MarkerOf(path)) : ENOENT;
}

}  // namespace quendle
