#include "backends/desktop/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace quendle {

InstanceLock::~InstanceLock() {
  if (descriptor_ >= 0) close(descriptor_);
}

bool InstanceLock::Take() {
  if (descriptor_ >= 0) return true;
  std::error_code ignored;
  std::filesystem::create_directories(file_.parent_path(), ignored);
  descriptor_ = open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (descriptor_ < 0) return true;
  if (flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return true;
  bool held_by_another = errno == EWOULDBLOCK;
  close(descriptor_);
  descriptor_ = -1;
  return !held_by_another;
}

std::filesystem::path LockFileOf(const std::string& program,
                                 const std::filesystem::path& fallback) {
  const char* run_time = std::getenv("XDG_RUNTIME_DIR");
  std::error_code error;
  bool usable =
      run_time != nullptr && *run_time == '/' && std::filesystem::is_directory(run_time, error);
  return (usable ? std::filesystem::path(run_time) : fallback) / (program + ".lock");
}

}  // namespace quendle
