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

std::optional<std::string> ReadWhole(const Descriptor& file) {
  struct stat status {};
  if (fstat(file.Number(), &status) != 0) return std::nullopt;
  if (static_cast<std::size_t>(status.st_size) > kLargestFile) return std::nullopt;
  // One byte more than the file has shows its end without a further call.
  std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0');
  std::size_t filled = 0;
  while (true) {
    ssize_t got = read(file.Number(), bytes.data() + filled, bytes.size() - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return std::nullopt;
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
    if (filled > kLargestFile) return std::nullopt;
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

bool IsGone(int error) { return error == ENOENT || error == ENOTDIR || error == ELOOP; }

}  // namespace

bool DiskTree::Exists(const ContentPath& path) { return static_cast<bool>(OpenFile(path, O_PATH)); }

std::optional<std::string> DiskTree::Read(const ContentPath& path) {
  Descriptor file = OpenFile(path, O_RDONLY | O_NONBLOCK);
  return file ? ReadWhole(file) : std::nullopt;
}

bool DiskTree::Write(const ContentPath& path, std::string_view bytes) {
  std::optional<Spot> spot = SpotFor(path);
  if (!spot) return false;
  Descriptor folder = OpenBelow(index_.Root(), spot->folder, O_RDONLY | O_DIRECTORY);
  if (!folder) return false;
  ClearLeftovers(folder, spot->folder);
  FileReplacement file(steps_, folder, spot->name);
  if (!file.Open() || !file.Append(bytes) || !file.Flush() || !file.Rename()) return false;
  index_.NoteFile(spot->folder, spot->name);
  return file.FlushFolder();
}

bool DiskTree::Remove(const ContentPath& path) {
  if (!Exists(path)) return true;
  std::optional<std::string> real = index_.FindFile(path);
  if (!real || !steps_.Allows("remove")) return !real;
  auto [folder_path, name] = SplitNative(*real);
  Descriptor folder = OpenBelow(index_.Root(), folder_path, O_RDONLY | O_DIRECTORY);
  if (!folder || unlinkat(folder.Number(), name.c_str(), 0) != 0) return false;
  index_.NoteRemoved(folder_path, name);
  return FlushToDisk(folder);
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

// The regular file of that path; none for anything else. What the index says may be stale: then
// the disk is read anew, once.
Descriptor DiskTree::OpenFile(const ContentPath& path, int flags) {
  for (bool again : {false, true}) {
    std::optional<std::string> real = index_.FindFile(path);
    if (!real) return Descriptor();
    Descriptor file = OpenBelow(index_.Root(), *real, flags);
    const int error = errno;
    struct stat status {};
    if (file && fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode)) return file;
    if (again || (!file && !IsGone(error))) return Descriptor();
    index_.Forget();
  }
  return Descriptor();
}

std::optional<DiskTree::Spot> DiskTree::SpotFor(const ContentPath& path) {
  if (Exists(path)) {
    auto [folder, name] = SplitNative(*index_.FindFile(path));
    return Spot{folder, name};
  }
  if (index_.FindFolder(path)) return std::nullopt;  // a folder stands there
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
    if (error) return std::nullopt;
    index_.Forget();
  }
  if (std::optional<std::string> found = index_.FindFolder(path)) return found;
  if (index_.FindFile(path)) return std::nullopt;  // a file stands where the folder should
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
    if (S_ISREG(status.st_mode) && std::time(nullptr) - status.st_mtime > kLeftoverSeconds) {
      unlinkat(folder.Number(), name.c_str(), 0);
    }
  }
}

}  // namespace quendle
