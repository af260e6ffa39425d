#include "toolbelt/making/SmallestContent.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "backends/raster/BitmapWriter.h"
#include "logic/IllnessFiles.h"
#include "platform/Geometry.h"
#include "toolbelt/making/NewContentReadme.h"

namespace quendle {
namespace {

constexpr std::uint32_t kGround = 0xC8C8C8;  // the key colour: not drawn
constexpr int kButtonSide = 120;
constexpr int kPointerSide = 32;

std::string Plain(int width, int height, std::uint32_t color) {
  const std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height), color);
  return WriteBitmapFile(width, height, pixels.data());
}

// Two discs side by side on the ground: at rest and highlighted.
std::string Discs(int side, std::uint32_t rest, std::uint32_t highlight) {
  std::vector<std::uint32_t> pixels;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side * 2; ++x) {
      const int dx = 2 * (x % side) - side + 1, dy = 2 * y - side + 1;
      const bool inside = dx * dx + dy * dy < side * side;
      pixels.push_back(!inside ? kGround : x < side ? rest : highlight);
    }
  }
  return WriteBitmapFile(side * 2, side, pixels.data());
}

// The last five lines of a frame: its rectangle in the picture.
std::string SourceLines(int x, int width, int height) {
  return std::to_string(x) + "\n0\n" + std::to_string(width) + "\n" + std::to_string(height) +
         "\nunused\n";
}

// The files of one tree, object by object.
class Tree {
 public:
  void Add(std::string path, std::string bytes) {
    pieces_.push_back({std::move(path), std::move(bytes)});
  }

  // A screen that shows one picture of the whole frame.
  void AddScreen(const std::string& name, std::uint32_t color, const std::string& children) {
    const std::string stem = Begin("hall", name, true, true, false, children);
    Add(stem + "states.txt", "default\nnothing\nroom\nnothing\nunused\nunused\n");
    AddAnimations(stem, name, {"room"});
    Add(stem + "frames.txt", "room\nnothing\n0\n0\n" + SourceLines(0, kFrameWidth, kFrameHeight));
    Add(stem + ".bmp", Plain(kFrameWidth, kFrameHeight, color));
  }

  // A screen without a picture of its own.
  void AddLayer(const std::string& type, const std::string& name) {
    const std::string stem = Begin(type, name, true, false, false, "");
    Add(stem + "states.txt", "default\nnothing\nnothing\nnothing\nunused\nunused\n");
  }

  // A round button that lights up under the pointer and sends a message when it is pressed.
  void AddButton(const std::string& name, std::uint32_t rest, std::uint32_t highlight,
                 const std::string& message) {
    const std::string stem = Begin("button", name, true, true, true, "");
    Add(stem + "states.txt",
        "default\nnothing\nrest\npress\nunused\nunused\n"
        "default-highlight\nnothing\nglow\npress\nunused\nunused\n");
    AddAnimations(stem, name, {"rest", "glow"});
    AddTwoFrames(stem, kButtonSide);
    Add(stem + "scripts.txt", "press\n<CurrentDirectory>\\" + name + "script.txt\nunused\n");
    Add(stem + "script.txt",
        "begin\nif action = *mouseclick\nchange default\nmtp " + message +
            "\nelseif action = *mouseover\nchange <currentrootstate>-highlight\n"
            "elseif action = *mouseovernot\nchange <currentrootstate>\nendif\nend\n");
    Add(stem + ".bmp", Discs(kButtonSide, rest, highlight));
  }

  void AddPointer(const std::string& name, std::uint32_t color) {
    const std::string stem = Begin("button", name, true, true, false, "");
    Add(stem + "states.txt", "default\nnothing\nrest\nnothing\nunused\nunused\n");
    AddAnimations(stem, name, {"rest"});
    AddTwoFrames(stem, kPointerSide);
    Add(stem + ".bmp", Discs(kPointerSide, color, color));
  }

  std::vector<ContentPiece> Take() { return std::move(pieces_); }

 private:
  // The object file, the data file and the child list; gives what the object's other files begin
  // with.
  std::string Begin(const std::string& type, const std::string& name, bool states, bool animations,
                    bool scripts, const std::string& children) {
    const std::string stem = "\\Info\\" + name + "\\" + name;
    const auto own = [&name](bool there, const char* what) {
      return there ? "<CurrentDirectory>\\" + name + what + "\n" : std::string("nothing\n");
    };
    Add(stem + ".txt", type + "\n" + name + "\n0\n0\n0\n0\n" + own(true, "data.txt") +
                           own(!children.empty(), "children.txt") + "state_default\n");
    Add(stem + "data.txt", own(states, "states.txt") + own(animations, "animation.txt") +
                               "nothing\n" + own(scripts, "scripts.txt") + "unused\n");
    if (!children.empty()) Add(stem + "children.txt", children);
    return stem;
  }

