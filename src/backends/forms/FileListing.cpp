#include "backends/forms/FileListing.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <system_error>

#include "base/Text.h"

namespace quendle {
namespace {

namespace fs = std::filesystem;

// A folder with more than this is a folder nobody looks through.
constexpr std::size_t kMostListed = 5000;

bool FitsOne(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    return FitsOne(name, pattern.substr(1)) || (!name.empty() && FitsOne(name.substr(1), pattern));
  }
  return !name.empty() && FoldCase(name.front()) == FoldCase(pattern.front()) &&
         FitsOne(name.substr(1), pattern.substr(1));
}

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

fs::path HomeFolder() {
  const char* home = std::getenv("HOME");
  return home == nullptr || *home != '/' ? fs::path() : fs::path(home);
}

fs::path ConfigFolder(const fs::path& home) {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  return config == nullptr || *config != '/' ? home / ".config" : fs::path(config);
}

// The value of the line XDG_PICTURES_DIR="$HOME/Pictures".
fs::path NamedPicturesFolder(const fs::path& home) {
  constexpr std::string_view kStart = "XDG_PICTURES_DIR=\"";
  constexpr std::string_view kHome = "$HOME";
  std::ifstream file(ConfigFolder(home) / "user-dirs.dirs");
  std::string line;
  while (std::getline(file, line)) {
    if (!line.starts_with(kStart)) continue;
    std::string value = line.substr(kStart.size());
    value.resize(std::min(value.find('"'), value.size()));
    return value.starts_with(kHome) ? fs::path(home.string() + value.substr(kHome.size()))
                                    : fs::path(value);
  }
  return {};
}

}  // namespace

bool FitsPattern(const std::string& name, const std::string& patterns) {
  const std::vector<std::string> each = SplitTokens(patterns, ';');
  return std::any_of(each.begin(), each.end(),
                     [&](const std::string& pattern) { return FitsOne(name, pattern); });
}

std::vector<ListedFile> ListFolder(const fs::path& folder, const std::string& patterns) {
  std::vector<ListedFile> listed;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (name.starts_with('.') || listed.size() >= kMostListed) continue;
    const bool is_folder = IsFolder(entry->path());
    if (is_folder || FitsPattern(name, patterns)) listed.push_back({entry->path(), is_folder});
  }
  std::sort(listed.begin(), listed.end(), [](const ListedFile& a, const ListedFile& b) {
    if (a.folder != b.folder) return a.folder;
    return FoldCase(a.path.filename().string()) < FoldCase(b.path.filename().string());
  });
  if (folder.has_relative_path()) listed.insert(listed.begin(), {folder.parent_path(), true});
  return listed;
}

fs::path PicturesFolder() {
  const fs::path home = HomeFolder();
  if (home.empty()) return "/";
  const fs::path named = NamedPicturesFolder(home);
  for (const fs::path& folder : {named, home / "Pictures", home}) {
    if (folder.is_absolute() && IsFolder(folder)) return folder;
  }
  return "/";
}

}  // namespace quendle
