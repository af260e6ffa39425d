#include "toolbelt/verify/ContentListing.h"

#include <algorithm>
#include <filesystem>

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

// Doubled separators count as one, as the file system reads them.
std::string KeyOf(std::string_view path) {
  std::string key;
  for (const std::string& part : SplitTokens(path, '\\')) key += "\\" + FoldCase(part);
  return key;
}

}  // namespace

ContentListing::ContentListing(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) files_[KeyOf(path)].names.push_back(path);
  for (auto& [key, file] : files_) std::ranges::sort(file.names);
}

ContentListing ContentListing::OfFolder(const std::string& folder) {
  std::vector<std::string> paths;
  const auto options = fs::directory_options::skip_permission_denied;
  for (const auto& entry : fs::recursive_directory_iterator(folder, options)) {
    if (!entry.is_regular_file()) continue;
    paths.push_back(ContentPathOf(entry.path().lexically_relative(folder)));
  }
  return ContentListing(paths);
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
