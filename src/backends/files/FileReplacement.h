#pragma once

#include <string>
#include <string_view>

#include "backends/files/Descriptor.h"
#include "backends/files/DiskSteps.h"

namespace quendle {

// A new file that takes the place of an old one in one step: a temporary file in the same folder,
// renamed over the old file when it is whole. Dropped before that, it leaves the old file and no
// trace. Each operation gives false on failure and then must be the last.
class FileReplacement {
 public:
  // `folder`: the folder that holds the file; `name`: the file's native name there.
  FileReplacement(DiskSteps& steps, const Descriptor& folder, std::string name);
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  bool Open();
  bool Append(std::string_view bytes);
  // To the disk, not only to the system.
  bool Flush();
  bool Rename();
  bool FlushFolder();
  // The new file, open for writing.
  Descriptor TakeFile() { return std::move(file_); }

 private:
  DiskSteps& steps_;
  const Descriptor& folder_;
  std::string name_;
  std::string temporary_;
  Descriptor file_;
  bool standing_ = false;  // the temporary file is there
};

// Writes all bytes, in as many calls as the system wants; false on failure.
bool WriteWhole(const Descriptor& file, std::string_view bytes);

// Brings a file or folder to the disk; true where a file system has no such operation.
bool FlushToDisk(const Descriptor& file);

}  // namespace quendle
