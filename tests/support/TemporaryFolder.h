#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace quendle {

// A folder for one test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "desktop-test-XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  void Make(const std::string& file, const std::string& text = "") const {
    std::filesystem::create_directories((path_ / file).parent_path());
    std::ofstream(path_ / file) << text;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace quendle
