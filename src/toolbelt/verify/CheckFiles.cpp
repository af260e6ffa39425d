#include <set>

#include "base/Text.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

constexpr const char* kContentFolder = "\\info\\";

bool IsContent(const std::string& path) { return FindNoCase(path, kContentFolder) == 0; }

std::string FolderOf(const std::string& path) { return FoldCase(path.substr(0, path.rfind('\\'))); }

// Folders with a file that couldn't be read: what it would have named isn't known.
std::set<std::string> DarkFolders(const Findings& findings) {
  std::set<std::string> folders;
  for (const Finding& finding : findings.All()) {
    if (finding.check == Check::kUnreadable) folders.insert(FolderOf("\\" + finding.place.file));
  }
  return folders;
}

}  // namespace

void CheckFiles(const CheckContext& context) {
  for (const std::string& folder : context.gate.Listing().Closed()) {
    context.findings.Add(Check::kUnreadable, "", {folder.substr(1), 0},
                         "the folder can't be read: is it allowed?");
  }
  const std::set<std::string> dark = DarkFolders(context.findings);
  for (const std::string& path : context.gate.Listing().Unused()) {
    if (!IsContent(path)) continue;  // executables, settings, saved games
    if (dark.contains(FolderOf(path))) continue;
    context.findings.Add(Check::kUnusedFile, "", {path.substr(1), 0}, "nothing names this file");
  }
  for (const std::vector<std::string>& twins : context.gate.Listing().CaseTwins()) {
    if (!IsContent(twins.front())) continue;
    for (const std::string& name : twins) {
      const std::string& other = name == twins.front() ? twins.back() : twins.front();
      context.findings.Add(Check::kCaseTwins, "", {name.substr(1), 0},
                           "differs only in case from " + other);
    }
  }
}

}  // namespace quendle
