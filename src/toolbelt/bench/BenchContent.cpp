#include "toolbelt/bench/BenchContent.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "backends/raster/BitmapReader.h"
#include "backends/raster/BitmapWriter.h"
#include "toolbelt/making/SmallestContent.h"

namespace quendle {
namespace {

constexpr std::uint32_t kSceneKey = 0xFF00FF;  // the key colour of the scene's pictures
constexpr std::uint32_t kGameKey = 0xC8C8C8;
constexpr Size kChainSize{60, 60};
constexpr Size kChainCell{80, 100};
constexpr int kChainsInARow = 10;
const std::string kFolder = "\\Info\\measured\\";

std::ifstream OpenInput(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path + ": can't be read");
  return file;
}

std::string ReadInput(const std::string& path) {
  std::ifstream file = OpenInput(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// A picture of the scene, with the game's key colour in place of the scene's.
std::string ReadKeyed(const std::string& path) {
  BitmapFile picture = ReadBitmapFile(ReadInput(path));
  if (!picture.problem.empty()) throw std::runtime_error(path + ": " + picture.problem);
  const std::size_t count = static_cast<std::size_t>(picture.width * picture.height);
  std::replace(picture.pixels.get(), picture.pixels.get() + count, kSceneKey, kGameKey);
  return WriteBitmapFile(picture.width, picture.height, picture.pixels.get());
}

std::string Plain(Size size, std::uint32_t color) {
  const std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size.width * size.height),
                                          color);
  return WriteBitmapFile(size.width, size.height, pixels.data());
}

std::string ObjectText(const std::string& type, const std::string& name, bool children) {
  return type + "\n" + name + "\n0\n0\n0\n0\n" + kFolder + name + "data.txt\n" +
         (children ? kFolder + name + "children.txt" : "nothing") + "\nstate_default\n";
}

std::string FrameText(const std::string& name, const std::string& regions, Point from, Size size) {
  const auto number = [](int value) { return std::to_string(value) + "\n"; };
  return name + "\n" + regions + "\nstable\nstable\n" + number(from.x) + number(from.y) +
         number(size.width) + number(size.height) + "unused\n";
}

std::string AnimationText(const std::string& name) {
  return name + "\n100\nnonloop\nnothing\n" + name + "\nstatedone\n";
}

std::string StateText(const std::string& name, const std::string& script) {
  return name + "\nnothing\n" + name + "\n" + script + "\nunused\nunused\n";
}

// The files of one object with one picture; `states` are states, animations and frames alike.
struct ObjectTexts {
  std::string name;
  std::string picture;
  std::vector<std::string> states;
  std::string frames;
  std::string script;
};

void PutObject(MemoryFileSystem& files, const ObjectTexts& object) {
  const std::string stem = kFolder + object.name;
  const bool scripted = !object.script.empty();
  std::string states, animations;
  for (const std::string& state : object.states) {
    states += StateText(state, scripted ? "chain" : "nothing");
    animations += AnimationText(state);
  }
  files.Put(stem + "data.txt", stem + "states.txt\n" + stem + "animation.txt\nnothing\n" +
                                   (scripted ? stem + "scripts.txt" : "nothing") + "\nunused\n");
  files.Put(stem + "states.txt", states);
  files.Put(stem + "animation.txt", object.picture + "\n" + stem + "frames.txt\n" + animations);
  files.Put(stem + "frames.txt", object.frames);
  if (!scripted) return;
  files.Put(stem + "scripts.txt", "chain\n" + stem + "script.txt\nunused\n");
  files.Put(stem + "script.txt", object.script);
}

void PutScreen(MemoryFileSystem& files, const std::string& background,
               const std::string& children) {
  for (const ContentPiece& piece : SmallestContent()) files.Put(piece.path, piece.bytes);
  const std::string name = kBenchScreen;
  files.Put("\\Info\\screens.txt",
            files.Get("\\Info\\screens.txt").value() + kFolder + name + ".txt\n");
  files.Put(kFolder + name + ".txt", ObjectText("hall", name, true));
  files.Put(kFolder + name + "children.txt", children);
  files.Put(kFolder + "back.bmp", background);
  PutObject(files, {name,
                    kFolder + "back.bmp",
                    {"default"},
                    FrameText("default", "nothing", {0, 0}, {kFrameWidth, kFrameHeight}),
                    ""});
}

std::string ChildLine(const std::string& name, Point at) {
  return kFolder + name + ".txt xpos_" + std::to_string(at.x) + " ypos_" + std::to_string(at.y) +
         "\n";
}

std::string ChainScript(int number, const BenchChain& chain) {
  std::string script = "begin\n";
  for (std::size_t i = 0; i < chain.patterns.size(); ++i) {
    script += (i == 0 ? "if action = " : "elseif action = ") + chain.patterns[i] + "\nmtp hit_" +
              std::to_string(number) + "_" + std::to_string(i) + "\n";
  }
  return script + "endif\nend\n";
}

}  // namespace

