#pragma once

#include <memory>
#include <vector>

#include "base/PathTokens.h"
#include "toolbelt/verify/ContentModel.h"
#include "toolbelt/verify/FileGate.h"

namespace quendle {

class WorkDepth;

// Reads a script file and parses it. The script of a treatment gives the texts of both
// difficulties, since the game copies one of them there at each start.
std::vector<std::shared_ptr<const ModelScriptText>> ReadScriptTexts(FileGate& gate,
                                                                    const NamedFile& file,
                                                                    const PathResolver& resolver,
                                                                    WorkDepth& depth);

// The paths of both variants of a treatment's script; none for another path.
std::vector<std::string> VariantPaths(const std::string& script_path);

// Notes the variants of all treatments of both editions, and tells those that are missing.
void CheckVariants(FileGate& gate);

}  // namespace quendle
