// What an arcade game is made of: header or board, and the data files of its cells.
#include "base/PathTokens.h"
#include "base/Text.h"
#include "subgames/SubgameFiles.h"
#include "subgames/SubgameKinds.h"
#include "toolbelt/verify/TreeReader.h"

namespace quendle {
namespace {

constexpr int kTilesPerRow = 3;
constexpr std::size_t kTiles = 8;
constexpr std::size_t kMostCells = 11;  // "cell111" is the player, and the first enemy of kind 11

}  // namespace

void TreeReader::ReadPlayArea(ModelObject& area, const NamedFile& object_file,
                              const std::string& data_path) {
  const std::string label = ModelPath(area);
  std::optional<std::string> path;
  FilePlace place{gate_.DisplayName(data_path), 6};
  gate_.Read({data_path, data_path, place, label},
             [&](TextStream& stream) { path = ReadGamePathOfDataFile(stream); });
  if (!path) {
    gate_.Read({object_file.resolved, object_file.resolved, object_file.place, label},
               [&](TextStream& stream) { path = ReadGamePathOfObjectFile(stream); });
    if (path) place = {area.file, 6};
  }
  if (!path) {
    findings_.Add(Check::kUnreadable, label, place,
                  "play area \"" + area.name +
                      "\" needs the path of its game's data, or \"nothing\": a sixth line of this "
                      "file");
    return;
  }
  if (!IsNothing(*path)) ReadGame(area, InFile(area, *path, place));
}

void TreeReader::ReadGame(ModelObject& area, const NamedFile& game) {
  const SubgameRow& row = RowOf(*area.Game());
  switch (row.data) {
    case GameData::kBoard:
      return ReadBoard(area, game);
    case GameData::kHeaderWithList:
      return ReadShooter(area, game);
    case GameData::kHeader:
      gate_.Read(game, [](TextStream& stream) { ReadGameHeader(stream); });
      const std::string frame = area.parents.empty() ? area.name : area.parents.front()->name;
      for (const char* name : row.fixed_cells) {
        const std::string path = gate_.Listing().OnDisk(FolderOfCells(frame) + "\\" + name);
        ReadCell(area, {path, path, game.place, game.object});
      }
  }
}

void TreeReader::ReadShooter(ModelObject& area, const NamedFile& header) {
  GameHeader read;
  if (!gate_.Read(header, [&](TextStream& stream) { read = ReadGameHeader(stream); })) return;
  const NamedFile list = InFile(area, read.cell_list, {gate_.DisplayName(header.resolved), 4});
  std::vector<std::string> cells;
  gate_.Read(list, [&](TextStream& stream) { cells = ReadCellList(stream); });
  if (cells.size() > kMostCells) {
    findings_.Add(Check::kBoard, header.object, {gate_.DisplayName(list.resolved), 0},
                  std::to_string(cells.size()) + " cells are more than " +
                      std::to_string(kMostCells) + ": their names collide");
  }
  int line = 0;
  for (const std::string& cell : cells) {
    ReadCell(area, InFile(area, cell, {gate_.DisplayName(list.resolved), ++line}));
  }
  const std::string formations = gate_.Listing().OnDisk(kFormationFile);
  gate_.Read({formations, formations, header.place, header.object},
             [](TextStream& stream) { ReadFormations(stream); });
}

void TreeReader::ReadBoard(ModelObject& area, const NamedFile& board) {
  SquareData read;
  if (!gate_.Read(board, [&](TextStream& stream) { read = ReadSquareData(stream); })) return;
  const std::string file = gate_.DisplayName(board.resolved);
  if (read.grid_size != kTilesPerRow) {
    findings_.Add(
        Check::kBoard, board.object, read.grid_place,
        "a board of " + std::to_string(read.grid_size) + " tiles per row can't be laid out");
  } else if (read.state_names.size() < kTiles) {
    findings_.Add(Check::kBoard, board.object, read.end_place,
                  "there are " + std::to_string(read.state_names.size()) + " state names for " +
                      std::to_string(kTiles) + " tiles");
  }
  const NamedFile cell = InFile(area, read.cell_file, {file, 1});
  ReadCell(area, cell);
  const auto known = known_.find("cell " + FoldCase(cell.resolved));
  if (known == known_.end() || known->second == nullptr) return;
  const ModelObject& tile = *known->second;
  for (std::size_t i = 0; i < read.state_names.size() && tile.states_known; ++i) {
    const std::string& state = read.state_names[i];
    if (tile.State(state) != nullptr) continue;
    findings_.Add(Check::kUnknownFirstState, board.object, {file, static_cast<int>(i) + 7},
                  "Did not find a valid object state: the tile has no state \"" + state + "\"" +
                      DidYouMean(state, tile.StateNames()));
  }
}

void TreeReader::ReadCell(ModelObject& area, const NamedFile& file) {
  NamedFile data = file;
  if (!gate_.Names(file)) return;
  gate_.Read(file, [&](TextStream& stream) {
    const std::optional<std::string> path = ReadDataPathOfObjectFile(stream);
    if (path) data = InFile(area, *path, {gate_.DisplayName(file.resolved), 7});
  });
  if (!gate_.Names(data)) return;
  ModelObjectRef& slot = known_["cell " + FoldCase(file.resolved)];
  if (slot != nullptr) return;
  slot = std::make_shared<ModelObject>();
  slot->role = ModelRole::kCell;
  slot->file = gate_.DisplayName(data.resolved);
  slot->type = "cell";
  const std::size_t cut = data.resolved.rfind('\\') + 1;
  slot->name = data.resolved.substr(cut, data.resolved.rfind('.') - cut);
  slot->name_place = {slot->file, 1};
  slot->directory = RelativeDirectoryOf(data.resolved, "");
  slot->parents.push_back(&area);
  model_.objects.push_back(slot);
  ReadParts(*slot, data.resolved, data.place);
}

}  // namespace quendle
