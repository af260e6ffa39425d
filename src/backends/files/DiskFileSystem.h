#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "backends/files/DiskSteps.h"
#include "backends/files/DiskTree.h"
#include "platform/FileSystem.h"

namespace quendle {

struct DiskFolders {
  // The content tree: native absolute path, which begins every full path of the game.
  std::string base;
  // Where everything is written and where reads look first; empty: the content tree itself.
  std::string user;
  // Takes the place of an empty `user` when the content tree can't be written (an installed
  // package, a CD); empty: then writes fail.
  std::string fallback;
};

// The player's own folder of an application: $XDG_DATA_HOME/NAME, else $HOME/.local/share/NAME;
// empty when neither variable holds an absolute path.
std::string PlayerFolder(const std::string& name);

// The content tree on the disk. The player's folder, where there is one, lies over it: it mirrors
// the tree's folders and holds what was written. A file of the tree that was removed is kept from
// the readers by an empty file of the same path below ".removed" there; the tree stays as it is.
//
// Names on the disk are UTF-8, names in content are 8-bit. Whether the tree can be written is
// asked once, at construction.
//
// Operations that can be made to fail: "probe" (the tree counts as one that can't be written),
// "read", "makefolder", "open", "write", "writepart" (half of a piece is written, then it fails),
// "flush", "rename", "flushfolder" (the new file stands already), "remove", "writeline".
class DiskFileSystem : public FileSystem {
 public:
  // `faults` must outlive this object; this object must outlive its line writers.
  DiskFileSystem(const DiskFolders& folders, Faults& faults);
  DiskFileSystem(const DiskFileSystem&) = delete;
  DiskFileSystem& operator=(const DiskFileSystem&) = delete;

  bool Exists(std::string_view path) override;
  FileAnswer Read(std::string_view path) override;
  FileChange Write(std::string_view path, std::string_view bytes) override;
  FileChange Remove(std::string_view path) override;
  std::unique_ptr<LineWriter> CreateLineFile(std::string_view path) override;

  // Native path of the folder that takes the writes.
  const std::string& WriteFolder() const { return write_folder_; }
  // Calls `watcher` before every step that changes the disk.
  void WatchSteps(DiskSteps::Watcher watcher) { steps_.Watch(std::move(watcher)); }

 private:
  std::optional<ContentPath> Split(std::string_view path) const;
  DiskTree& WriteTree() { return player_ ? *player_ : content_; }
  // As DiskTree::Look, of the player's folder alone and of the mark that hides the tree's file.
  int LookAtPlayers(const ContentPath& path);
  int LookAtMarker(const ContentPath& path);

  Faults& faults_;
  DiskSteps steps_;
  std::string base_;
  std::string write_folder_;
  DiskTree content_;
  std::optional<DiskTree> player_;
};

}  // namespace quendle
