// The files of the arcade games, read into plain records.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/CoordObject.h"
#include "base/TextStream.h"

namespace quendle {

// Line 6 of a play area's data file: the stored path of the game's data, or "nothing". Nothing when
// the file has no such line or a blank one.
std::optional<std::string> ReadGamePathOfDataFile(TextStream& stream);

// The same of a play area's object file; a number there is no path.
std::optional<std::string> ReadGamePathOfObjectFile(TextStream& stream);

// A cell may be named by an object file: at least nine lines, the first neither "nothing" nor a
// path. Gives its stored path of the data file; nothing for a file that is a data file itself.
std::optional<std::string> ReadDataPathOfObjectFile(TextStream& stream);

// The header of the shooter, the blinker and the bobbler.
struct GameHeader {
  std::string text;
  std::int16_t number = 0;
  bool flag = false;
  std::string cell_list;  // stored path; only the shooter has such a file
};

// Reads six lines and drops the last two. Fewer, or a second line that is no number, are fatal.
GameHeader ReadGameHeader(TextStream& stream);

// A board of sliding tiles.
struct SquareData {
  std::string cell_file;        // stored path of the tiles' file
  std::int32_t time_limit = 0;  // seconds
  std::int16_t grid_size = 0;   // tiles per row
  std::int16_t pitch = 0;       // pixels from one place to the next
  std::int16_t left = 0;        // of the first place
  std::int16_t top = 0;
  std::vector<std::string> state_names;  // of tile 1, 2, ...
  FilePlace grid_place;
  FilePlace end_place;
};

// A line of a number is read as the number that it begins with, 0 without one.
SquareData ReadSquareData(TextStream& stream);

// The stored paths of the shooter's cells: the player, the enemies, the shot. Fewer than three
// lines and a blank line are fatal.
std::vector<std::string> ReadCellList(TextStream& stream);

// The points of one row-up of enemies, in pixels of the field.
using Formation = std::vector<CoordObject>;

// One line of numbers parted by single blanks: X and Y of each enemy, "*" closes a formation. A
// formation that is not closed is dropped; a file without a closed one is fatal.
std::vector<Formation> ReadFormations(TextStream& stream);

}  // namespace quendle
