#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "backends/files/ContentPath.h"
#include "backends/files/Descriptor.h"
#include "backends/files/DiskSteps.h"
#include "backends/files/FolderIndex.h"
#include "platform/FileSystem.h"

namespace quendle {

// The files of one folder tree of the disk, by content path. Nothing outside the tree is read or
// written.
class DiskTree {
 public:
  // `root`: native path, which is made when the first file is written; `steps` must outlive the
  // tree and its line writers.
  DiskTree(std::string root, DiskSteps& steps) : index_(std::move(root)), steps_(steps) {}

  // 0 when a regular file is there, readable or not; else the system's error, which need not mean
  // that it is missing.
  int Look(const ContentPath& path);
  // The whole file; one that is larger than 256 MB is an error.
  FileAnswer Read(const ContentPath& path);
  // Replaces or creates the file as a whole, with the folders it needs.
  FileChange Write(const ContentPath& path, std::string_view bytes);
  // Deletes the file if it exists.
  FileChange Remove(const ContentPath& path);
  std::unique_ptr<LineWriter> CreateLineFile(const ContentPath& path);
  // False when the folder is there and the system keeps us from writing into it.
  bool IsWritable() const;

 private:
  // Where a file stands or will stand, as native names.
  struct Spot {
    std::string folder;  // below the root
    std::string name;
  };
  struct Opened {
    Descriptor file;
    int error = 0;
  };
  Opened OpenFile(const ContentPath& path, int flags);
  int Replace(const ContentPath& path, std::string_view bytes);
  int Delete(const ContentPath& path);
  // Both give nothing with errno when it can't be had.
  std::optional<Spot> SpotFor(const ContentPath& path);
  std::optional<std::string> MakeFolders(std::span<const std::string> path);
  bool MakeFolder(const std::string& parent, const std::string& name);
  void ClearLeftovers(const Descriptor& folder, const std::string& path);

  FolderIndex index_;
  DiskSteps& steps_;
};

}  // namespace quendle
