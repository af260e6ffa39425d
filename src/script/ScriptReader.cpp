#include "script/ScriptReader.h"

#include <utility>

#include "base/ContentFiles.h"
#include "base/Text.h"
#include "base/WorkDepth.h"
#include "script/ScriptState.h"

namespace quendle {
namespace {

std::string SubscriptPath(const std::string& line, const FilePlace& place,
                          const PathResolver& resolver) {
  std::vector<std::string> words = SplitTokens(line, ' ');
  if (words.size() < 2) {
    throw FatalError("a subscript line needs a file as its second word", place);
  }
  return resolver.Resolve(words[1]);
}

void AppendFile(const ContentFiles& files, const std::string& path,
                std::vector<ScriptLine>& lines) {
  auto stream = files.OpenTextFileChecked(path, OpenMode::kRead, false);
  while (!stream->AtEndOfStream()) {
    std::string text = stream->ReadLine("a script line");
    lines.push_back({std::move(text), stream->Place()});
  }
}

}  // namespace

std::vector<ScriptListRecord> ReadScriptList(TextStream& stream) {
  std::vector<ScriptListRecord> records;
  while (!stream.AtEndOfStream()) {
    ScriptListRecord record;
    record.name = stream.ReadLine("the name of a script");
    record.place = stream.Place();
    record.path = stream.ReadLine("the path of script \"" + record.name + "\"");
    stream.ReadLine("the third line of the record of script \"" + record.name + "\"");
    records.push_back(std::move(record));
  }
  return records;
}

std::vector<ScriptLine> ReadScriptLines(const ContentFiles& files, const std::string& path,
                                        const PathResolver& resolver) {
  std::vector<ScriptLine> lines;
  auto stream = files.OpenTextFileChecked(path, OpenMode::kRead, false);
  while (!stream->AtEndOfStream()) {
    std::string text = stream->ReadLine("a script line");
    if (ContainsNoCase(text, "subscript")) {
      AppendFile(files, files.BaseDirectory() + SubscriptPath(text, stream->Place(), resolver),
                 lines);
    } else {
      lines.push_back({std::move(text), stream->Place()});
    }
  }
  return lines;
}

std::shared_ptr<ScriptState> LoadScript(const ContentFiles& files, const std::string& name,
                                        const std::string& path, const PathResolver& resolver,
                                        WorkDepth& depth) {
  std::vector<ScriptLine> lines = ReadScriptLines(files, path, resolver);
  if (lines.empty()) {
    throw FatalError("script \"" + name + "\" has no lines", {files.DisplayName(path), 0});
  }
  auto script = std::make_shared<ScriptState>();
  script->SetName(name);
  script->Parse(lines, depth);
  return script;
}

}  // namespace quendle
