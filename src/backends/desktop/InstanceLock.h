#pragma once

#include <filesystem>
#include <string>
#include <utility>

namespace quendle {

// A lock that one process of the machine's user holds at a time; the system frees it when the
// process ends, however it ends.
class InstanceLock {
 public:
  explicit InstanceLock(std::filesystem::path file) : file_(std::move(file)) {}
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // False when another holder has it. A file that can't be made locks nobody out.
  bool Take();
  const std::filesystem::path& File() const { return file_; }

 private:
  std::filesystem::path file_;
  int descriptor_ = -1;
};

// The lock file of a program: in the folder for the session's run time data, else in `fallback`.
std::filesystem::path LockFileOf(const std::string& program, const std::filesystem::path& fallback);

}  // namespace quendle
