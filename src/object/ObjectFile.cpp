#include "object/ObjectFile.h"

#include <array>
#include <utility>

#include "base/Numbers.h"
#include "base/PathTokens.h"
#include "base/SF_Strings.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::string_view kRootNameToken = "<RootObjectName>\\";
constexpr std::string_view kNameToken = "<ObjectName>";

using Setter = void (*)(Directives&, const std::string& value, const FilePlace&);

struct DirectiveKey {
  std::string_view name;
  Setter set;
};

void SetVisible(Directives& directives, const std::string& value, const FilePlace&) {
  directives.visible_given = true;
  if (EqualsNoCase(value, "on")) directives.visible = true;
  if (EqualsNoCase(value, "off")) directives.visible = false;
}

constexpr std::array<DirectiveKey, 6> kDirectiveKeys = {{
    {"visible", SetVisible},
    {"depth", [](Directives& d, const std::string& v, const FilePlace&) { d.depth = v; }},
    {"state", [](Directives& d, const std::string& v, const FilePlace&) { d.state = v; }},
    {"runstate", [](Directives& d, const std::string& v, const FilePlace&) { d.runstate = v; }},
    {"xpos", [](Directives& d, const std::string& v,
                const FilePlace& place) { d.xpos = Int16FromText(v, "xpos", place); }},
    {"ypos", [](Directives& d, const std::string& v,
                const FilePlace& place) { d.ypos = Int16FromText(v, "ypos", place); }},
}};

void ApplyWord(Directives& directives, const std::string& word, const FilePlace& place) {
  std::vector<std::string> pieces = SplitTokens(word, '_');
  if (pieces.empty()) throw FatalError("the directive \"" + word + "\" has no key", place);
  for (const DirectiveKey& key : kDirectiveKeys) {
    if (!EqualsNoCase(pieces[0], key.name)) continue;
    if (pieces.size() < 2) {
      throw FatalError("the directive \"" + word + "\" needs a value behind an underscore", place);
    }
    key.set(directives, pieces[1], place);
  }
}

}  // namespace

ObjectFile ReadObjectFile(TextStream& stream) {
  ObjectFile file;
  file.type = stream.ReadLine("the type word of an object");
  file.type_place = stream.Place();
  file.name = stream.ReadLine("the name of an object");
  file.depth = stream.ReadLine("a number (depth)");
  Int32FromText(file.depth, "depth", stream.Place());
  for (const char* dropped : {"line 4", "line 5", "line 6"}) {
    stream.ReadLine(std::string(dropped) + " of an object file");
  }
  file.data_file = stream.ReadLine("the path of the data file");
  file.child_list = stream.ReadLine("the path of the child list, or \"nothing\"");
  file.directives = stream.ReadLine("the directive line");
  file.directives_place = stream.Place();
  return file;
}

DataFile ReadDataFile(TextStream& stream) {
  DataFile file;
  file.states = stream.ReadLine("the path of the state file, or \"nothing\"");
  file.animations = stream.ReadLine("the path of the animation file, or \"nothing\"");
  file.sounds = stream.ReadLine("the path of the sound file, or \"nothing\"");
  file.scripts = stream.ReadLine("the path of the script list, or \"nothing\"");
  stream.ReadLine("line 5 of a data file");
  return file;
}

std::string ResolveObjectPath(std::string_view directory, std::string_view object_name,
                              std::string_view path) {
  const std::string resolved = ResolveDirectoryTokens(directory, path);
  if (ContainsNoCase(resolved, kRootNameToken)) {
    return SF_replace(resolved, kRootNameToken, StripToolWords(object_name) + "\\");
  }
  return SF_replace(resolved, kNameToken, object_name);
}

std::vector<ChildLine> ReadChildList(TextStream& stream) {
  std::vector<ChildLine> children;
  while (!stream.AtEndOfStream()) {
    std::string line(TrimBlanks(stream.ReadLine("a child")));
    std::vector<std::string> words = SplitTokens(line, ' ');
    if (words.empty()) throw FatalError("a child list holds a blank line", stream.Place());
    children.push_back({std::move(words[0]), std::move(line), stream.Place()});
  }
  return children;
}

Directives ParseDirectives(std::string_view line, const FilePlace& place) {
  Directives directives;
  for (const std::string& word : SplitTokens(line, ' ')) ApplyWord(directives, word, place);
  return directives;
}

}  // namespace quendle
