#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "backends/files/ContentPath.h"
#include "platform/Faults.h"
#include "platform/FileSystem.h"

namespace quendle {

// A content tree in memory, with the rules of the disk: case, refused paths, failing operations.
// A copy is independent of its source, shares the bytes until one of the two writes, and is cheap.
//
//   MemoryFileSystem files;
//   files.Put("\\Info\\screens.txt", "hall\r\n\\Info\\hall.txt\r\n");
class MemoryFileSystem : public FileSystem {
 public:
  struct Operation {
    std::string name;  // "exists", "read", "write", "remove", "create" or "line"
    std::string path;  // as it was asked for
    friend bool operator==(const Operation&, const Operation&) = default;
  };

  // `base_directory` stands in front of all paths; `faults`, if any, is asked as by the disk
  // ("read", "open", "write", "writepart", "flush", "rename", "flushfolder", "remove",
  // "writeline") and must outlive this object and its copies.
  explicit MemoryFileSystem(std::string base_directory = "", Faults* faults = nullptr)
      : base_directory_(std::move(base_directory)), faults_(faults) {}

  bool Exists(std::string_view path) override;
  FileAnswer Read(std::string_view path) override;
  FileChange Write(std::string_view path, std::string_view bytes) override;
  FileChange Remove(std::string_view path) override;
  std::unique_ptr<LineWriter> CreateLineFile(std::string_view path) override;

  // Places a file under exactly this name, past all faults; the base directory may be left out. A
  // file whose name differs by case stays beside it. False for a path that is refused or in the
  // way of another.
  bool Put(std::string_view path, std::string_view text);
  // The file that a reader would get, past all faults; the base directory may be left out.
  std::optional<std::string> Get(std::string_view path) const;
  // Full paths of all files, in the order of their letters.
  std::vector<std::string> Paths() const;

  // From now on (or no longer) the operations are listed.
  void Record(bool on) { recording_ = on; }
  const std::vector<Operation>& Operations() const { return operations_; }
  void ForgetOperations() { operations_.clear(); }

 private:
  class Lines;
  struct File {
    ContentPath path;
    std::shared_ptr<std::string> bytes;  // shared with copies: changed only when it is ours alone
  };
  // Files whose paths differ by case only.
  using Namesakes = std::vector<File>;

  bool Fails(quendle::Operation operation);
  bool FailsBeforeRename();
  void Note(const char* operation, std::string_view path);
  ContentPath SplitLoosely(std::string_view path) const;
  const File* Find(const ContentPath& path) const;
  File* Find(const ContentPath& path) { return const_cast<File*>(std::as_const(*this).Find(path)); }
  File& Add(const ContentPath& path);
  bool CanStand(const ContentPath& path) const;

  std::string base_directory_;
  Faults* faults_;
  std::unordered_map<std::string, Namesakes> files_;  // by the whole path in small letters
  std::unordered_set<std::string> folders_;           // the same for folders
  bool recording_ = false;
  std::vector<Operation> operations_;
};

}  // namespace quendle
