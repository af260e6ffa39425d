#include "backends/desktop/FontFinder.h"

#include <array>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/Text.h"

namespace quendle {
namespace {

namespace fs = std::filesystem;

// Best first; the last of each list is a font of other metrics that most systems have.
constexpr std::array<std::string_view, 5> kRegular = {"arial.ttf", "LiberationSans-Regular.ttf",
                                                      "Arimo-Regular.ttf", "FreeSans.ttf",
                                                      "DejaVuSans.ttf"};
constexpr std::array<std::string_view, 6> kBold = {
    "arialbd.ttf",    "Arial_Bold.ttf",   "LiberationSans-Bold.ttf",
    "Arimo-Bold.ttf", "FreeSansBold.ttf", "DejaVuSans-Bold.ttf"};

bool IsFontFile(const fs::path& file) {
  std::string extension = FoldCase(file.extension().string());
  return extension == ".ttf" || extension == ".otf";
}

template <std::size_t N>
std::size_t RankOf(const std::array<std::string_view, N>& names, const std::string& name) {
  std::size_t rank = 0;
  while (rank < N && !EqualsNoCase(names[rank], name)) ++rank;
  return rank;
}

// Every regular file below a folder; a folder that can't be read holds none.
std::vector<fs::path> FilesBelow(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  fs::recursive_directory_iterator entries(folder, fs::directory_options::skip_permission_denied,
                                           error);
  for (; !error && entries != fs::recursive_directory_iterator(); entries.increment(error)) {
    std::error_code unreadable;
    if (entries->is_regular_file(unreadable)) files.push_back(entries->path());
  }
  return files;
}

}  // namespace

FontFinder::FontFinder(std::vector<fs::path> folders) : folders_(std::move(folders)) {
  std::size_t best_regular = kRegular.size();
  std::size_t best_bold = kBold.size();
  fs::path any;
  for (const fs::path& folder : folders_) {
    for (const fs::path& file : FilesBelow(folder)) {
      if (!IsFontFile(file)) continue;
      std::string name = file.filename().string();
      // Directory order differs between machines; the smallest path is the same on all.
      if (any.empty() || file < any) any = file;
      if (std::size_t rank = RankOf(kRegular, name); rank < best_regular) {
        best_regular = rank;
        regular_ = file;
      }
      if (std::size_t rank = RankOf(kBold, name); rank < best_bold) {
        best_bold = rank;
        bold_ = file;
      }
    }
  }
  if (regular_.empty()) regular_ = any;
  if (bold_.empty()) bold_ = regular_;
}

std::vector<fs::path> FontFinder::SystemFolders() {
  std::vector<fs::path> folders;
  const char* data_home = std::getenv("XDG_DATA_HOME");
  const char* home = std::getenv("HOME");
  if (data_home != nullptr && *data_home != '\0') {
    folders.push_back(fs::path(data_home) / "fonts");
  } else if (home != nullptr) {
    folders.push_back(fs::path(home) / ".local/share/fonts");
  }
  if (home != nullptr) folders.push_back(fs::path(home) / ".fonts");
  folders.push_back("/usr/local/share/fonts");
  folders.push_back("/usr/share/fonts");
  return folders;
}

}  // namespace quendle
