#include "backends/files/FileReplacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include "backends/files/FolderIndex.h"

namespace quendle {
namespace {

constexpr std::size_t kChunk = 16384;
constexpr int kMostNames = 100;

// Names that no other process and no other file at work here uses at the same time.
std::string TemporaryName(int attempt) {
  return std::string(FolderIndex::kTemporaryPrefix) + std::to_string(getpid()) + "-" +
         std::to_string(attempt);
}

}  // namespace

bool WriteWhole(const Descriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    ssize_t written = write(file.Number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool FlushToDisk(const Descriptor& file) {
  return fsync(file.Number()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

FileReplacement::FileReplacement(DiskSteps& steps, const Descriptor& folder, std::string name)
    : steps_(steps), folder_(folder), name_(std::move(name)) {}

FileReplacement::~FileReplacement() {
  if (standing_) unlinkat(folder_.Number(), temporary_.c_str(), 0);
}

bool FileReplacement::Open() {
  if (!steps_.Allows("open")) return false;
  for (int attempt = 0; attempt < kMostNames && !standing_; ++attempt) {
    temporary_ = TemporaryName(attempt);
    file_ = Descriptor(openat(folder_.Number(), temporary_.c_str(),
                              O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
    standing_ = static_cast<bool>(file_);
    if (!standing_ && errno != EEXIST) return false;
  }
  return standing_;
}

bool FileReplacement::Append(std::string_view bytes) {
  do {
    std::string_view chunk = bytes.substr(0, kChunk);
    if (!steps_.Allows("write")) return false;
    // A disk that fills up takes a part before it refuses.
    bool whole = steps_.Allows("writepart");
    if (!WriteWhole(file_, whole ? chunk : chunk.substr(0, chunk.size() / 2)) || !whole) {
      return false;
    }
    bytes.remove_prefix(chunk.size());
  } while (!bytes.empty());
  return true;
}

bool FileReplacement::Flush() { return steps_.Allows("flush") && FlushToDisk(file_); }

bool FileReplacement::Rename() {
  if (!steps_.Allows("rename")) return false;
  if (renameat(folder_.Number(), temporary_.c_str(), folder_.Number(), name_.c_str()) != 0) {
    return false;
  }
  standing_ = false;
  return true;
}

bool FileReplacement::FlushFolder() { return steps_.Allows("flushfolder") && FlushToDisk(folder_); }

}  // namespace quendle
