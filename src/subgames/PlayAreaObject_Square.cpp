#include "subgames/PlayAreaObject_Square.h"

#include <cmath>
#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "subgames/Field.h"
#include "subgames/SubgameKinds.h"

namespace quendle {
namespace {

constexpr int kTick = 1;  // milliseconds; the platform makes it its shortest interval
// Places are counted with this factor whatever the grid size is, so no other size can be played.
constexpr int kPlacesPerRow = 3;
constexpr std::int16_t kSlideSteps = 7;
constexpr std::int16_t kWiggleSteps = 3;
constexpr std::int16_t kWiggleMoves = 2;
constexpr double kWiggleRange = 50;
constexpr std::int16_t kFlySteps = 10;
constexpr double kFlyOutSeconds = 2;
constexpr double kFlyDistance = 100;

}  // namespace

PlayAreaObject_Square::PlayAreaObject_Square(ObjectWorld& world,
                                             std::shared_ptr<SubgameWorld> subgames)
    : PlayAreaObject(world, std::move(subgames), SubgameKind::kSquare) {}

void PlayAreaObject_Square::LoadObject(const LoadArguments& arguments) {
  PlayAreaObject::LoadObject(arguments);
  canvas_ = std::make_unique<BoardCanvas>(World().media, DrawingSurface(), width(), height());
}

void PlayAreaObject_Square::LoadGameData(const std::string& path) {
  auto stream = World().media.content.OpenTextFileChecked(path, OpenMode::kRead, false);
  data_ = ReadSquareData(*stream);
}

void PlayAreaObject_Square::TurnOn() {
  PrepareGame();
  for (const char* message : {"hideobj_HOK1", "hideobj_EOK1", "showobj_Play1", "showobj_Help1"}) {
    TellParent(message);
  }
  Inner().Send("hideobj_Scoring1", this);
  StartGameTimer(kTick);
  Inner().TurnOn();
}

void PlayAreaObject_Square::TurnOff() {
  PlayAreaObject::TurnOff();
  // Tiles that a stopped game has left would stand in the way of the next one.
  DropCells();
}

void PlayAreaObject_Square::StartGame() {
  if (!Stopped()) return;
  RequirePlayableBoard();
  DropCells();
  BeginGame();
  m_bSolved = false;
  m_lStartTime = ToInt32(TimeOfDay(), "time of day");
  m_bAnimating = false;
  m_nWiggles = 0;
  LayOutTiles();
}

void PlayAreaObject_Square::RequirePlayableBoard() const {
  if (data_.grid_size != kPlacesPerRow) {
    throw FatalError("a board of " + std::to_string(data_.grid_size) +
                         " tiles per row can't be laid out; only 3 per row can",
                     data_.grid_place);
  }
  if (static_cast<int>(data_.state_names.size()) < LastTile()) {
    throw FatalError("there are " + std::to_string(data_.state_names.size()) + " state names for " +
                         std::to_string(LastTile()) + " tiles",
                     data_.end_place);
  }
}

int PlayAreaObject_Square::LastTile() const { return data_.grid_size * data_.grid_size - 1; }

void PlayAreaObject_Square::LayOutTiles() {
  const auto places = static_cast<std::size_t>(LastTile() + 1);
  m_aBoard.assign(places + 1, 0);
  m_aCells.assign(places, nullptr);
  std::vector<bool> used(places, false);
  for (int row = 0; row < data_.grid_size; ++row) {
    for (int column = 0; column < data_.grid_size; ++column) {
      const int place = kPlacesPerRow * row + column + 1;
      if (place <= LastTile()) AddTile(place, row, column, used);
    }
  }
  cell_width_ = m_aCells.back()->width();
  cell_height_ = m_aCells.back()->height();
}

void PlayAreaObject_Square::AddTile(int place, int row, int column, std::vector<bool>& used) {
  const std::string name = "Square" + std::to_string(place);
  auto tile = LoadCell<CellObject_Square>(LoadCurrentDirectory(data_.cell_file), name, name);
  const auto index = static_cast<std::size_t>(place);
  m_aCells[index] = tile;
  tile->TurnOn(ToInt16(column * data_.pitch + data_.left, "x of a tile"),
               ToInt16(row * data_.pitch + data_.top, "y of a tile"));
  const int number = DrawFreeTile(used);
  used[static_cast<std::size_t>(number)] = true;
  m_aBoard[index] = static_cast<std::int16_t>(number);
  tile->ProcessState(data_.state_names[static_cast<std::size_t>(number - 1)]);
  AdoptCell(tile);
}

int PlayAreaObject_Square::DrawFreeTile(const std::vector<bool>& used) {
  int number = 0;
  do {
    number = static_cast<int>(std::floor(Rnd() * LastTile())) + 1;
  } while (used[static_cast<std::size_t>(number)]);
  return number;
}

bool PlayAreaObject_Square::TakesMouse(const std::string& action) const {
  return !m_bAnimating &&
         (PlayAreaObject::TakesMouse(action) || ContainsNoCase(action, "mousedown") ||
          ContainsNoCase(action, "mouseup"));
}

void PlayAreaObject_Square::SquareClicked(CellObject_Square& cell, const std::string& state) {
  if (m_bAnimating || m_bSolved) return;
  const int tile = TileNamed(state);
  const int place = tile == 0 ? 0 : PlaceOf(tile);
  if (place == 0) return;
  m_bAnimating = true;
  if (const int gap = GapBeside(place)) {
    Slide(cell, place, gap);
  } else {
    BeginWiggle(cell, place);
  }
}

int PlayAreaObject_Square::TileNamed(const std::string& state) const {
  int tile = 0;
  for (std::size_t i = 0; i < data_.state_names.size(); ++i) {
    if (EqualsNoCase(data_.state_names[i], state)) tile = static_cast<int>(i) + 1;
  }
  return tile;
}

int PlayAreaObject_Square::PlaceOf(int tile) const {
  for (std::size_t place = 1; place < m_aBoard.size(); ++place) {
    if (m_aBoard[place] == tile) return static_cast<int>(place);
  }
  return 0;
}

bool PlayAreaObject_Square::IsGap(int place) const {
  return place > 0 && place < static_cast<int>(m_aBoard.size()) &&
         m_aBoard[static_cast<std::size_t>(place)] == 0;
}

int PlayAreaObject_Square::GapBeside(int place) const {
  const int n = data_.grid_size;
  int gap = 0;
  if (IsGap(place - n)) gap = place - n;
  if (place % n != 1 && IsGap(place - 1)) gap = place - 1;
  if (IsGap(place + n)) gap = place + n;
  if (place % n != 0 && IsGap(place + 1)) gap = place + 1;
  return gap;
}

void PlayAreaObject_Square::Slide(CellObject_Square& cell, int place, int gap) {
  std::swap(m_aBoard[static_cast<std::size_t>(place)], m_aBoard[static_cast<std::size_t>(gap)]);
  cell.SetGoal(ToInt16(PlaceX(gap - 1), "x of a tile"), ToInt16(PlaceY(gap - 1), "y of a tile"),
               kSlideSteps);
}

void PlayAreaObject_Square::BeginWiggle(CellObject_Square& cell, int place) {
  for (const auto& tile : m_aCells) {
    if (tile.get() == &cell) m_ptrWiggleCell = tile;
  }
  m_nWigglePos = static_cast<std::int16_t>(place - 1);
  m_nWiggles = kWiggleMoves;
  SetRandomGoal(cell, m_nWigglePos);
}

void PlayAreaObject_Square::SetRandomGoal(CellObject_Square& cell, int index) {
  const double r1 = Rnd();
  const double r2 = Rnd();
  cell.SetGoal(ToInt16(PlaceX(index) + kWiggleRange * r1 - kWiggleRange / 2, "x of a tile"),
               ToInt16(PlaceY(index) + kWiggleRange * r2 - kWiggleRange / 2, "y of a tile"),
               kWiggleSteps);
}

void PlayAreaObject_Square::AnimationDone() {
  if (m_bSolved) return;
  if (m_nWiggles != 0) {
    --m_nWiggles;
    WiggleOn();
    return;
  }
  if (IsInOrder()) {
    m_bSolved = true;
    m_lStartTime = ToInt32(TimeOfDay(), "time of day");
    FlyOut();
  }
  m_bAnimating = false;
}

void PlayAreaObject_Square::WiggleOn() {
  const std::shared_ptr<CellObject_Square> tile = m_ptrWiggleCell.lock();
  if (tile == nullptr) return;
  if (m_nWiggles != 0) {
    SetRandomGoal(*tile, m_nWigglePos);
  } else {
    tile->SetGoal(ToInt16(PlaceX(m_nWigglePos), "x of a tile"),
                  ToInt16(PlaceY(m_nWigglePos), "y of a tile"), kWiggleSteps);
  }
}

bool PlayAreaObject_Square::IsInOrder() const {
  for (int place = 1; place <= LastTile(); ++place) {
    if (m_aBoard[static_cast<std::size_t>(place)] != place) return false;
  }
  return true;
}

void PlayAreaObject_Square::FlyOut() {
  for (std::size_t i = 1; i < m_aCells.size(); ++i) {
    const bool right = std::floor(2 * Rnd()) != 0;
    const double x = kFlyDistance * Rnd();
    const double y = kFieldHeight * Rnd();
    m_aCells[i]->SetGoal(ToInt16(right ? x + kFieldWidth : -x, "x of a tile"),
                         ToInt16(y, "y of a tile"), kFlySteps);
  }
}

int PlayAreaObject_Square::PlaceX(int index) const {
  return index % data_.grid_size * data_.pitch + data_.left;
}

int PlayAreaObject_Square::PlaceY(int index) const {
  return index / data_.grid_size * data_.pitch + data_.top;
}

void PlayAreaObject_Square::UpdateGameData() {
  if (Stopped()) return;
  for (std::size_t i = 1; i < m_aCells.size(); ++i) {
    const std::shared_ptr<CellObject_Square> tile = m_aCells[i];
    tile->Update();
  }
  // The time of day, not a span: a game across midnight never runs out of time.
  const double elapsed = TimeOfDay() - m_lStartTime;
  if (m_bSolved && elapsed > kFlyOutSeconds) {
    EndGame(true);
  } else if (elapsed >= data_.time_limit) {
    EndGame(false);
  }
}

void PlayAreaObject_Square::StopGame() {
  if (Stopped()) return;
  Inner().ProcessState("default");
  TellParent("showobj_Play1");
  Inner().Send("hideobj_Scoring1", this);
  // The other tiles stay until the area is turned off or a new game starts.
  if (!Children().Empty()) Children().RemoveAt(1);
  SetStopped();
}

void PlayAreaObject_Square::DropCells() {
  m_aCells.clear();
  PlayAreaObject::DropCells();
}

bool PlayAreaObject_Square::CheckPosition(const CoordObject& coord) const {
  return coord.X >= 0 && coord.Y >= 0 && coord.X + cell_width_ < kFieldWidth &&
         coord.Y + cell_height_ < kFieldHeight;
}

void PlayAreaObject_Square::Describe(Inspector& inspector) const {
  PlayAreaObject::Describe(inspector);
  std::string board;
  for (std::size_t place = 1; place < m_aBoard.size(); ++place) {
    board += (place == 1 ? "" : " ") + std::to_string(m_aBoard[place]);
  }
  const std::shared_ptr<CellObject_Square> wiggling = m_ptrWiggleCell.lock();
  inspector.Field("m_strCellFile", data_.cell_file);
  inspector.Field("m_nTimeLimit", data_.time_limit);
  inspector.Field("m_nGridSize", data_.grid_size);
  inspector.Field("m_nPitch", data_.pitch);
  inspector.Field("m_nLeft", data_.left);
  inspector.Field("m_nTop", data_.top);
  inspector.Field("m_colStateNames", static_cast<long>(data_.state_names.size()));
  inspector.Field("m_aBoard", board);
  inspector.Field("m_lStartTime", m_lStartTime);
  inspector.Flag("m_bSolved", m_bSolved);
  inspector.Flag("m_bAnimating", m_bAnimating);
  inspector.Field("m_nWiggles", m_nWiggles);
  inspector.Field("m_nWigglePos", m_nWigglePos);
  inspector.Field("m_ptrWiggleCell", wiggling != nullptr ? wiggling->ObjectName() : std::string());
  inspector.Field("cell width", cell_width_);
  inspector.Field("cell height", cell_height_);
}

}  // namespace quendle
