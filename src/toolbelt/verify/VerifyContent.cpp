#include "toolbelt/verify/VerifyContent.h"

#include <algorithm>

#include "base/ContentFiles.h"
#include "base/Settings.h"
#include "base/Text.h"
#include "toolbelt/Progress.h"
#include "toolbelt/verify/Checks.h"
#include "toolbelt/verify/SideList.h"
#include "toolbelt/verify/TreeReader.h"

namespace quendle {
namespace {

constexpr const char* kContentFolder = "\\Info\\";

bool HoldsContent(const ContentListing& listing) {
  return std::ranges::any_of(
      listing.All(), [](const std::string& path) { return FindNoCase(path, kContentFolder) == 0; });
}

constexpr void (*kChecks[])(const CheckContext&) = {
    CheckObjects,  CheckStates,   CheckFrames,   CheckSpeech, CheckScripts,
    CheckPatterns, CheckMessages, CheckPatients, CheckNames,  CheckScreens,
    CheckPictures, CheckSounds,   CheckFiles,    CheckTrees,
};

}  // namespace

Findings VerifyContent(VerifiedTree& tree, const SideList* side_list, Progress& progress) {
  Settings settings;
  settings.BaseDirectory = tree.base;
  const ContentFiles content(tree.files, settings);
  Findings findings;
  if (!HoldsContent(tree.listing)) {
    // One word says it better than a row of missing files.
    const bool closed = !tree.listing.Closed().empty();
    findings.Add(closed ? Check::kUnreadable : Check::kMissingFile, "", {"Info", 0},
                 closed ? "the content can't be read: is it allowed?"
                        : "there is no content: a tree has a folder \"Info\" with files in it");
    return findings;
  }
  FileGate gate(tree.files, content, tree.listing, findings);
  const ContentModel model = TreeReader(gate, progress).Read();
  const ContentFlow flow(model);
  const CheckContext context{model, flow, gate, findings, progress};
  for (auto* check : kChecks) check(context);
  std::vector<std::string> objects;
  for (const ModelObjectRef& object : model.objects) objects.push_back(ModelPath(*object));
  findings.Sort(objects);
  if (side_list != nullptr) side_list->Apply(findings);
  progress.Clear();
  return findings;
}

}  // namespace quendle
