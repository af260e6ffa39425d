// Files that tests read from the disk.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace quendle {

// Native path of a file in tests/data, which lies above the folder that tests run in.
inline std::string TestDataPath(const std::string& name) {
  std::filesystem::path folder = std::filesystem::current_path();
  const std::filesystem::path file = std::filesystem::path("tests") / "data" / name;
  while (!std::filesystem::exists(folder / file) && folder.has_relative_path()) {
    folder = folder.parent_path();
  }
  return (folder / file).string();
}

inline std::string TestData(const std::string& name) {
  std::ifstream file(TestDataPath(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace quendle
