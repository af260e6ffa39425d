#include "object/ObjectFile.h"

#include <utility>

#include "base/FirstFit.h"
#include "base/Numbers.h"
#include "base/PathTokens.h"
#include "base/SF_Strings.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::string_view kRootNameToken = "<RootObjectName>\\";
constexpr std::string_view kNameToken = "<ObjectName>";

constexpr FitRow<DirectiveKey> kDirectiveKeys[] = {
    {Fit::kIs, "visible", DirectiveKey::kVisible}, {Fit::kIs, "depth", DirectiveKey::kDepth},
    {Fit::kIs, "state", DirectiveKey::kState},     {Fit::kIs, "runstate", DirectiveKey::kRunState},
    {Fit::kIs, "xpos", DirectiveKey::kXPos},       {Fit::kIs, "ypos", DirectiveKey::kYPos},
};

// Nothing for a word that means neither.
std::optional<bool> VisibilityOf(std::string_view value) {
  if (EqualsNoCase(value, "on")) return true;
  if (EqualsNoCase(value, "off")) return false;
  return std::nullopt;
}

void SetDirective(Directives& directives, DirectiveKey key, const std::string& value,
                  const FilePlace& place) {
  switch (key) {
    case DirectiveKey::kVisible:
      directives.visible_given = true;
      if (const std::optional<bool> visible = VisibilityOf(value)) directives.visible = visible;
      return;
    case DirectiveKey::kDepth:
      directives.depth = value;
      return;
    case DirectiveKey::kState:
      directives.state = value;
      return;
    case DirectiveKey::kRunState:
      directives.runstate = value;
      return;
    case DirectiveKey::kXPos:
      directives.xpos = Int16FromText(value, "xpos", place);
      return;
    case DirectiveKey::kYPos:
      directives.ypos = Int16FromText(value, "ypos", place);
      return;
    case DirectiveKey::kNone:
      return;
  }
}

void ApplyWord(Directives& directives, const std::string& word, const FilePlace& place) {
  std::vector<std::string> pieces = SplitTokens(word, '_');
  if (pieces.empty()) throw FatalError("the directive \"" + word + "\" has no key", place);
  const DirectiveKey key = DirectiveKeyOf(pieces[0]);
  if (key == DirectiveKey::kNone) return;
  if (pieces.size() < 2) {
    throw FatalError("the directive \"" + word + "\" needs a value behind an underscore", place);
  }
  SetDirective(directives, key, pieces[1], place);
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

DirectiveKey DirectiveKeyOf(std::string_view word) {
  return FirstFit(kDirectiveKeys, word, DirectiveKey::kNone);
}

bool SaysSomething(std::string_view directive) {
  const std::vector<std::string> pieces = SplitTokens(directive, '_');
  if (pieces.size() < 2) return false;
  const DirectiveKey key = DirectiveKeyOf(pieces[0]);
  if (key == DirectiveKey::kVisible) return VisibilityOf(pieces[1]).has_value();
  return key != DirectiveKey::kNone;
}

Directives ParseDirectives(std::string_view line, const FilePlace& place) {
  Directives directives;
  for (const std::string& word : SplitTokens(line, ' ')) ApplyWord(directives, word, place);
  return directives;
}

}  // namespace quendle
