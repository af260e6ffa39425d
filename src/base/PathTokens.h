#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace quendle {

// What stands behind the last backslash is cut, the base directory is removed: the folder of a
// full path, with its backslash. A path without a backslash gives an empty text.
std::string RelativeDirectoryOf(std::string_view path, std::string_view base_directory);

// Replaces the first of "<CurrentDirectory>\", "<PreviousDirectory>\" and "<GlobalDirectory>\"
// that occurs in a stored path, once; other text stays. `directory` ends with a backslash.
std::string ResolveDirectoryTokens(std::string_view directory, std::string_view path);

// True if a resolved path is the word "nothing".
bool IsNothing(std::string_view path);

// Resolves stored paths against one place of the content tree.
class PathResolver {
 public:
  virtual ~PathResolver() = default;
  // The path, still relative to the base directory.
  virtual std::string Resolve(std::string_view stored_path) const = 0;
};

// Resolves directory tokens against one folder, which ends with a backslash.
class FolderPaths : public PathResolver {
 public:
  explicit FolderPaths(std::string folder) : folder_(std::move(folder)) {}
  std::string Resolve(std::string_view stored_path) const override {
    return ResolveDirectoryTokens(folder_, stored_path);
  }

 private:
  std::string folder_;
};

}  // namespace quendle