std::vector<BenchSprite> ReadBenchScene(const std::string& folder) {
  std::ifstream file = OpenInput(folder + "/scene.txt");
  std::vector<BenchSprite> scene;
  BenchSprite s;
  while (file >> s.picture >> s.from.x >> s.from.y >> s.size.width >> s.size.height >> s.to.x >>
         s.to.y) {
    scene.push_back(s);
  }
  return scene;
}

std::vector<BenchChain> ReadBenchChains(const std::string& folder) {
  std::ifstream file = OpenInput(folder + "/chains.txt");
  std::vector<BenchChain> chains;
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    BenchChain chain;
    words >> chain.name;
    for (std::string pattern; words >> pattern;) chain.patterns.push_back(pattern);
    chains.push_back(std::move(chain));
  }
  return chains;
}

std::vector<int> ReadBenchEvents(const std::string& folder) {
  std::ifstream file = OpenInput(folder + "/events.txt");
  return {std::istream_iterator<int>(file), {}};
}

void PutSceneContent(MemoryFileSystem& files, const std::string& folder,
                     const std::vector<BenchSprite>& scene) {
  const std::size_t count = scene.size() - 1;
  std::string children;
  for (std::size_t i = 0; i < count; ++i) {
    children += ChildLine("sprite" + std::to_string(i), scene[i].to);
  }
  PutScreen(files, ReadInput(folder + "/bg.bmp"), children);
  files.Put(kBenchSheetFile, ReadKeyed(folder + "/sheet.bmp"));
  for (std::size_t i = 0; i < count; ++i) {
    const std::string name = "sprite" + std::to_string(i);
    files.Put(kFolder + name + ".txt", ObjectText("button", name, false));
    PutObject(files, {name,
                      std::string("globalpicture_") + kBenchSheetName,
                      {"default", "next"},
                      FrameText("default", "nothing", scene[i].from, scene[i].size) +
                          FrameText("next", "nothing", scene[(i + 1) % count].from, scene[i].size),
                      ""});
  }
  files.Put("\\Info\\handcursor\\handcursor.bmp",
            ReadKeyed(folder + "/" + scene.back().picture + ".bmp"));
  files.Put("\\Info\\handcursor\\handcursorframes.txt",
            FrameText("rest", "nothing", scene.back().from, scene.back().size));
}

void PutChainContent(MemoryFileSystem& files, const std::vector<BenchChain>& chains) {
  std::string children;
  for (std::size_t i = 0; i < chains.size(); ++i) {
    const Point center = PlaceOfChain(static_cast<int>(i));
    children += ChildLine(chains[i].name,
                          {center.x - kChainSize.width / 2, center.y - kChainSize.height / 2});
  }
  PutScreen(files, Plain({kFrameWidth, kFrameHeight}, 0x404040), children);
  files.Put(kFolder + "patch.bmp", Plain(kChainSize, 0x808080));
  for (std::size_t i = 0; i < chains.size(); ++i) {
    const std::string& name = chains[i].name;
    files.Put(kFolder + name + ".txt", ObjectText("button", name, false));
    files.Put(kFolder + name + "regions.txt", name + "\n0\n0\n" + std::to_string(kChainSize.width) +
                                                  "\n" + std::to_string(kChainSize.height) + "\n");
    PutObject(files, {name,
                      kFolder + "patch.bmp",
                      {"default"},
                      FrameText("default", kFolder + name + "regions.txt", {0, 0}, kChainSize),
                      ChainScript(static_cast<int>(i), chains[i])});
  }
}

Point PlaceOfChain(int number) {
  return {number % kChainsInARow * kChainCell.width + kChainCell.width / 2,
          number / kChainsInARow * kChainCell.height + kChainCell.height / 2};
}

}  // namespace quendle
