#include "toolbelt/verify/ScriptTexts.h"

#include <set>
#include <string_view>

#include "base/Text.h"
#include "base/WorkDepth.h"
#include "logic/IllnessFiles.h"
#include "script/ScriptReader.h"

namespace quendle {
namespace {

constexpr const char* kFolder = "\\Info\\GlobalReferences\\scripts\\";
constexpr const char* kVariants[] = {"NormalMode.txt", "SafeMode.txt"};

std::set<std::string> Treatments() {
  std::set<std::string> names;
  for (const std::int16_t edition : {std::int16_t{1}, std::int16_t{2}}) {
    for (const std::string_view name : IllnessNames(edition)) names.emplace(name);
  }
  return names;
}

// Looks at the lines that include other files, of the script itself or of a file it includes. False
// when a file is missing.
bool CheckInclusions(FileGate& gate, const NamedFile& file, const PathResolver& resolver) {
  bool whole = true;
  std::vector<std::pair<std::string, FilePlace>> included;
  gate.Read(file, [&](TextStream& stream) {
    while (!stream.AtEndOfStream()) {
      std::string line = stream.ReadLine("a script line");
      if (ContainsNoCase(line, "subscript")) included.emplace_back(line, stream.Place());
    }
  });
  for (const auto& [line, place] : included) {
    const std::vector<std::string> words = SplitTokens(line, ' ');
    if (!EqualsNoCase(words[0], "subscript")) {
      gate.Found().Add(Check::kSubscript, file.object, place,
                       "\"" + line + "\" is taken for an inclusion, for the letters in it");
    }
    if (words.size() < 2) continue;  // the reader tells
    const NamedFile inner{words[1], resolver.Resolve(words[1]), place, file.object};
    whole = gate.Read(inner, [&](TextStream& stream) {
      while (!stream.AtEndOfStream()) {
        const std::string text = stream.ReadLine("a script line");
        if (!ContainsNoCase(text, "subscript")) continue;
        gate.Found().Add(Check::kSubscript, file.object, stream.Place(),
                         "a file that is included itself includes nothing: \"" + text + "\"");
      }
    }) && whole;
  }
  return whole;
}

std::shared_ptr<const ModelScriptText> ReadText(FileGate& gate, const NamedFile& file,
                                                const PathResolver& resolver, WorkDepth& depth) {
  if (!gate.Names(file)) return nullptr;
  auto text = std::make_shared<ModelScriptText>();
  text->file = gate.DisplayName(file.resolved);
  if (!CheckInclusions(gate, file, resolver)) return text;
  gate.Guard(file.object, [&] {
    const ContentFiles& content = gate.Content();
    text->lines = ReadScriptLines(content, content.BaseDirectory() + file.resolved, resolver);
    if (text->lines.empty()) throw FatalError("the script has no lines", {text->file, 0});
    auto parsed = std::make_shared<ScriptState>();
    parsed->Parse(text->lines, depth);
    text->parsed = std::move(parsed);
  });
  return text;
}

}  // namespace

std::vector<std::string> VariantPaths(const std::string& script_path) {
  for (const std::string& name : Treatments()) {
    if (!EqualsNoCase(script_path, kFolder + name + ".txt")) continue;
    std::vector<std::string> paths;
    for (const char* variant : kVariants) paths.push_back(kFolder + name + variant);
    return paths;
  }
  return {};
}

std::vector<std::shared_ptr<const ModelScriptText>> ReadScriptTexts(FileGate& gate,
                                                                    const NamedFile& file,
                                                                    const PathResolver& resolver,
                                                                    WorkDepth& depth) {
  std::vector<std::shared_ptr<const ModelScriptText>> texts;
  const std::vector<std::string> variants = VariantPaths(file.resolved);
  if (variants.empty()) {
    if (auto text = ReadText(gate, file, resolver, depth)) texts.push_back(std::move(text));
    return texts;
  }
  gate.Listing().Use(file.resolved);
  for (const std::string& variant : variants) {
    if (!gate.Listing().Use(variant)) continue;  // told with the variants
    const std::string name = gate.Listing().OnDisk(variant);
    if (auto text = ReadText(gate, {name, name, file.place, file.object}, resolver, depth)) {
      texts.push_back(std::move(text));
    }
  }
  return texts;
}

void CheckVariants(FileGate& gate) {
  for (const std::string& name : Treatments()) {
    gate.Listing().Use(kFolder + name + ".txt");
    for (const char* variant : kVariants) {
      const std::string path = kFolder + name + variant;
      if (gate.Listing().Use(path)) continue;
      gate.Found().Add(Check::kVariantMissing, "", {path.substr(1), 0},
                       "the treatment " + name + " lacks its variant " + path);
    }
  }
}

}  // namespace quendle
