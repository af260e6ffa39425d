#pragma once

#include <string>
#include <vector>

namespace quendle {

// One file of a content tree.
struct ContentPiece {
  std::string path;  // from the base directory, components parted by backslashes
  std::string bytes;
};

// The smallest content tree that runs in both editions: an intro screen whose button leads to a
// hall, a door in the hall that leads back, an empty tool bar, and a hand for a pointer.
std::vector<ContentPiece> SmallestContent();

// `quendle new`: writes that tree, with a README.md that tells its files, into a folder, which is
// made and must not hold anything yet. Throws std::runtime_error when that fails.
void MakeNewContent(const std::string& folder);

}  // namespace quendle
