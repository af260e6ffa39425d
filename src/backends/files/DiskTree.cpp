#include "backends/files/DiskTree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <utility>

#include "backends/files/FileReplacement.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::size_t kLargestFile = std::size_t{256} << 20;
// A temporary file of this age was left by a process that was killed.
constexpr std::time_t kLeftoverSeconds = 600;
// So far the clocks of two machines that share a disk may differ.
constexpr std::time_t kClockSeconds = 5;

class DiskLines : public LineWriter {
 public:
  DiskLines(DiskSteps& steps, Descriptor file) : steps_(steps), file_(std::move(file)) {}

  bool WriteLine(std::string_view line) override {
    if (!steps_.Allows("writeline")) return false;
    return WriteWhole(file_, std::string(line) + "\r\n") && FlushToDisk(file_);
  }

 private:
  DiskSteps& steps_;
  Descriptor file_;
};

FileAnswer ReadWhole(const Descriptor& file) {
  struct stat status {};
  if (fstat(file.Number(), &status) != 0) return FileAnswer::Error(ReasonOf(errno));
  if (static_cast<std::size_t>(status.st_size) > kLargestFile) {
    return FileAnswer::Error(ReasonOf(EFBIG));
  }
  // One byte more than the file has shows its end without a further call.
  std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0');
  std::size_t filled = 0;
  while (true) {
    ssize_t got = read(file.Number(), bytes.data() + filled, bytes.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return FileAnswer::Error(ReasonOf(errno));
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
    if (filled > kLargestFile) return FileAnswer::Error(ReasonOf(EFBIG));
    if (filled == bytes.size()) bytes.resize(2 * filled);  // it grows while we read
  }
  bytes.resize(filled);
  return bytes;
}

std::pair<std::string, std::string> SplitNative(const std::string& path) {
  std::size_t cut = path.rfind('/');
  if (cut == std::string::npos) return {"", path};
  return {path.substr(0, cut), path.substr(cut + 1)};
}

FileChange ChangeOf(int error) {
  return error == 0 ? FileChange::Done() : FileChange::Failed(ReasonOf(error));
}

// Of a step that has just failed: never none.
int LastError() { return errno != 0 ? errno : EIO; }

}  // namespace

int DiskTree::Look(const ContentPath& path) { return OpenFile(path, O_PATH).error; }

FileAnswer DiskTree::Read(const ContentPath& path) {
  const Opened opened = OpenFile(path, O_RDONLY | O_NONBLOCK);
  if (opened.error == 0) return ReadWhole(opened.file);
  return MeansMissing(opened.error) ? FileAnswer() : FileAnswer::Error(ReasonOf(opened.error));
}

FileChange DiskTree::Write(const ContentPath& path, std::string_view bytes) {
  return ChangeOf(Replace(path, bytes));
}

int DiskTree::Replace(const ContentPath& path, std::string_view bytes) {
  std::optional<Spot> spot = SpotFor(path);
  if (!spot) return LastError();
  Descriptor folder = OpenBelow(index_.Root(), spot->folder, O_RDONLY | O_DIRECTORY);
  if (!folder) return LastError();
  ClearLeftovers(folder, spot->folder);
  FileReplacement file(steps_, folder, spot->name);
  if (!file.Open() || !file.Append(bytes) || !file.Flush() || !file.Rename()) return LastError();
  index_.NoteFile(spot->folder, spot->name);
  return file.FlushFolder() ? 0 : LastError();
}

FileChange DiskTree::Remove(const ContentPath& path) {
  const int error = Delete(path);
  return MeansMissing(error) ? FileChange::Done() : ChangeOf(error);
}

int DiskTree::Delete(const ContentPath& path) {
  if (const int error = Look(path); error != 0) return error;
  const FolderIndex::Found real = index_.FindFile(path);
  if (!real) return real.error;
  if (!steps_.Allows("remove")) return LastError();
  auto [folder_path, name] = SplitNative(real.path);
  Descriptor folder = OpenBelow(index_.Root(), folder_path, O_RDONLY | O_DIRECTORY);
  if (!folder || unlinkat(folder.Number(), name.c_str(), 0) != 0) return LastError();
  index_.NoteRemoved(folder_path, name);
  return FlushToDisk(folder) ? 0 : LastError();
}

