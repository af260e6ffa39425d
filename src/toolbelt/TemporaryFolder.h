#pragma once

#include <string>

namespace quendle {

// A new folder of its own that goes, with all that is in it, when this object goes. Throws
// std::runtime_error when none can be made.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace quendle
