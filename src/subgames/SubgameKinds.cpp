#include "subgames/SubgameKinds.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::array kBlinkerFiles = {kBrickFiles[0], kBrickFiles[1], kBrickFiles[2],
                                      kBrickFiles[3], kBrickFiles[4], kBallFile,
                                      kPaddleFile};
constexpr std::array kBobblerFiles = {kBadCellFiles[0], kBadCellFiles[1], kBadCellFiles[2],
                                      kBadCellFiles[3], kBadCellFiles[4], kBadCellFiles[5],
                                      kGoodCellFile};

constexpr SubgameRow kRows[] = {
    {SubgameKind::kSquare, "playareasquare", "OnSquareTimer", GameData::kBoard, {}},
    {SubgameKind::kShooter, "playareashooter", "OnShooterTimer", GameData::kHeaderWithList, {}},
    {SubgameKind::kBlinker, "playareablinker", "OnBlinkerTimer", GameData::kHeader, kBlinkerFiles},
    {SubgameKind::kBobbler, "playareabobbler", "OnBobblerTimer", GameData::kHeader, kBobblerFiles},
};

}  // namespace

std::span<const SubgameRow> Subgames() { return kRows; }

const SubgameRow& RowOf(SubgameKind kind) {
  return *std::find_if(std::begin(kRows), std::end(kRows),
                       [kind](const SubgameRow& row) { return row.kind == kind; });
}

std::optional<SubgameKind> SubgameKindOf(std::string_view type_word) {
  for (const SubgameRow& row : kRows) {
    if (EqualsNoCase(row.type_word, type_word)) return row.kind;
  }
  return std::nullopt;
}

std::string FolderOfCells(std::string_view frame_name) {
  return "\\info\\" + std::string(frame_name);
}

}  // namespace quendle
