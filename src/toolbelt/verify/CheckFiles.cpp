#include "base/Text.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

constexpr const char* kContentFolder = "\\info\\";

bool IsContent(const std::string& path) { return FindNoCase(path, kContentFolder) == 0; }

}  // namespace

void CheckFiles(const CheckContext& context) {
  for (const std::string& path : context.gate.Listing().Unused()) {
    if (!IsContent(path)) continue;  // executables, settings, saved games
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
