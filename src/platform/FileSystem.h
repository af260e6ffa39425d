#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quendle {

// A text file that grows line by line; each line reaches the disk before WriteLine returns.
class LineWriter {
 public:
  virtual ~LineWriter() = default;
  // False when the line could not be written.
  virtual bool WriteLine(std::string_view line) = 0;
};

// All files of the game. Paths are full: the base directory, then components parted by
// backslashes. Lookups ignore case, component by component, an exact match first. A path that
// leaves the tree ("..", a drive letter, a link that leads out) or names a pipe, device or folder
// is a missing file.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  virtual bool Exists(std::string_view path) = 0;
  // The whole file, or nothing when it is missing or can't be read.
  virtual std::optional<std::string> Read(std::string_view path) = 0;
  // Replaces or creates the file as a whole: after a failure or a crash the old file or the new
  // one is there, never a part. False on failure.
  virtual bool Write(std::string_view path, std::string_view bytes) = 0;
  // Deletes the file if it exists. False when it exists and could not be deleted.
  virtual bool Remove(std::string_view path) = 0;
  // An empty new file in place of any old one; nothing when it can't be made.
  virtual std::unique_ptr<LineWriter> CreateLineFile(std::string_view path) = 0;
};

}  // namespace quendle
