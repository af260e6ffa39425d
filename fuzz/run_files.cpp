// Runs a fuzz target over files: each argument is a file, or a folder whose files are all run. So
// a corpus is a test with any compiler.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Fuzz.h"

namespace {

int RunFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::fprintf(stderr, "can't be read: %s\n", path.c_str());
    return 0;
  }
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  std::fprintf(stderr, "%s\n", path.c_str());  // told first: it may be the last
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  int files = 0;
  for (int i = 1; i < argc; ++i) {
    const std::filesystem::path path = argv[i];
    if (!std::filesystem::is_directory(path)) {
      files += RunFile(path);
      continue;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
      if (entry.is_regular_file()) files += RunFile(entry.path());
    }
  }
  std::printf("%d files\n", files);
  return files > 0 ? 0 : 1;
}
