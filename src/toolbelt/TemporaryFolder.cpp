#include "toolbelt/TemporaryFolder.h"

#include <cstdlib>

#include <filesystem>
#include <stdexcept>

namespace quendle {

TemporaryFolder::TemporaryFolder()
    : path_((std::filesystem::temp_directory_path() / "quendle-XXXXXX").string()) {
  if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error(path_ + ": can't be made");
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;  // what can't be removed stays for the system to clear
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace quendle