std::unique_ptr<LineWriter> DiskTree::CreateLineFile(const ContentPath& path) {
  std::optional<Spot> spot = SpotFor(path);
  if (!spot) return nullptr;
  Descriptor folder = OpenBelow(index_.Root(), spot->folder, O_RDONLY | O_DIRECTORY);
  if (!folder) return nullptr;
  FileReplacement file(steps_, folder, spot->name);
  if (!file.Open() || !file.Rename()) return nullptr;
  index_.NoteFile(spot->folder, spot->name);
  return std::make_unique<DiskLines>(steps_, file.TakeFile());
}

bool DiskTree::IsWritable() const {
  if (!steps_.Allows("probe")) return false;
  if (access(index_.Root().c_str(), W_OK) == 0) return true;
  return errno != EACCES && errno != EROFS && errno != EPERM;
}

// The regular file of that path; anything else is a missing file. What the index says may be stale:
// then the disk is read anew, once.
DiskTree::Opened DiskTree::OpenFile(const ContentPath& path, int flags) {
  for (bool again : {false, true}) {
    const FolderIndex::Found real = index_.FindFile(path);
    if (!real) return {Descriptor(), real.error};
    Descriptor file = OpenBelow(index_.Root(), real.path, flags);
    int error = file ? 0 : LastError();
    struct stat status {};
    if (file && fstat(file.Number(), &status) != 0) error = LastError();
    if (file && error == 0 && !S_ISREG(status.st_mode)) error = ENOENT;
    if (error == 0) return {std::move(file), 0};
    if (again || !MeansMissing(error)) return {Descriptor(), error};
    index_.Forget();
  }
  return {Descriptor(), ENOENT};
}

std::optional<DiskTree::Spot> DiskTree::SpotFor(const ContentPath& path) {
  errno = Look(path);
  if (errno == 0) {
    auto [folder, name] = SplitNative(index_.FindFile(path).path);
    return Spot{folder, name};
  }
  // A second file beside one that can't be looked at would hide it.
  if (!MeansMissing(errno)) return std::nullopt;
  if (index_.FindFolder(path)) {
    errno = EISDIR;
    return std::nullopt;
  }
  std::optional<std::string> folder = MakeFolders(std::span(path).first(path.size() - 1));
  if (!folder) return std::nullopt;
  return Spot{*folder, ToUtf8(path.back())};
}

// The folder of that path, made as far as it is missing.
std::optional<std::string> DiskTree::MakeFolders(std::span<const std::string> path) {
  if (access(index_.Root().c_str(), F_OK) != 0) {
    if (!steps_.Allows("makefolder")) return std::nullopt;
    std::error_code error;
    std::filesystem::create_directories(index_.Root(), error);
    if (error) {
      errno = error.value();
      return std::nullopt;
    }
    index_.Forget();
  }
  const FolderIndex::Found found = index_.FindFolder(path);
  if (found) return found.path;
  const int file = index_.FindFile(path).error;
  if (!MeansMissing(file)) {  // a file stands where the folder should, or it can't be told
    errno = file == 0 ? ENOTDIR : file;
    return std::nullopt;
  }
  std::optional<std::string> parent = MakeFolders(path.first(path.size() - 1));
  if (!parent) return std::nullopt;
  const std::string name = ToUtf8(path.back());
  if (!MakeFolder(*parent, name)) return std::nullopt;
  return NativeJoin(*parent, name);
}

bool DiskTree::MakeFolder(const std::string& parent, const std::string& name) {
  Descriptor folder = OpenBelow(index_.Root(), parent, O_RDONLY | O_DIRECTORY);
  if (!folder || !steps_.Allows("makefolder")) return false;
  if (mkdirat(folder.Number(), name.c_str(), 0777) != 0 && errno != EEXIST) return false;
  index_.Forget();
  return FlushToDisk(folder);
}

void DiskTree::ClearLeftovers(const Descriptor& folder, const std::string& path) {
  for (const std::string& name : index_.Leftovers(path)) {
    struct stat status {};
    if (fstatat(folder.Number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) continue;
    const std::time_t age = std::time(nullptr) - status.st_mtime;
    // A date in the future was set by a clock that has been put right since.
    const bool at_work = age >= -kClockSeconds && age <= kLeftoverSeconds;
    if (S_ISREG(status.st_mode) && !at_work) {
      unlinkat(folder.Number(), name.c_str(), 0);
    }
  }
}

}  // namespace quendle
