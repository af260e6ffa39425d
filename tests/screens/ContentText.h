// Content for tests: objects written as the files that they are made of.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "backends/raster/BitmapWriter.h"

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

// An object, its files and the names of its parts. A picture has the frames "f1" and "f2", each
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

inline std::string Filled(int width, int height, std::uint32_t word = 0xFF0000) {
  const std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height, word);
  return WriteBitmapFile(width, height, pixels.data());
}

// Path of an object's file, from the base directory.
inline std::string ObjectPath(const std::string& name) {
  return "\\Info\\" + name + "\\" + name + ".txt";
}

inline void PutObject(MemoryFileSystem& files, const ObjectText& object) {
  const std::string folder = "\\Info\\" + object.name + "\\";
  auto put = [&](const char* file, const std::string& text) { files.Put(folder + file, text); };
  auto here = [](bool there, const char* file) {
    return there ? std::string("<CurrentDirectory>\\") + file : std::string("nothing");
  };
  const bool picture = object.width > 0;

  files.Put(ObjectPath(object.name),
            object.type + "\n" + object.name + "\n0\n0\n0\n0\n" + here(true, "data.txt") + "\n" +
                here(!object.children.empty(), "children.txt") + "\n" + object.directives + "\n");
  put("data.txt", here(true, "states.txt") + "\n" + here(picture, "animation.txt") + "\n" +
                      here(!object.sounds.empty(), "sounds.txt") + "\n" +
                      here(!object.scripts.empty(), "scripts.txt") + "\n0\n");

  std::string text;
  for (const StateText& state : object.states) {
    const std::string animation = !state.animation.empty() ? state.animation
                                  : picture                ? "show"
                                                           : "nothing";
    text += state.name + "\n" + state.sound + "\n" + animation + "\n" + state.script + "\n0\n0\n";
  }
  put("states.txt", text);

  if (picture) {
    put("picture.bmp", Filled(object.width, object.height));
    const std::string size = std::to_string(object.width) + "\n" + std::to_string(object.height);
    text.clear();
    for (const char* frame : {"f1", "f2"}) {
      text += std::string(frame) + "\nnothing\nstable\nstable\n0\n0\n" + size + "\n-\n";
    }
    put("frames.txt", text);
    text = "<CurrentDirectory>\\picture.bmp\n<CurrentDirectory>\\frames.txt\n";
    text += "show\n100\nnonloop\nnothing\nf1\nstatedone\n";
    for (const AnimationText& animation : object.animations) {
      text += animation.name + "\n" + std::to_string(animation.interval) + "\n" + animation.loop +
              "\nnothing\n" + animation.frames + "\nstatedone\n";
    }
    put("animation.txt", text);
  }

  text.clear();
  for (const std::string& sound : object.sounds) {
    text += sound + "\n\\Info\\sounds\\" + sound + ".wma\nnoloop\n-\n";
    files.Put("\\Info\\sounds\\" + sound + ".wma", "sound");
  }
  if (!text.empty()) put("sounds.txt", text);

  text.clear();
  for (const auto& [name, lines] : object.scripts) {
    text += name + "\n<CurrentDirectory>\\script-" + name + ".txt\n-\n";
    files.Put(folder + "script-" + name + ".txt", "begin\n" + lines + "end\n");
  }
  if (!text.empty()) put("scripts.txt", text);

  text.clear();
  for (const std::string& child : object.children) text += child + "\n";
  if (!text.empty()) put("children.txt", text);
}

// The statements that a click with a cursor on the object itself runs.
inline std::string OnClick(const std::string& statements, const std::string& cursor = "hand") {
  return "if action = *" + cursor + "mouseclick\n" + statements + "endif\n";
}

}  // namespace quendle
