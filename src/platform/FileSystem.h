#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quendle {

// A text file that grows line by line; each line reaches the disk before WriteLine returns.
class LineWriter {
 public:
  virtual ~LineWriter() = default;
  // False when the line could not be written.
  virtual bool WriteLine(std::string_view line) = 0;
};

// The bytes of a file that was read, or nothing: without a reason it is missing; with one it may
// well be there, and whoever would take it for missing could overwrite it.
struct FileAnswer : std::optional<std::string> {
  FileAnswer() = default;
  FileAnswer(std::string bytes) : optional(std::move(bytes)) {}  // NOLINT: they are the answer
  static FileAnswer Error(std::string reason) {
    FileAnswer answer;
    answer.reason = std::move(reason);
    return answer;
  }
  bool IsMissing() const { return !has_value() && reason.empty(); }

  std::string reason;  // why it can't be read, in the words of the system
};

// How a change of the disk went.
struct FileChange {
  static FileChange Done() { return {}; }
  static FileChange Failed(std::string reason) { return {std::move(reason)}; }
  explicit operator bool() const { return reason.empty(); }

  std::string reason;  // why it failed, in the words of the system
};

// All files of the game. Paths are full: the base directory, then components parted by
// backslashes. Lookups ignore case, component by component, an exact match first. A path that
// leaves the tree ("..", a drive letter, a link that leads out) or names a pipe, device or folder
// is a missing file.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  // False for a missing file only: one that can't be looked at counts as there.
  virtual bool Exists(std::string_view path) = 0;
  // The whole file.
  virtual FileAnswer Read(std::string_view path) = 0;
  // Replaces or creates the file as a whole: after a failure or a crash the old file or the new
  // one is there, never a part.
  virtual FileChange Write(std::string_view path, std::string_view bytes) = 0;
  // Deletes the file; a missing one is none the less done.
  virtual FileChange Remove(std::string_view path) = 0;
  // An empty new file in place of any old one; nothing when it can't be made.
  virtual std::unique_ptr<LineWriter> CreateLineFile(std::string_view path) = 0;
};

}  // namespace quendle
