#include "base/PathTokens.h"

#include "base/SF_Strings.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::string_view kGlobalReferences = "\\Info\\GlobalReferences\\";

// The folder above, with its backslash.
std::string ParentOf(std::string_view directory) {
  if (directory.ends_with('\\')) directory.remove_suffix(1);
  std::size_t cut = directory.rfind('\\');
  return std::string(cut == std::string_view::npos ? "" : directory.substr(0, cut + 1));
}

}  // namespace

std::string RelativeDirectoryOf(std::string_view path, std::string_view base_directory) {
  std::string relative = SF_remove(path, base_directory);
  std::size_t cut = relative.rfind('\\');
  return cut == std::string::npos ? "" : relative.substr(0, cut + 1);
}

std::string ResolveDirectoryTokens(std::string_view directory, std::string_view path) {
  if (ContainsNoCase(path, "<CurrentDirectory>\\")) {
    return std::string(directory) + SF_remove(path, "<CurrentDirectory>\\");
  }
  if (ContainsNoCase(path, "<PreviousDirectory>\\")) {
    return ParentOf(directory) + SF_remove(path, "<PreviousDirectory>\\");
  }
  if (ContainsNoCase(path, "<GlobalDirectory>\\")) {
    return std::string(kGlobalReferences) + SF_remove(path, "<GlobalDirectory>\\");
  }
  return std::string(path);
}

bool IsNothing(std::string_view path) { return EqualsNoCase(path, "nothing"); }

}  // namespace quendle
