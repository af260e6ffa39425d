// A whole content tree as plain records: what the engine's readers gave, and where each piece
// stands.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/FatalError.h"
#include "object/AnimationFile.h"
#include "object/AnimationFrame.h"
#include "object/ObjState.h"
#include "object/ObjectFile.h"
#include "object/Region.h"
#include "script/Command.h"
#include "script/ScriptState.h"
#include "shell/ObjectClasses.h"
#include "subgames/SubgameKinds.h"

namespace quendle {

class SplineState;

// One text of a script. A treatment has two, one for each difficulty.
struct ModelScriptText {
  std::string file;                           // as the game names it
  std::vector<ScriptLine> lines;              // with those of subscripts
  std::shared_ptr<const ScriptState> parsed;  // null when it can't be parsed
};

struct ModelScript {
  std::string name;
  FilePlace place;  // of its record
  bool global = false;
  std::vector<std::shared_ptr<const ModelScriptText>> texts;  // none when the file is missing
};

struct ModelSound {
  std::string name;
  FilePlace place;
  std::string file;  // resolved path of what is played
  bool found = false;
};

struct ModelFrame {
  AnimationFrame frame;
  FilePlace place;
  std::vector<Region> regions;
  std::string region_file;  // as the game names it
};

struct ModelAnimation {
  AnimationRecord record;
  std::string directive_file;  // as the game names it; empty without one
  // The path of its directive file, if there is one.
  std::shared_ptr<const SplineState> spline;
  bool Loops() const;
  // The length of its longest sequence.
  std::size_t Length() const;
};

struct ModelObject;

struct ModelChild {
  ChildLine line;
  Directives directives;
  std::shared_ptr<ModelObject> object;  // null when it can't be read or isn't there
};

enum class ModelRole { kScreen, kGlobal, kChild, kCell };

// One object file (or the data file of a cell) with all that hangs on it. A file that several lists
// name is one object with several parents.
struct ModelObject {
  ModelRole role = ModelRole::kChild;
  std::string file;  // as the game names it
  std::string type;
  std::string name;
  FilePlace name_place;
  Directives directives;  // of its own file
  FilePlace directives_place;
  std::string directory;   // of its data file
  std::string child_list;  // as the game names it; empty without one

  std::string picture;  // resolved path, or empty
  FilePlace picture_place;
  std::vector<ObjState> states;
  std::vector<ModelAnimation> animations;
  std::vector<ModelFrame> frames;
  std::vector<ModelSound> sounds;
  std::vector<ModelScript> scripts;
  std::vector<ModelChild> children;
  std::vector<ModelObject*> parents;

  // False when the file couldn't be read: then nothing is said about names that it may hold.
  bool states_known = true;
  bool animations_known = true;
  bool sounds_known = true;
  bool scripts_known = true;
  bool children_known = true;

  bool IsType(std::string_view word) const;
  bool IsNamed(std::string_view word) const;
  // Nothing for an unknown type word.
  std::optional<ObjectClass> Class() const { return ObjectClassOf(type); }
  // The game that a play area is of.
  std::optional<SubgameKind> Game() const { return SubgameKindOf(type); }
  bool IsPlayArea() const { return Game().has_value(); }
  // A screen that can be in view, neither the tool bar nor the layer above all.
  bool IsRoom() const;
  const ObjState* State(std::string_view state_name) const;
  const ModelAnimation* Animation(std::string_view animation_name) const;
  // The last frame of a name counts.
  const ModelFrame* Frame(std::string_view frame_name) const;
  const ModelSound* Sound(std::string_view sound_name) const;
  const ModelScript* Script(std::string_view script_name) const;
  std::vector<std::string> StateNames() const;
  // The name of the state in which `line`, if any, and its own directives let it begin.
  std::string FirstState(const Directives* line) const;
};

using ModelObjectRef = std::shared_ptr<ModelObject>;

struct ContentModel {
  std::vector<ModelObjectRef> screens;
  std::vector<ModelObjectRef> globals;
  // Every object once: screens, globals, children, cells.
  std::vector<ModelObjectRef> objects;
  std::vector<ModelSound> global_sounds;
  std::vector<ModelScript> global_scripts;

  const ModelObject* Screen(std::string_view name) const;
  ModelObject* Global(std::string_view name) const;
  std::vector<std::string> ScreenNames() const;
  std::vector<std::string> GlobalNames() const;
};

// "dogroom/dog": the object by the names of those that hold it, the first where there are several.
std::string ModelPath(const ModelObject& object);

}  // namespace quendle
