#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/TextStream.h"

namespace quendle {

class FileSystem;
struct Settings;

enum class OpenMode { kRead = 1, kWrite = 2 };

// Text files of the content tree and of the settings. All paths are full.
class ContentFiles {
 public:
  // Both must outlive this object.
  ContentFiles(FileSystem& files, const Settings& settings) : files_(files), settings_(settings) {}

  bool FileExistsAt(const std::string& path) const;

  // Deletes the file if it exists; a file that can't be deleted is fatal.
  void DeleteFileIfPresent(const std::string& path) const;

  // Opens for reading, or for writing a file that replaces any old one. Without `create` a file
  // that is missing is fatal, with the box "File PATH not found".
  std::unique_ptr<TextStream> OpenTextFileChecked(const std::string& path, OpenMode mode,
                                                  bool create) const;

  // Writes a file of one line; fatal when that fails.
  void WriteOneLine(const std::string& path, std::string_view line) const;

  // Copies a whole file over another; a missing source or a failed write is fatal.
  void CopyFile(const std::string& from, const std::string& to) const;

  // "Info\door.txt" of a full path: what messages call the file.
  std::string DisplayName(std::string_view path) const;

  const std::string& BaseDirectory() const;

 private:
  std::string ReadExisting(const std::string& path) const;

  FileSystem& files_;
  const Settings& settings_;
};

}  // namespace quendle
