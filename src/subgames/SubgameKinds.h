// The arcade games there are, and what each is made of beside its objects.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quendle {

enum class SubgameKind { kSquare, kShooter, kBlinker, kBobbler };

// What the file of a game's data is, and where its cells stand.
enum class GameData {
  kBoard,           // names the tile and lays out the board
  kHeaderWithList,  // names a list of cells; formations stand beside it
  kHeader           // cells with fixed names stand in the folder of the frame
};

struct SubgameRow {
  SubgameKind kind;
  std::string_view type_word;                // of its play area
  const char* timer;                         // its name in diagnostics
  GameData data;                             // the file that the sixth line names
  std::span<const char* const> fixed_cells;  // file names of all cells with fixed names
};

// One row for each game.
std::span<const SubgameRow> Subgames();
const SubgameRow& RowOf(SubgameKind kind);
// The game of a play area's type word, case ignored; nothing for any other type word.
std::optional<SubgameKind> SubgameKindOf(std::string_view type_word);

// The formations of all games that have some.
inline constexpr const char* kFormationFile = "\\info\\shooterdata.txt";

// The cells with fixed names, by file name.
inline constexpr std::array kBrickFiles = {"cell1data.txt", "cell2data.txt", "cell3data.txt",
                                           "cell4data.txt", "cell5data.txt"};
inline constexpr const char* kBallFile = "balldata.txt";
inline constexpr const char* kPaddleFile = "paddledata.txt";
inline constexpr std::array kBadCellFiles = {"cell1data.txt", "cell2data.txt", "cell3data.txt",
                                             "cell4data.txt", "cell5data.txt", "cell6data.txt"};
inline constexpr const char* kGoodCellFile = "gooddata.txt";
// The folder in which they stand.
std::string FolderOfCells(std::string_view frame_name);

}  // namespace quendle
