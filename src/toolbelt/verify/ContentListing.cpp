#include "toolbelt/verify/ContentListing.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "backends/files/DiskNames.h"
#include "base/Text.h"

namespace quendle {
namespace {

namespace fs = std::filesystem;

std::string ContentPathOf(const fs::path& relative) {
  std::string path;
  for (const fs::path& part : relative) path += "\\" + ContentName(part.string());
  return path;
}

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

// As the file system reads a path: slashes serve too, doubled separators count as one. A path that
// doesn't begin with a separator, or ends with one, is no file: the key of none.
std::string KeyOf(std::string_view path) {
  if (path.empty() || !IsSeparator(path.front()) || IsSeparator(path.back())) return "";
  std::string plain = FoldCase(path);
  std::ranges::replace(plain, '/', '\\');
  std::string key;
  for (const std::string& part : SplitTokens(plain, '\\')) key += "\\" + part;
  return key;
}

}  // namespace

ContentListing::ContentListing(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) files_[KeyOf(path)].names.push_back(path);
  for (auto& [key, file] : files_) std::ranges::sort(file.names);
}

ContentListing ContentListing::OfFolder(const std::string& folder) {
  std::vector<std::string> paths, closed;
  std::vector<fs::path> open{folder};
  while (!open.empty()) {
    const fs::path inner = std::move(open.back());
    open.pop_back();
    std::error_code error;  // a link that leads round in circles is no file and no folder
    for (fs::directory_iterator at(inner, error), end; !error && at != end; at.increment(error)) {
      std::error_code unknown;
      if (at->is_regular_file(unknown)) {
        paths.push_back(ContentPathOf(at->path().lexically_relative(folder)));
      } else if (!at->is_symlink(unknown) && at->is_directory(unknown)) {
        open.push_back(at->path());
      }
    }
    if (!error) continue;
    const fs::path relative = inner.lexically_relative(folder);
    closed.push_back(relative == "." ? "\\" : ContentPathOf(relative));
  }
  ContentListing listing(paths);
  std::ranges::sort(closed);
  listing.closed_ = std::move(closed);
  return listing;
}

const std::vector<std::string>& ContentListing::NamesOf(std::string_view path) const {
  static const std::vector<std::string> kNone;
  const auto found = files_.find(KeyOf(path));
  return found == files_.end() ? kNone : found->second.names;
}

std::string ContentListing::OnDisk(std::string_view path) const {
  const std::vector<std::string>& names = NamesOf(path);
  if (names.empty()) return std::string(path);
  return std::ranges::find(names, path) != names.end() ? std::string(path) : names.front();
}

bool ContentListing::Use(std::string_view path) {
  const auto found = files_.find(KeyOf(path));
  if (found == files_.end()) return false;
  found->second.used = true;
  return true;
}

std::vector<std::string> ContentListing::Unused() const {
  std::vector<std::string> unused;
  for (const auto& [key, file] : files_) {
    if (!file.used) unused.insert(unused.end(), file.names.begin(), file.names.end());
  }
  return unused;
}

std::vector<std::vector<std::string>> ContentListing::CaseTwins() const {
  std::vector<std::vector<std::string>> twins;
  for (const auto& [key, file] : files_) {
    if (file.names.size() > 1) twins.push_back(file.names);
  }
  return twins;
}

std::vector<std::string> ContentListing::Beside(std::string_view path) const {
  const std::string key = KeyOf(path);
  const std::string folder = key.substr(0, key.rfind('\\') + 1);
  std::vector<std::string> beside;
  for (auto at = files_.lower_bound(folder); at != files_.end(); ++at) {
    if (!at->first.starts_with(folder)) break;
    if (at->first.find('\\', folder.size()) == std::string::npos) {
      beside.push_back(at->second.names.front());
    }
  }
  return beside;
}

std::vector<std::string> ContentListing::All() const {
  std::vector<std::string> all;
  for (const auto& [key, file] : files_) {
    all.insert(all.end(), file.names.begin(), file.names.end());
  }
  return all;
}

}  // namespace quendle
