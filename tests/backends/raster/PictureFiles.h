// Pictures for tests: files in memory, and bitmaps drawn as text.
#pragma once

#include <cctype>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "backends/raster/BitmapWriter.h"
#include "platform/FileSystem.h"

namespace quendle {

// Files by full path, case ignored.
class PictureFiles : public FileSystem {
 public:
  void Put(const std::string& path, std::string bytes) { files_[Fold(path)] = std::move(bytes); }

  bool Exists(std::string_view path) override { return files_.contains(Fold(path)); }
  FileAnswer Read(std::string_view path) override {
    auto found = files_.find(Fold(path));
    if (found == files_.end()) return FileAnswer();
    return found->second;
  }
  FileChange Write(std::string_view path, std::string_view bytes) override {
    files_[Fold(path)] = std::string(bytes);
    return FileChange::Done();
  }
  FileChange Remove(std::string_view path) override {
    files_.erase(Fold(path));
    return FileChange::Done();
  }
  std::unique_ptr<LineWriter> CreateLineFile(std::string_view) override { return nullptr; }

 private:
  static std::string Fold(std::string_view path) {
    std::string folded(path);
    for (char& c : folded) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return folded;
  }
  std::map<std::string, std::string> files_;
};

// The word of a letter: 'k' is the key colour 200,200,200; others have colours of their own, all of
// which survive a 5-6-5 surface.
inline std::uint32_t WordOfLetter(char letter) {
  switch (letter) {
    case 'k':
      return 0xC8C8C8;
    case 'r':
      return 0xFF0000;
    case 'g':
      return 0x00FF00;
    case 'b':
      return 0x0000FF;
    case 'w':
      return 0xFFFFFF;
    default:
      return 0;
  }
}

inline std::vector<std::uint32_t> WordsOfRows(const std::vector<std::string>& rows) {
  std::vector<std::uint32_t> words;
  for (const std::string& row : rows) {
    for (char letter : row) words.push_back(WordOfLetter(letter));
  }
  return words;
}

// A 24-bit bitmap file of rows of letters.
inline std::string Drawn(const std::vector<std::string>& rows) {
  return WriteBitmapFile(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()),
                         WordsOfRows(rows).data());
}

inline std::string Filled(int width, int height, char letter) {
  return WriteBitmapFile(
      width, height,
      std::vector<std::uint32_t>(static_cast<std::size_t>(width) * height, WordOfLetter(letter))
          .data());
}

}  // namespace quendle
