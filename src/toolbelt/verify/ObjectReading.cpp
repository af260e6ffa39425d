// One object: its object file, its data file and the child list.
#include <algorithm>
#include <set>

#include "base/PathTokens.h"
#include "base/Text.h"
#include "object/ObjectFile.h"
#include "toolbelt/Progress.h"
#include "toolbelt/verify/TreeReader.h"

namespace quendle {
ModelObjectRef TreeReader::ReadObject(const NamedFile& file, ModelRole role, ModelObject* parent) {
  const std::string key = FoldCase(file.resolved);
  if (std::ranges::find(open_, key) != open_.end()) {
    findings_.Add(Check::kCircle, file.object, file.place,
                  "\"" + file.stored + "\" is read already: an object can't hold itself");
    return nullptr;
  }
  if (open_.size() >= static_cast<std::size_t>(kDeepestNesting)) {
    findings_.Add(Check::kTooDeep, file.object, file.place,
                  NestedTooDeep(gate_.DisplayName(file.resolved)));
    return nullptr;
  }
  if (const auto known = known_.find(key); known != known_.end()) {
    gate_.Names(file);
    if (known->second != nullptr && parent != nullptr) known->second->parents.push_back(parent);
    return known->second;
  }
  progress_.Step("reading objects", known_.size());
  ModelObjectRef& slot = known_[key];
  ObjectFile read;
  Directives directives;
  if (!gate_.Read(file, [&](TextStream& stream) {
        read = ReadObjectFile(stream);
        directives = ParseDirectives(read.directives, read.directives_place);
      })) {
    return nullptr;
  }
  auto object = std::make_shared<ModelObject>();
  object->role = role;
  object->file = gate_.DisplayName(file.resolved);
  object->type = read.type;
  object->name = read.name;
  object->name_place = {object->file, 2};
  object->directives = directives;
  object->directives_place = read.directives_place;
  if (parent != nullptr) object->parents.push_back(parent);
  slot = object;
  model_.objects.push_back(object);
  CheckHeader(*object, read);
  const std::string label = ModelPath(*object);

  open_.push_back(key);
  const std::string folder = RelativeDirectoryOf(file.resolved, "");
  const NamedFile data{
      read.data_file, ResolveDirectoryTokens(folder, read.data_file), {object->file, 7}, label};
  if (gate_.Names(data)) {
    object->directory = RelativeDirectoryOf(data.resolved, "");
    ReadParts(*object, data.resolved, data.place);
    if (object->IsPlayArea()) ReadPlayArea(*object, file, data.resolved);
  } else {
    object->states_known = object->animations_known = object->sounds_known = object->scripts_known =
        false;
  }
  const std::string children = ResolveDirectoryTokens(folder, read.child_list);
  if (!IsNothing(children)) {
    ReadChildren(*object, {read.child_list, children, {object->file, 8}, label});
  }
  open_.pop_back();
  return object;
}

void TreeReader::CheckHeader(const ModelObject& object, const ObjectFile& read) {
  const std::string label = ModelPath(object);
  gate_.CheckEnds(read.type, read.type_place, label);
  gate_.CheckEnds(read.name, object.name_place, label);
  const std::vector<std::string> types = factory_.TypeWords();
  if (std::ranges::none_of(types, [&](const auto& t) { return EqualsNoCase(t, read.type); })) {
    findings_.Add(Check::kUnknownType, label, read.type_place,
                  "\"" + read.type + "\" is no type word" + DidYouMean(read.type, types));
  }
  if (!object.IsPlayArea()) {
    for (const std::string& word : SplitTokens(read.directives, ' ')) {
      if (SaysSomething(word)) continue;
      findings_.Add(Check::kOddDirective, label, read.directives_place,
                    "\"" + word + "\" is no directive");
    }
  }
}

NamedFile TreeReader::InFile(const ModelObject& object, const std::string& stored,
                             const FilePlace& place) const {
  return {stored, ResolveObjectPath(object.directory, object.name, stored), place,
          ModelPath(object)};
}

void TreeReader::ReadParts(ModelObject& object, const std::string& data_path,
                           const FilePlace& place) {
  DataFile data;
  const NamedFile named{data_path, data_path, place, ModelPath(object)};
  if (!gate_.Read(named, [&](TextStream& stream) { data = ReadDataFile(stream); })) {
    object.states_known = object.animations_known = object.sounds_known = object.scripts_known =
        false;
    return;
  }
  const std::string file = gate_.DisplayName(data_path);
  const auto part = [&](const std::string& stored, int line, auto read) {
    const NamedFile part_file = InFile(object, stored, {file, line});
    if (!IsNothing(part_file.resolved)) (this->*read)(object, part_file);
  };
  part(data.states, 1, &TreeReader::ReadStates);
  part(data.animations, 2, &TreeReader::ReadAnimations);
  part(data.sounds, 3, &TreeReader::ReadSounds);
  part(data.scripts, 4, &TreeReader::ReadScripts);
}

void TreeReader::ReadChildren(ModelObject& object, const NamedFile& file) {
  object.child_list = gate_.DisplayName(file.resolved);
  std::vector<ChildLine> lines;
  if (!gate_.Read(file, [&](TextStream& stream) { lines = ReadChildList(stream); })) {
    object.children_known = false;
  }
  for (const ChildLine& line : lines) ReadChild(object, line);
  std::set<std::string> names;
  for (const ModelChild& child : object.children) {
    if (child.object == nullptr || names.insert(FoldCase(child.object->name)).second) continue;
    findings_.Add(Check::kTwoOfOneName, file.object, child.line.place,
                  "there are two children named \"" + child.object->name + "\"");
  }
}

void TreeReader::ReadChild(ModelObject& object, const ChildLine& line) {
  const std::string label = ModelPath(object);
  ModelChild child{line, {}, nullptr};
  gate_.Guard(label, [&] { child.directives = ParseDirectives(line.line, line.place); });
  const std::vector<std::string> words = SplitTokens(line.line, ' ');
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (SaysSomething(words[i])) continue;
    findings_.Add(Check::kOddDirective, label, line.place, "\"" + words[i] + "\" is no directive");
  }
  if (ContainsNoCase(line.child, "GlobalObject")) {
    child.object = GlobalChild(object, line);
  } else {
    child.object = ReadObject(InFile(object, line.child, line.place), ModelRole::kChild, &object);
  }
  object.children.push_back(std::move(child));
}

ModelObjectRef TreeReader::GlobalChild(ModelObject& object, const ChildLine& line) {
  const std::string label = ModelPath(object);
  const std::vector<std::string> pieces = SplitTokens(line.child, '_');
  if (pieces.size() < 2) {
    findings_.Add(
        Check::kUnreadable, label, line.place,
        "\"" + line.child + "\" names no global object; it has the form GlobalObject_name");
    return nullptr;
  }
  for (const ModelObjectRef& global : model_.globals) {
    if (!global->IsNamed(pieces[1])) continue;
    global->parents.push_back(&object);
    return global;
  }
  const bool later = std::ranges::any_of(
      global_names_, [&](const std::string& name) { return EqualsNoCase(name, pieces[1]); });
  if (later) {
    findings_.Add(
        Check::kGlobalTooLate, label, line.place,
        "the global object \"" + pieces[1] + "\" isn't loaded yet when this line is read");
  } else {
    findings_.Add(
        Check::kUnknownGlobal, label, line.place,
        "there is no global object \"" + pieces[1] + "\"" + DidYouMean(pieces[1], global_names_));
  }
  return nullptr;
}

}  // namespace quendle
