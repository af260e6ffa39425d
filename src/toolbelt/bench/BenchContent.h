#pragma once

#include <string>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "platform/Geometry.h"

namespace quendle {

// One sprite of the scene that is measured: a rectangle of a picture and its place on the frame.
struct BenchSprite {
  std::string picture;
  Point from;
  Size size;
  Point to;
};

// A scripted object: the name of its region, and the patterns that its script tries in turn.
struct BenchChain {
  std::string name;
  std::vector<std::string> patterns;
};

// The inputs of a measurement, read from a folder. A file that is missing throws
// std::runtime_error.
std::vector<BenchSprite> ReadBenchScene(const std::string& folder);
std::vector<BenchChain> ReadBenchChains(const std::string& folder);
std::vector<int> ReadBenchEvents(const std::string& folder);

inline constexpr const char* kBenchScreen = "measured";
// The shared picture of the sprites: its file, and its name in the registry of pictures.
inline constexpr const char* kBenchSheetFile = "\\Info\\measured\\sheet.bmp";
inline constexpr const char* kBenchSheetName = "sheet";

// A content tree whose screen "measured" is the scene: a background, a child for each sprite of the
// sheet with the states "default" and "next" (the picture of the sprite behind it), and the last
// sprite as the pointer.
void PutSceneContent(MemoryFileSystem& files, const std::string& folder,
                     const std::vector<BenchSprite>& scene);

// A content tree whose screen "measured" holds a child for each chain. An object's script sends
// "hit_I_J" upward, with its number and that of the pattern, both from 0.
void PutChainContent(MemoryFileSystem& files, const std::vector<BenchChain>& chains);

// Where the pointer is over the child with that number, and over no other.
Point PlaceOfChain(int number);

}  // namespace quendle
