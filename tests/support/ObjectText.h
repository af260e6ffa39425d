// Objects for tests of whole games, as records: what most of them need in a few words. TestObject
// writes their files.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "backends/raster/PictureFiles.h"
#include "support/TestTree.h"

namespace quendle {

struct StateText {
  std::string name = "";
  std::string sound = "nothing";
  std::string animation = "";  // empty: "show" for an object with a picture
  std::string script = "nothing";
};

struct AnimationText {
  std::string name = "";
  int interval = 100;  // milliseconds
  std::string loop = "nonloop";
  std::string frames = "f1 f2";
};

// An object and the names of its parts. A picture has the frames "f1" and "f2", each
// the whole picture where the object stands, and the animation "show" of the first.
struct ObjectText {
  std::string type = "";
  std::string name = "";
  std::string directives = "";
  int width = 0;  // of the picture; 0: none
  int height = 0;
  std::vector<StateText> states = {{.name = "default"}};
  std::vector<AnimationText> animations = {};
  std::vector<std::pair<std::string, std::string>> scripts = {};  // name, lines inside the block
  std::vector<std::string> sounds = {};  // names; each plays \Info\sounds\NAME.wma
  std::vector<std::string> children = {};
};

// Path of an object's file, from the base directory.
inline std::string ObjectPath(const std::string& name) {
  return "\\Info\\" + name + "\\" + name + ".txt";
}

inline TestObject TestObjectOf(const ObjectText& text) {
  TestObject object(text.name, text.type);
  const bool picture = text.width > 0;
  if (picture) {
    object.Picture(Filled(text.width, text.height, 'r'));
    for (const char* frame : {"f1", "f2"}) object.Frame(frame, {0, 0, text.width, text.height});
    object.Animation("show", 100, "nonloop", {"f1"});
    for (const AnimationText& animation : text.animations) {
      object.Animation(animation.name, animation.interval, animation.loop, {animation.frames});
    }
  }
  for (const StateText& state : text.states) {
    const std::string resting = picture ? "show" : "nothing";
    object.State(state.name, state.sound, state.animation.empty() ? resting : state.animation,
                 state.script);
  }
  for (const std::string& sound : text.sounds) {
    object.SoundAt(sound, "\\Info\\sounds\\" + sound + ".wma");
  }
  for (const auto& [name, lines] : text.scripts) {
    object.Script(name, "begin\n" + lines + "end\n");
  }
  for (const std::string& child : text.children) object.ChildLine(child);
  return object.Directives(text.directives);
}

inline void PutObject(MemoryFileSystem& files, const ObjectText& text) {
  TestObjectOf(text).Write(files);
}

// The statements that a click with a cursor on the object itself runs.
inline std::string OnClick(const std::string& statements, const std::string& cursor = "hand") {
  return "if action = *" + cursor + "mouseclick\n" + statements + "endif\n";
}

}  // namespace quendle
