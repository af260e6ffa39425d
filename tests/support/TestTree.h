// Writes the files of objects into a file system in memory.
//
//   TestTree tree(platform.files);
//   tree.Object("door", "button")
//       .State("default", "nothing", "still", "main")
//       .Frame("shut", {0, 0, 10, 20})
//       .Animation("still", 100, "loop", {"shut"})
//       .Script("main", "begin\nmtp cs_hall\nend");
//   tree.Object("hall", "hall").Child("door", "xpos_5 ypos_7");
//   tree.Write();
//
// The object "door" then stands in "\Info\door\door.txt"; its other files are beside it, under the
// names of the functions that fill them (states.txt, frames.txt, ...). An object can also be
// written by itself: `TestObject("door", "button").Still(10, 20).Write(files)`.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "backends/raster/PictureFiles.h"

namespace quendle {

using Lines = std::vector<std::string>;

// Text of those lines, each ended.
inline std::string Text(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

struct FrameSource {
  int x = 0;
  int y = 0;
  int width = 10;
  int height = 10;
};

class TestObject {
 public:
  TestObject(std::string name, std::string type) : name_(std::move(name)), type_(std::move(type)) {}

  // Without any state the object gets a "default" of nothing, unless NoStates is called.
  TestObject& State(const std::string& name, const std::string& sound = "nothing",
                    const std::string& animation = "nothing",
                    const std::string& script = "nothing") {
    return Add("states.txt", {name, sound, animation, script, "unused", "unused"});
  }
  TestObject& NoStates() { return Raw("states.txt", "nothing\r\n"); }

  // A rectangle of the picture, and its two placement lines.
  TestObject& Frame(const std::string& name, FrameSource source = {},
                    const std::string& horizontal = "stable",
                    const std::string& vertical = "stable") {
    frames_.push_back({name, source, horizontal, vertical});
    return *this;
  }
  // A region of a frame.
  TestObject& Region(const std::string& frame, const std::string& name, int x1, int y1, int x2,
                     int y2) {
    with_regions_[frame] = true;
    return Add("regions_" + frame + ".txt", {name, std::to_string(x1), std::to_string(y1),
                                             std::to_string(x2), std::to_string(y2)});
  }
  // `sets`: frame names parted by blanks. `directives`: a stored path or "nothing".
  TestObject& Animation(const std::string& name, int interval, const std::string& loop,
                        const Lines& sets, const std::string& directives = "nothing") {
    has_animations_ = true;
    Lines lines{name, std::to_string(interval), loop, directives};
    lines.insert(lines.end(), sets.begin(), sets.end());
    lines.emplace_back("statedone");
    for (const std::string& line : lines) animations_.push_back(line);
    return *this;
  }
  // A one-frame looping animation "still" of a frame "all" of that size.
  TestObject& Still(int width, int height) {
    return Frame("all", {0, 0, width, height}).Animation("still", 100, "loop", {"all"});
  }
  // The bytes of the picture; 64 by 64 red pixels without.
  TestObject& Picture(std::string bytes) {
    picture_ = std::move(bytes);
    return *this;
  }
  // The picture is named and isn't there.
  TestObject& NoPicture() {
    picture_is_there_ = false;
    return *this;
  }
  // The first line of the animation file.
  TestObject& PictureLine(std::string line) {
    picture_line_ = std::move(line);
    has_animations_ = true;
    return *this;
  }

  // A sound with a file FOLDER\NAME.wma, which its record names as ".wav".
  TestObject& Sound(const std::string& name, const std::string& loop = "nonloop",
                    const std::string& directives = "") {
    files_[name + ".wma"] = "sound";
    return Add("sounds.txt", {name, "<CurrentDirectory>\\" + name + ".wav", loop, directives});
  }
  // A sound with a file of that path, made with the object.
  TestObject& SoundAt(const std::string& name, const std::string& path) {
    elsewhere_[path] = "sound";
    return Add("sounds.txt", {name, path, "nonloop", ""});
  }
  // A sound whose file isn't there.
  TestObject& MissingSound(const std::string& name) {
    return Add("sounds.txt", {name, "<CurrentDirectory>\\" + name + ".wav", "nonloop", ""});
  }
  TestObject& GlobalSound(const std::string& name) {
    return Add("sounds.txt", {"globalsound_" + name, "unused", "unused", "unused"});
  }

  TestObject& Script(const std::string& name, const std::string& text) {
    files_["script_" + name + ".txt"] = text;
    return Add("scripts.txt", {name, Folder() + "script_" + name + ".txt", ""});
  }
  TestObject& GlobalScript(const std::string& name) {
    return Add("scripts.txt", {"globalscript_" + name, "unused", ""});
  }

  // A child that the tree makes, by name, with directives.
  TestObject& Child(const std::string& name, const std::string& directives = "") {
    return ChildLine("\\Info\\" + name + "\\" + name + ".txt " + directives);
  }
  TestObject& GlobalChild(const std::string& name, const std::string& directives = "") {
    return ChildLine("GlobalObject_" + name + " " + directives);
  }
  TestObject& ChildLine(const std::string& line) { return Add("children.txt", {line}); }

  // Line 9 of the object file.
  TestObject& Directives(std::string line) {
    directives_ = std::move(line);
    return *this;
  }
  // A sixth line of the data file.
  TestObject& SixthLine(std::string line) {
    sixth_line_ = {std::move(line)};
    return *this;
  }
  // Where the object file or the data file stands, instead of in the object's folder.
  TestObject& ObjectAt(std::string path) {
    object_path_ = std::move(path);
    return *this;
  }
  TestObject& DataAt(std::string path) {
    data_path_ = std::move(path);
    return *this;
  }
  // One of the files as it stands, in place of what the other functions fill.
  TestObject& Raw(const std::string& file, std::string text) {
    raw_[file] = std::move(text);
    return *this;
  }

  std::string Folder() const { return "\\Info\\" + name_ + "\\"; }
  std::string Path() const { return object_path_.empty() ? Folder() + ObjectFile() : object_path_; }

  void Write(MemoryFileSystem& files) const {
    std::map<std::string, std::string> all = Parts();
    all.try_emplace(ObjectFile(), Text({type_, name_, "0", "0", "0", "0", DataPath(),
                                        PathIn(all, "children.txt"), directives_}));
    Put(files, all);
  }
  // All but the object file, for what is loaded from its data file.
  void WriteParts(MemoryFileSystem& files) const { Put(files, Parts()); }

 private:
  struct FrameRecord {
    std::string name;
    FrameSource source;
    std::string horizontal;
    std::string vertical;
  };

  std::string ObjectFile() const { return name_ + ".txt"; }
  std::string DataPath() const { return data_path_.empty() ? Folder() + "data.txt" : data_path_; }
  std::string PathIn(const std::map<std::string, std::string>& all, const char* file) const {
    return all.contains(file) ? Folder() + file : std::string("nothing");
  }

  std::map<std::string, std::string> Parts() const {
    std::map<std::string, std::string> all = files_;
    for (const auto& [file, lines] : lists_) all[file] = Text(lines);
    all.try_emplace("states.txt", Text({"default", "nothing", "nothing", "nothing", "", ""}));
    if (!frames_.empty() || has_animations_) WriteAnimation(all);
    for (const auto& [file, text] : raw_) all[file] = text;
    Lines data{PathIn(all, "states.txt"), PathIn(all, "animations.txt"), PathIn(all, "sounds.txt"),
               PathIn(all, "scripts.txt"), ""};
    data.insert(data.end(), sixth_line_.begin(), sixth_line_.end());
    all.try_emplace("data.txt", Text(data));
    return all;
  }

  void Put(MemoryFileSystem& files, const std::map<std::string, std::string>& all) const {
    for (const auto& [file, text] : all) {
      const std::string own = Folder() + file;
      files.Put(file == ObjectFile() ? Path() : file == "data.txt" ? DataPath() : own, text);
    }
    for (const auto& [path, bytes] : elsewhere_) files.Put(path, bytes);
  }

  TestObject& Add(const std::string& file, const Lines& lines) {
    Lines& all = lists_[file];
    all.insert(all.end(), lines.begin(), lines.end());
    return *this;
  }

  void WriteAnimation(std::map<std::string, std::string>& all) const {
    if (picture_is_there_) {
      all["picture.bmp"] = picture_.empty() ? Filled(64, 64, 'r') : picture_;
    }
    Lines lines{picture_line_, Folder() + "frames.txt"};
    lines.insert(lines.end(), animations_.begin(), animations_.end());
    all["animations.txt"] = Text(lines);
    Lines frames;
    for (const FrameRecord& frame : frames_) {
      const std::string regions = with_regions_.contains(frame.name)
                                      ? Folder() + "regions_" + frame.name + ".txt"
                                      : "nothing";
      for (const std::string& line :
           {frame.name, regions, frame.horizontal, frame.vertical, std::to_string(frame.source.x),
            std::to_string(frame.source.y), std::to_string(frame.source.width),
            std::to_string(frame.source.height), std::string()}) {
        frames.push_back(line);
      }
    }
    all["frames.txt"] = Text(frames);
  }

  std::string name_;
  std::string type_;
  std::string directives_;
  std::string object_path_;
  std::string data_path_;
  Lines sixth_line_;  // none or one
  std::string picture_;
  bool picture_is_there_ = true;
  std::string picture_line_ = "<CurrentDirectory>\\picture.bmp";
  bool has_animations_ = false;
  Lines animations_;
  std::vector<FrameRecord> frames_;
  std::map<std::string, bool> with_regions_;
  std::map<std::string, Lines> lists_;
  std::map<std::string, std::string> files_;
  std::map<std::string, std::string> elsewhere_;  // by their whole paths
  std::map<std::string, std::string> raw_;
};

class TestTree {
 public:
  // `files` must outlive the tree.
  explicit TestTree(MemoryFileSystem& files) : files_(files) {}

  // The object of that name; the first call makes it, with that type word.
  TestObject& Object(const std::string& name, const std::string& type = "button") {
    return objects_.try_emplace(name, name, type).first->second;
  }
  // Writes the files of all objects; may be called again after changes.
  void Write() {
    for (auto& [name, object] : objects_) object.Write(files_);
  }

 private:
  MemoryFileSystem& files_;
  std::map<std::string, TestObject> objects_;
};

}  // namespace quendle
