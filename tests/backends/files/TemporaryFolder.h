#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <system_error>

namespace quendle {

// A folder of the disk that ends with the test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "quendle-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
    std::filesystem::permissions(path_, std::filesystem::perms(0755));
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& Path() const { return path_; }
  std::string operator/(const std::string& relative) const { return path_ + "/" + relative; }

  void Put(const std::string& relative, const std::string& text) const {
    std::filesystem::path file = path_ + "/" + relative;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
  }
  std::string Get(const std::string& relative) const {
    std::ifstream file(path_ + "/" + relative, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  bool Has(const std::string& relative) const {
    return std::filesystem::exists(std::filesystem::symlink_status(path_ + "/" + relative));
  }
  // Names in a folder.
  std::set<std::string> Names(const std::string& relative = "") const {
    std::set<std::string> names;
    for (const auto& item : std::filesystem::directory_iterator(path_ + "/" + relative)) {
      names.insert(item.path().filename().string());
    }
    return names;
  }

 private:
  std::string path_;
};

}  // namespace quendle