  void AddAnimations(const std::string& stem, const std::string& name,
                     const std::vector<std::string>& frames) {
    std::string text =
        "<CurrentDirectory>\\" + name + ".bmp\n<CurrentDirectory>\\" + name + "frames.txt\n";
    for (const std::string& frame : frames) {
      text += frame + "\n100\nnonloop\nnothing\n" + frame + "\nstatedone\n";
    }
    Add(stem + "animation.txt", text);
  }

  void AddTwoFrames(const std::string& stem, int side) {
    Add(stem + "frames.txt", "rest\nnothing\nstable\nstable\n" + SourceLines(0, side, side) +
                                 "glow\nnothing\nstable\nstable\n" + SourceLines(side, side, side));
  }

  std::vector<ContentPiece> pieces_;
};

void AddIllnessScripts(Tree& tree) {
  std::vector<std::string_view> names;
  for (const std::int16_t edition : {std::int16_t{1}, std::int16_t{2}}) {
    for (const std::string_view name : IllnessNames(edition)) {
      if (std::ranges::find(names, name) == names.end()) names.push_back(name);
    }
  }
  for (const std::string_view name : names) {
    for (const char* variant : {"NormalMode", "SafeMode"}) {
      tree.Add("\\Info\\GlobalReferences\\scripts\\" + std::string(name) + variant + ".txt",
               "begin\nif action = *mouseclick\nchange default\nendif\nend\n");
    }
  }
}

std::filesystem::path NativePath(const std::string& folder, std::string path) {
  std::ranges::replace(path, '\\', '/');
  return std::filesystem::path(folder + path);
}

}  // namespace

std::vector<ContentPiece> SmallestContent() {
  Tree tree;
  tree.Add("\\Info\\screens.txt",
           "\\Info\\introscreen\\introscreen.txt\n\\Info\\hall\\hall.txt\n"
           "\\Info\\tools\\tools.txt\n\\Info\\cursors\\cursors.txt\n");
  tree.Add("\\Info\\globalgameobjects.txt", "\\Info\\handcursor\\handcursor.txt\n");
  tree.Add("\\Info\\globalscriptstates.txt", "");
  tree.Add("\\Info\\globalsoundstates.txt", "");
  tree.Add("\\Info\\tools\\tool.bmp", Plain(8, 8, kGround));
  tree.AddScreen("introscreen", 0xBFE3F2,
                 "\\Info\\startbutton\\startbutton.txt xpos_340 ypos_400\n");
  tree.AddScreen("hall", 0xF2E2BF, "\\Info\\backdoor\\backdoor.txt xpos_40 ypos_300\n");
  tree.AddLayer("hall", "tools");
  tree.AddLayer("overlay", "cursors");
  tree.AddButton("startbutton", 0x3FA34D, 0x6FD37D, "cs_hall");
  tree.AddButton("backdoor", 0xA3643F, 0xD3946F, "cs_introscreen");
  tree.AddPointer("handcursor", 0x5A3E2B);
  AddIllnessScripts(tree);
  return tree.Take();
}

void MakeNewContent(const std::string& folder) {
  namespace fs = std::filesystem;
  if (folder.empty()) throw std::runtime_error("a folder without a name can't be made");
  if (fs::exists(folder) && !fs::is_directory(folder)) {
    throw std::runtime_error(folder + ": is a file");
  }
  if (fs::exists(folder) && !fs::is_empty(folder)) {
    throw std::runtime_error(folder + ": is there already and holds files");
  }
  std::vector<ContentPiece> pieces = SmallestContent();
  pieces.push_back({"\\README.md", std::string(NewContentReadme())});
  for (const ContentPiece& piece : pieces) {
    const fs::path path = NativePath(folder, piece.path);
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (error) {
      throw std::runtime_error(path.parent_path().string() + ": can't be made: " + error.message());
    }
    std::ofstream file(path, std::ios::binary);
    file.write(piece.bytes.data(), static_cast<std::streamsize>(piece.bytes.size()));
    file.close();
    if (!file) throw std::runtime_error(path.string() + ": can't be written");
  }
}

}  // namespace quendle
