#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quendle {

class EventSink;
class FileSystem;

// What the disk refuses. Small files that it doesn't take are kept here for the rest of the run, as
// if they stood on the disk, and tried again with each later write. What went wrong is told to the
// event log, with the words of the system; lines wait until there is one.
class UnsavedFiles {
 public:
  // `files` must outlive this object.
  explicit UnsavedFiles(FileSystem& files) : files_(files) {}

  // Tries what was refused before, then this file. False when the disk refuses it.
  bool TryWrite(const std::string& path, const std::string& name, std::string_view bytes);
  // The same; a refused file is kept.
  void Keep(const std::string& path, const std::string& name, std::string_view bytes);
  // A kept file, or null.
  const std::string* Find(const std::string& path) const;
  void Forget(const std::string& path);
  bool Empty() const { return kept_.empty(); }

  // Tells that something can't be read, written or deleted: "NAME can't be WHAT: REASON".
  void Note(const std::string& name, const char* what, const std::string& reason) {
    Tell(name + " can't be " + what + ": " + reason);
  }
  void Tell(const std::string& line);
  // Null while there is no log.
  void SetLog(EventSink* log);

 private:
  struct File {
    std::string path;
    std::string bytes;
  };
  void TryAgain();

  FileSystem& files_;
  std::map<std::string, File> kept_;  // by path in small letters
  EventSink* log_ = nullptr;
  std::vector<std::string> waiting_;
};

}  // namespace quendle
