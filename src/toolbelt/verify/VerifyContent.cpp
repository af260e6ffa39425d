#include "toolbelt/verify/VerifyContent.h"

#include "base/ContentFiles.h"
#include "base/Settings.h"
#include "toolbelt/Progress.h"
#include "toolbelt/verify/Checks.h"
#include "toolbelt/verify/SideList.h"
#include "toolbelt/verify/TreeReader.h"

namespace quendle {
namespace {

constexpr void (*kChecks[])(const CheckContext&) = {
    CheckObjects,  CheckStates,   CheckFrames,   CheckSpeech, CheckScripts,
    CheckPatterns, CheckMessages, CheckPatients, CheckNames,  CheckScreens,
    CheckPictures, CheckSounds,   CheckFiles,
};

}  // namespace

Findings VerifyContent(VerifiedTree& tree, const SideList* side_list, Progress& progress) {
  Settings settings;
  settings.BaseDirectory = tree.base;
  const ContentFiles content(tree.files, settings);
  Findings findings;
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
