#include "backends/files/FolderIndex.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "backends/files/Descriptor.h"
#include "backends/files/DiskNames.h"
#include "base/Text.h"

namespace quendle {
namespace {

// Times of change are only as fine as the system's tick: a folder that changed a moment before it
// was read may change again without a new time.
constexpr double kSettlingSeconds = 0.1;

bool IsSame(const timespec& a, const timespec& b) {
  return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

bool IsSettled(const timespec& changed) {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  double age = static_cast<double>(now.tv_sec - changed.tv_sec) +
               static_cast<double>(now.tv_nsec - changed.tv_nsec) * 1e-9;
  return age > kSettlingSeconds;
}

struct CloseListing {
  void operator()(DIR* listing) const { closedir(listing); }
};

// Nothing with errno when the path leads nowhere.
std::optional<std::string> RealPath(const std::string& path) {
  std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
  return real ? std::optional<std::string>(real.get()) : std::nullopt;
}

// What lies behind an error is missing, or it can't be told.
bool IsOpen(int error) { return error != 0 && !MeansMissing(error); }

unsigned char TypeOf(mode_t mode) {
  if (S_ISREG(mode)) return DT_REG;
  return S_ISDIR(mode) ? DT_DIR : DT_UNKNOWN;
}

template <class Entries>
void SortByName(Entries& entries) {
  std::sort(entries.begin(), entries.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
}

}  // namespace

std::string NativeJoin(const std::string& folder, const std::string& name) {
  return folder.empty() ? name : folder + "/" + name;
}

FolderIndex::Found FolderIndex::FindFile(std::span<const std::string> path) {
  return Find("", path, false);
}

FolderIndex::Found FolderIndex::FindFolder(std::span<const std::string> path) {
  if (path.empty()) return {};
  return Find("", path, true);
}

const std::vector<std::string>& FolderIndex::Leftovers(const std::string& folder) {
  return Known(folder).leftovers;
}

FolderIndex::Found FolderIndex::Find(const std::string& folder, std::span<const std::string> path,
                                     bool want_folder) {
  const std::string key = FoldCase(path.front());
  Folder* known = &Known(folder);
  for (bool again = false;; again = true) {
    auto found = known->entries.find(key);
    if (found != known->entries.end()) {
      Namesakes namesakes = found->second;
      Found real = FindAmong(*namesakes, path, want_folder);
      if (real || IsOpen(real.error)) return real;
    }
    known = &Known(folder);
    if (again) return {"", IsOpen(known->error) ? known->error : ENOENT};
    if (!IsOpen(known->error) && !HasChanged(folder, *known)) return {"", ENOENT};
    *known = ReadFolder(folder);
  }
}

// Tries the exact name, then the others: a folder that lacks the rest of the path isn't the end.
FolderIndex::Found FolderIndex::FindAmong(const std::vector<Entry>& namesakes,
                                          std::span<const std::string> path, bool want_folder) {
  const bool last = path.size() == 1;
  for (bool exact : {true, false}) {
    for (const Entry& entry : namesakes) {
      if ((entry.name == path.front()) != exact) continue;
      if (entry.error != 0) return {"", entry.error};
      if (entry.is_folder != (!last || want_folder)) continue;
      if (last) return {entry.real};
      Found real = Find(entry.real, path.subspan(1), want_folder);
      if (real || IsOpen(real.error)) return real;
    }
  }
  return {"", ENOENT};
}

FolderIndex::Folder& FolderIndex::Known(const std::string& folder) {
  auto [place, is_new] = folders_.try_emplace(folder);
  if (is_new) place->second = ReadFolder(folder);
  return place->second;
}

bool FolderIndex::HasChanged(const std::string& folder, const Folder& known) const {
  struct stat status {};
  if (stat(NativeJoin(root_, folder).c_str(), &status) != 0) {
    return !known.entries.empty() || IsOpen(errno);
  }
  return !known.settled || !IsSame(status.st_mtim, known.changed);
}

FolderIndex::Folder FolderIndex::ReadFolder(const std::string& folder) const {
  Folder result;
  Descriptor opened = OpenBelow(root_, folder, O_RDONLY | O_DIRECTORY);
  struct stat status {};
  if (!opened || fstat(opened.Number(), &status) != 0) {
    result.error = errno;
    return result;
  }
  result.changed = status.st_mtim;
  result.settled = IsSettled(status.st_mtim);
  std::unique_ptr<DIR, CloseListing> listing(fdopendir(opened.Number()));
  if (!listing) {
    result.error = errno;
    return result;
  }
  opened.Release();  // the listing closes it

  std::unordered_map<std::string, std::vector<Entry>> entries;
  while (true) {
    errno = 0;
    const dirent* item = readdir(listing.get());
    if (item == nullptr) break;
    const std::string name = item->d_name;
    if (name == "." || name == "..") continue;
    if (name.starts_with(kTemporaryPrefix)) {
      result.leftovers.push_back(name);
    } else if (auto entry = Classify(dirfd(listing.get()), folder, name, item->d_type)) {
      entries[FoldCase(entry->name)].push_back(std::move(*entry));
    }
  }
  result.error = errno;
  for (auto& [key, namesakes] : entries) {
    SortByName(namesakes);
    result.entries.emplace(key, std::make_shared<const std::vector<Entry>>(std::move(namesakes)));
  }
  return result;
}

// Nothing for what isn't a file or folder of the tree.
std::optional<FolderIndex::Entry> FolderIndex::Classify(int folder_number,
                                                        const std::string& folder,
                                                        const std::string& name,
                                                        unsigned char type) const {
  Entry entry{ContentName(name), name, NativeJoin(folder, name)};
  if (type == DT_UNKNOWN) {  // some file systems leave it to us to ask
    struct stat status {};
    if (fstatat(folder_number, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
      if (!IsOpen(errno)) return std::nullopt;
      entry.error = errno;
      return entry;
    }
    type = S_ISLNK(status.st_mode) ? static_cast<unsigned char>(DT_LNK) : TypeOf(status.st_mode);
  }
  if (type == DT_LNK) return FollowLink(std::move(entry));
  if (type != DT_REG && type != DT_DIR) return std::nullopt;
  entry.is_folder = type == DT_DIR;
  return entry;
}

std::optional<FolderIndex::Entry> FolderIndex::FollowLink(Entry entry) const {
  std::optional<std::string> root = RealPath(root_);
  std::optional<std::string> target;
  if (root) target = RealPath(NativeJoin(root_, entry.real));
  struct stat status {};
  if (!target || lstat(target->c_str(), &status) != 0) {
    if (!IsOpen(errno)) return std::nullopt;
    entry.error = errno;
    return entry;
  }
  if (!root->ends_with('/')) *root += '/';
  if (!target->starts_with(*root) || TypeOf(status.st_mode) == DT_UNKNOWN) return std::nullopt;
  entry.real = target->substr(root->size());
  entry.is_folder = S_ISDIR(status.st_mode);
  return entry;
}

void FolderIndex::NoteFile(const std::string& folder, const std::string& name) {
  NoteRemoved(folder, name);
  Entry entry{ContentName(name), name, NativeJoin(folder, name)};
  Namesakes& namesakes = Known(folder).entries[FoldCase(entry.name)];
  std::vector<Entry> changed = namesakes ? *namesakes : std::vector<Entry>();
  changed.push_back(std::move(entry));
  SortByName(changed);
  namesakes = std::make_shared<const std::vector<Entry>>(std::move(changed));
}

void FolderIndex::NoteRemoved(const std::string& folder, const std::string& name) {
  Folder& known = Known(folder);
  auto found = known.entries.find(FoldCase(ContentName(name)));
  if (found == known.entries.end()) return;
  std::vector<Entry> left = *found->second;
  std::erase_if(left, [&](const Entry& entry) { return entry.disk_name == name; });
  if (left.empty()) {
    known.entries.erase(found);
  } else {
    found->second = std::make_shared<const std::vector<Entry>>(std::move(left));
  }
}

}  // namespace quendle
