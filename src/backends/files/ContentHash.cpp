#include "backends/files/ContentHash.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <system_error>

#include "base/TextHash.h"

namespace quendle {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPiece = 65536;

void AddFile(TextHash& hash, const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::array<char, kPiece> piece{};
  while (stream) {
    stream.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    hash.Add({piece.data(), static_cast<std::size_t>(stream.gcount())});
  }
}

// Files below a folder by their path in it, in the order of the letters.
std::map<std::string, fs::path> FilesBelow(const fs::path& folder) {
  std::map<std::string, fs::path> files;
  std::error_code error;
  for (fs::recursive_directory_iterator entry(folder, error), end; entry != end;
       entry.increment(error)) {
    const bool hidden = entry->path().filename().string().starts_with('.');
    if (hidden && entry->is_directory(error)) entry.disable_recursion_pending();
    if (hidden || entry.depth() == 0 || !entry->is_regular_file(error)) continue;
    files[entry->path().lexically_relative(folder).generic_string()] = entry->path();
  }
  return files;
}

}  // namespace

std::string HashOfContent(const std::string& folder) {
  TextHash hash;
  for (const auto& [name, path] : FilesBelow(folder)) {
    hash.Add(name + "\n");
    AddFile(hash, path);
  }
  return hash.Digits();
}

}  // namespace quendle
