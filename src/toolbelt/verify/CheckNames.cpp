#include "base/Text.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

constexpr const char* kCaughtWords[] = {"subgame", "won", "lost", "done", "end", "else"};
constexpr const char* kBlockWords[] = {"end", "else"};

void CheckObjectName(const CheckContext& context, const ModelObject& object) {
  const std::string& name = object.name;
  const auto caught = [&](const char* word) {
    context.Tell(Check::kCaughtWord, object, object.name_place,
                 "the name \"" + name + "\" holds \"" + word + "\"");
  };
  for (const char* word : kCaughtWords) {
    if (ContainsNoCase(name, word)) caught(word);
  }
  // What belongs to the bar is meant to be caught.
  const bool of_bar = object.IsType("tool") || object.IsNamed("tools");
  if (ContainsNoCase(name, "tool") && !of_bar) caught("tool");
  if (name.find('_') != std::string::npos) {
    context.Tell(Check::kUnderscore, object, object.name_place,
                 "the name \"" + name + "\" holds an underscore");
  }
  if (TrimBlanks(name).find(' ') != std::string::npos) {
    context.Tell(Check::kInnerBlank, object, object.name_place,
                 "the name \"" + name + "\" holds a blank");
  }
}

// A name that statements write behind their verb.
void CheckPartName(const CheckContext& context, const ModelObject& object, const char* noun,
                   const std::string& name, const FilePlace& place) {
  for (const char* word : kBlockWords) {
    if (!ContainsNoCase(name, word)) continue;
    context.Tell(Check::kCaughtWord, object, place,
                 std::string("the ") + noun + " \"" + name + "\" holds \"" + word + "\"");
  }
  if (TrimBlanks(name).find(' ') != std::string::npos) {
    context.Tell(Check::kInnerBlank, object, place,
                 std::string("the ") + noun + " \"" + name + "\" holds a blank");
  }
}

}  // namespace

void CheckNames(const CheckContext& context) {
  for (const ModelObjectRef& object : context.model.objects) {
    if (object->role != ModelRole::kCell) CheckObjectName(context, *object);
    for (const ObjState& state : object->states) {
      CheckPartName(context, *object, "state", state.Name(), state.Place());
      if (state.Name().find('_') == std::string::npos) continue;
      context.Tell(Check::kUnderscore, *object, state.Place(),
                   "the state \"" + state.Name() + "\" holds an underscore");
    }
    for (const ModelSound& sound : object->sounds) {
      CheckPartName(context, *object, "sound", sound.name, sound.place);
    }
    for (const ModelFrame& frame : object->frames) {
      if (frame.frame.FrameName.find(' ') == std::string::npos) continue;
      context.Tell(Check::kInnerBlank, *object, frame.place,
                   "the frame \"" + frame.frame.FrameName + "\" holds a blank");
    }
  }
}

}  // namespace quendle
