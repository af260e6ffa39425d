#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quendle {

// The names of all files of a content tree, and which of them something has asked for. Paths begin
// with a backslash and are parted by backslashes.
class ContentListing {
 public:
  explicit ContentListing(const std::vector<std::string>& paths);

  // All files below a folder of the disk.
  static ContentListing OfFolder(const std::string& folder);
  // Folders that can't be read: what is in them isn't known.
  const std::vector<std::string>& Closed() const { return closed_; }

  // Names of the file at `path` on the disk, case ignored; none when there is no such file, more
  // than one when names differ only in case.
  const std::vector<std::string>& NamesOf(std::string_view path) const;
  // The same file as the disk writes it: the exact name, or else the first.
  std::string OnDisk(std::string_view path) const;
  // The file is there, and from now on known to be of use.
  bool Use(std::string_view path);
  std::vector<std::string> Unused() const;
  // The names of all files that share their name with another, but for case.
  std::vector<std::vector<std::string>> CaseTwins() const;
  // Full paths of the files in the same folder: for the nearest name.
  std::vector<std::string> Beside(std::string_view path) const;
  std::size_t Count() const { return files_.size(); }
  std::vector<std::string> All() const;

 private:
  struct File {
    std::vector<std::string> names;
    bool used = false;
  };
  std::map<std::string, File> files_;  // by path in small letters
  std::vector<std::string> closed_;
};

}  // namespace quendle
