#include "toolbelt/verify/ContentModel.h"

#include <algorithm>

#include "base/Text.h"
#include "screens/ScreenNames.h"

namespace quendle {
namespace {

constexpr int kDeepestPath = 20;

template <class List, class Name>
auto FindLast(const List& list, std::string_view wanted, Name name) {
  const auto found = std::ranges::find_if(
      list.rbegin(), list.rend(), [&](const auto& e) { return EqualsNoCase(name(e), wanted); });
  return found == list.rend() ? nullptr : &*found;
}

}  // namespace

bool ModelAnimation::Loops() const { return EqualsNoCase(record.loop, "loop"); }

std::size_t ModelAnimation::Length() const {
  std::size_t longest = 0;
  for (const auto& names : record.frame_sets) longest = std::max(longest, names.size());
  return longest;
}

bool ModelObject::IsType(std::string_view word) const { return EqualsNoCase(type, word); }
bool ModelObject::IsNamed(std::string_view word) const { return EqualsNoCase(name, word); }
bool ModelObject::IsRoom() const { return role == ModelRole::kScreen && !IsLayer(name); }

const ObjState* ModelObject::State(std::string_view state_name) const {
  return FindLast(
      states, state_name, [](const ObjState& s) -> auto& { return s.Name(); });
}
const ModelAnimation* ModelObject::Animation(std::string_view animation_name) const {
  return FindLast(
      animations, animation_name, [](const ModelAnimation& a) -> auto& { return a.record.name; });
}
const ModelFrame* ModelObject::Frame(std::string_view frame_name) const {
  return FindLast(
      frames, frame_name, [](const ModelFrame& f) -> auto& { return f.frame.FrameName; });
}
const ModelSound* ModelObject::Sound(std::string_view sound_name) const {
  return FindLast(
      sounds, sound_name, [](const ModelSound& s) -> auto& { return s.name; });
}
const ModelScript* ModelObject::Script(std::string_view script_name) const {
  return FindLast(
      scripts, script_name, [](const ModelScript& s) -> auto& { return s.name; });
}

std::vector<std::string> ModelObject::StateNames() const {
  std::vector<std::string> names;
  for (const ObjState& state : states) names.push_back(state.Name());
  return names;
}

std::string ModelObject::FirstState(const Directives* line) const {
  // Each line sets a state; an unknown one leaves the state before.
  const Directives* lines[] = {line, &directives};
  for (const Directives* said : lines) {
    if (said == nullptr) continue;
    const std::string wanted = said->state.value_or("default");
    if (State(wanted) != nullptr) return wanted;
  }
  return "";
}

const ModelObject* ContentModel::Screen(std::string_view name) const {
  for (const ModelObjectRef& screen : screens) {
    if (screen->IsNamed(name)) return screen.get();
  }
  return nullptr;
}

ModelObject* ContentModel::Global(std::string_view name) const {
  for (const ModelObjectRef& object : globals) {
    if (object->IsNamed(name)) return object.get();
  }
  return nullptr;
}

std::vector<std::string> ContentModel::ScreenNames() const {
  std::vector<std::string> names;
  for (const ModelObjectRef& screen : screens) names.push_back(screen->name);
  return names;
}

std::vector<std::string> ContentModel::GlobalNames() const {
  std::vector<std::string> names;
  for (const ModelObjectRef& object : globals) names.push_back(object->name);
  return names;
}

std::string ModelPath(const ModelObject& object) {
  std::string path = object.name;
  if (object.role == ModelRole::kGlobal) return "global/" + path;
  const ModelObject* at = &object;
  for (int depth = 0; depth < kDeepestPath && !at->parents.empty(); ++depth) {
    at = at->parents.front();
    path = at->name + "/" + path;
    if (at->role == ModelRole::kGlobal) return "global/" + path;
  }
  return path;
}

}  // namespace quendle
