#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/PathTokens.h"
#include "base/TextStream.h"
#include "script/Command.h"

namespace quendle {

class ContentFiles;
class ScriptState;
class WorkDepth;

// A record of three lines of a script list; the third has no meaning.
struct ScriptListRecord {
  std::string name;  // may hold "globalscript_"
  std::string path;  // as stored
  FilePlace place;   // of the name
};

// Reads a script list to its end.
std::vector<ScriptListRecord> ReadScriptList(TextStream& stream);

// Reads the lines of a script file (full path). A line that holds "subscript" is replaced by the
// lines of the file that its second word names, one level deep.
std::vector<ScriptLine> ReadScriptLines(const ContentFiles& files, const std::string& path,
                                        const PathResolver& resolver);

// Loads and parses a script under a name.
std::shared_ptr<ScriptState> LoadScript(const ContentFiles& files, const std::string& name,
                                        const std::string& path, const PathResolver& resolver,
                                        WorkDepth& depth);

}  // namespace quendle
