#include "backends/files/MemoryFileSystem.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace quendle {
namespace {

constexpr const char* kPlanned = "Input/output error";

std::string Joined(const ContentPath& path, std::size_t count) {
  std::string joined;
  for (std::size_t i = 0; i < count; ++i) joined.append("\\").append(path[i]);
  return joined;
}

std::string KeyOf(const ContentPath& path, std::size_t count) {
  return FoldCase(Joined(path, count));
}

std::string KeyOf(const ContentPath& path) { return KeyOf(path, path.size()); }

// Whether a reader who asks for `wanted` gets `a` rather than `b`: the first component that is
// exact in one of them only decides, then the order of the letters.
bool IsNearer(const ContentPath& wanted, const ContentPath& a, const ContentPath& b) {
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (a[i] == b[i]) continue;
    if (a[i] == wanted[i] || b[i] == wanted[i]) return a[i] == wanted[i];
    return a[i] < b[i];
  }
  return false;
}

}  // namespace

// Lines of a file that was replaced or removed meanwhile are lost, as on the disk.
class MemoryFileSystem::Lines : public LineWriter {
 public:
  Lines(MemoryFileSystem& files, const File& file)
      : files_(files), path_(file.path), bytes_(file.bytes) {}

  bool WriteLine(std::string_view line) override {
    files_.Note("line", Joined(path_, path_.size()));
    if (files_.Fails("writeline")) return false;
    File* file = files_.Find(path_);
    bool replaced = file == nullptr || file->bytes != bytes_;
    const long own = replaced ? 1 : 2;
    if (bytes_.use_count() > own) {
      bytes_ = std::make_shared<std::string>(*bytes_);
      if (!replaced) file->bytes = bytes_;
    }
    bytes_->append(line).append("\r\n");
    return true;
  }

 private:
  MemoryFileSystem& files_;
  ContentPath path_;
  std::shared_ptr<std::string> bytes_;
};

bool MemoryFileSystem::Exists(std::string_view path) {
  Note("exists", path);
  std::optional<ContentPath> split = SplitContentPath(path, base_directory_);
  return split && Find(*split) != nullptr;
}

FileAnswer MemoryFileSystem::Read(std::string_view path) {
  Note("read", path);
  std::optional<ContentPath> split = SplitContentPath(path, base_directory_);
  if (!split) return FileAnswer();
  if (Fails("read")) return FileAnswer::Error(kPlanned);
  const File* file = Find(*split);
  return file == nullptr ? FileAnswer() : FileAnswer(*file->bytes);
}

FileChange MemoryFileSystem::Write(std::string_view path, std::string_view bytes) {
  Note("write", path);
  std::optional<ContentPath> split = SplitContentPath(path, base_directory_);
  if (!split || !CanStand(*split)) return FileChange::Failed("no file can stand there");
  if (FailsBeforeRename()) return FileChange::Failed(kPlanned);
  File* old = Find(*split);
  (old == nullptr ? Add(*split) : *old).bytes = std::make_shared<std::string>(bytes);
  return Fails("flushfolder") ? FileChange::Failed(kPlanned) : FileChange::Done();
}

FileChange MemoryFileSystem::Remove(std::string_view path) {
  Note("remove", path);
  std::optional<ContentPath> split = SplitContentPath(path, base_directory_);
  const File* file = split ? Find(*split) : nullptr;
  if (file == nullptr) return FileChange::Done();
  if (Fails("remove")) return FileChange::Failed(kPlanned);
  auto found = files_.find(KeyOf(*split));
  found->second.erase(found->second.begin() + (file - found->second.data()));
  if (found->second.empty()) files_.erase(found);
  return FileChange::Done();
}

std::unique_ptr<LineWriter> MemoryFileSystem::CreateLineFile(std::string_view path) {
  Note("create", path);
  std::optional<ContentPath> split = SplitContentPath(path, base_directory_);
  if (!split || !CanStand(*split) || Fails("open") || Fails("rename")) return nullptr;
  File* old = Find(*split);
  File& file = old == nullptr ? Add(*split) : *old;
  file.bytes = std::make_shared<std::string>();
  return std::make_unique<Lines>(*this, file);
}

bool MemoryFileSystem::Put(std::string_view path, std::string_view text) {
  ContentPath split = SplitLoosely(path);
  if (split.empty() || !CanStand(split)) return false;
  File* old = Find(split);
  bool same_name = old != nullptr && old->path == split;
  (same_name ? *old : Add(split)).bytes = std::make_shared<std::string>(text);
  return true;
}

std::optional<std::string> MemoryFileSystem::Get(std::string_view path) const {
  ContentPath split = SplitLoosely(path);
  const File* file = split.empty() ? nullptr : Find(split);
  return file == nullptr ? std::nullopt : std::optional(*file->bytes);
}

std::vector<std::string> MemoryFileSystem::Paths() const {
  std::vector<std::string> paths;
  for (const auto& [key, namesakes] : files_) {
    for (const File& file : namesakes) {
      paths.push_back(base_directory_ + Joined(file.path, file.path.size()));
    }
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

bool MemoryFileSystem::Fails(quendle::Operation operation) {
  return faults_ != nullptr && faults_->Fails(operation);
}

bool MemoryFileSystem::FailsBeforeRename() {
  return Fails("open") || Fails("write") || Fails("writepart") || Fails("flush") || Fails("rename");
}

void MemoryFileSystem::Note(const char* operation, std::string_view path) {
  if (recording_) operations_.push_back({operation, std::string(path)});
}

ContentPath MemoryFileSystem::SplitLoosely(std::string_view path) const {
  std::optional<ContentPath> split = SplitContentPath(path, base_directory_);
  if (!split) split = SplitContentPath(path, "");
  return split.value_or(ContentPath());
}

const MemoryFileSystem::File* MemoryFileSystem::Find(const ContentPath& path) const {
  auto found = files_.find(KeyOf(path));
  if (found == files_.end()) return nullptr;
  const File* nearest = &found->second.front();
  for (const File& file : found->second) {
    if (IsNearer(path, file.path, nearest->path)) nearest = &file;
  }
  return nearest;
}

MemoryFileSystem::File& MemoryFileSystem::Add(const ContentPath& path) {
  for (std::size_t count = 1; count < path.size(); ++count) folders_.insert(KeyOf(path, count));
  return files_[KeyOf(path)].emplace_back(File{path, nullptr});
}

// A file can't stand where a folder stands, nor below a file.
bool MemoryFileSystem::CanStand(const ContentPath& path) const {
  if (folders_.contains(KeyOf(path))) return false;
  for (std::size_t count = 1; count < path.size(); ++count) {
    if (files_.contains(KeyOf(path, count))) return false;
  }
  return true;
}

}  // namespace quendle
