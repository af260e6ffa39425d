#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/TextStream.h"
#include "base/UnsavedFiles.h"
#include "platform/FileSystem.h"

namespace quendle {

struct Settings;

enum class OpenMode { kRead = 1, kWrite = 2 };

// Text files of the content tree and of the player. All paths are full. What the disk refuses is
// told to the event log.
class ContentFiles {
 public:
  // Both must outlive this object.
  ContentFiles(FileSystem& files, const Settings& settings)
      : files_(files), settings_(settings), unsaved_(std::make_unique<UnsavedFiles>(files)) {}

  // False for a missing file only.
  bool FileExistsAt(const std::string& path) const;

  // The whole file; an error is told to the log.
  FileAnswer Read(const std::string& path) const;

  // Deletes the file if it exists; a file that can't be deleted is fatal.
  void DeleteFileIfPresent(const std::string& path) const;
  // The same, but false when it can't be deleted.
  bool TryDelete(const std::string& path) const;

  // Opens for reading, or for writing a file that replaces any old one. Without `create` a file
  // that is missing is fatal, with the box "File PATH not found".
  std::unique_ptr<TextStream> OpenTextFileChecked(const std::string& path, OpenMode mode,
                                                  bool create) const;

  // A file of the player, whole or opened for reading; nothing when it is missing. One that can't
  // be read is fatal: taken for missing, it would be overwritten.
  std::optional<std::string> ReadPlayerFile(const std::string& path) const;
  std::unique_ptr<TextStream> OpenPlayerFile(const std::string& path) const;

  // Replaces the file. False when the disk refuses.
  bool TryWrite(const std::string& path, std::string_view bytes) const;

  // Writes a small file, of one line for the second; what the disk refuses is kept in memory, as
  // if it stood on the disk, and tried again later.
  void KeepFile(const std::string& path, std::string_view bytes) const;
  void WriteOneLine(const std::string& path, std::string_view line) const;

  // Copies a whole file over another; a missing source or a failed write is fatal.
  void CopyFile(const std::string& from, const std::string& to) const;
  // The same for a small file, which is written as KeepFile does.
  void KeepCopy(const std::string& from, const std::string& to) const;

  // Whether the disk has not taken all that was kept.
  bool HasUnsaved() const { return !unsaved_->Empty(); }
  // Tells the log of something damaged that play goes on without.
  void NoteDamage(const std::string& what) const { unsaved_->Tell(what); }
  // Where this tells what the disk refuses; null while there is no log.
  void SetLog(EventSink* log) const { unsaved_->SetLog(log); }

  // "Info\door.txt" of a full path: what messages call the file.
  std::string DisplayName(std::string_view path) const;

  const std::string& BaseDirectory() const;

 private:
  std::string ReadExisting(const std::string& path) const;

  FileSystem& files_;
  const Settings& settings_;
  std::unique_ptr<UnsavedFiles> unsaved_;
};

}  // namespace quendle
