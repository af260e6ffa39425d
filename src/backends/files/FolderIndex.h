#pragma once

#include <ctime>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quendle {

// Knows the names in the folders of one tree, so that a lookup without regard to case costs one
// hash probe a component and no look at the disk. A folder is read when it is first needed, and
// again when a name is missing and the folder has changed since.
//
// Only regular files, folders and links to such inside the tree are known. Folders whose names
// differ by case only count as one; an exact match comes first, then the order of the letters.
class FolderIndex {
 public:
  // `root`: native path of the tree's folder, which need not exist yet.
  explicit FolderIndex(std::string root) : root_(std::move(root)) {}

  const std::string& Root() const { return root_; }
  // What a lookup gave: the native path below the root, free of links, or the system's error.
  struct Found {
    std::string path;
    int error = 0;
    explicit operator bool() const { return error == 0; }
  };
  // The file of that path. An error that doesn't mean that it is missing leaves open whether there
  // is one: a folder on the way couldn't be read.
  Found FindFile(std::span<const std::string> path);
  // The same for a folder; the empty path is the root.
  Found FindFolder(std::span<const std::string> path);
  // Names of unfinished temporary files seen in a folder (native path below the root).
  const std::vector<std::string>& Leftovers(const std::string& folder);

  // A file of that native name stands in the folder from now on, or no longer.
  void NoteFile(const std::string& folder, const std::string& name);
  void NoteRemoved(const std::string& folder, const std::string& name);
  // Drops all that is known: the disk has shown that it is stale.
  void Forget() { folders_.clear(); }

  // Begins the names of temporary files, which no lookup finds.
  static constexpr std::string_view kTemporaryPrefix = ".unfinished-";

 private:
  struct Entry {
    std::string name;  // as content writes it
    std::string disk_name;
    std::string real;  // native path below the root
    bool is_folder = false;
    int error = 0;  // of a link that can't be followed: what it leads to isn't known
  };
  using Namesakes = std::shared_ptr<const std::vector<Entry>>;  // shared: a walk outlives a reread
  struct Folder {
    std::unordered_map<std::string, Namesakes> entries;  // by name in small letters
    std::vector<std::string> leftovers;
    int error = 0;  // of the reading: there may be more names than are known
    timespec changed{};
    bool settled = false;  // the time of change would differ after one more change
  };

  Found Find(const std::string& folder, std::span<const std::string> path, bool want_folder);
  Found FindAmong(const std::vector<Entry>& namesakes, std::span<const std::string> path,
                  bool want_folder);
  Folder& Known(const std::string& folder);
  bool HasChanged(const std::string& folder, const Folder& known) const;
  Folder ReadFolder(const std::string& folder) const;
  std::optional<Entry> Classify(int folder_number, const std::string& folder,
                                const std::string& name, unsigned char type) const;
  std::optional<Entry> FollowLink(Entry entry) const;

  std::string root_;
  std::unordered_map<std::string, Folder> folders_;  // by native path below the root
};

// "folder/name", or the name alone in the root.
std::string NativeJoin(const std::string& folder, const std::string& name);

}  // namespace quendle
