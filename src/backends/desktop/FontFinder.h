#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quendle {

// Finds the font files that serve as Arial: Arial itself, else one with the same metrics, else any
// plain font that is there.
class FontFinder {
 public:
  // Searches below `folders`, the earlier ones first among equals.
  explicit FontFinder(std::vector<std::filesystem::path> folders);

  // The folders where this system keeps fonts, the player's own first.
  static std::vector<std::filesystem::path> SystemFolders();

  // The font file, or an empty path when no font was found.
  const std::filesystem::path& Regular() const { return regular_; }
  // The bold face; the regular one when there is none.
  const std::filesystem::path& Bold() const { return bold_; }
  const std::vector<std::filesystem::path>& Folders() const { return folders_; }

 private:
  std::vector<std::filesystem::path> folders_;
  std::filesystem::path regular_;
  std::filesystem::path bold_;
};

}  // namespace quendle
