#include "subgames/PlayAreaObject_Bob.h"

#include <limits>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "object/ObjectWorld.h"
#include "subgames/CellObject_Bobbler.h"
#include "subgames/Field.h"
#include "subgames/SubgameKinds.h"

namespace quendle {
namespace {

constexpr int kCells = 30;
constexpr int kMoreBadCells = 3;
constexpr std::int16_t kManyCells = 40;  // from here on no bad cells come
constexpr std::int16_t kLives = 5;
constexpr int kTick = 75;  // milliseconds, at every difficulty

// Every twelfth cell is of the first kind, every tenth of the others of the second, and so on.
const char* BadCellFile(int i) {
  for (int kind = 0; kind < 5; ++kind) {
    if (i % (12 - 2 * kind) == 0) return kBadCellFiles[static_cast<std::size_t>(kind)];
  }
  return kBadCellFiles.back();
}

// Types of this game are compared exactly.
bool IsBad(const CellObject& cell) { return cell.ObjectType() == "bad"; }
bool IsGood(const CellObject& cell) { return cell.ObjectType() == "good"; }

}  // namespace

PlayAreaObject_Bob::PlayAreaObject_Bob(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames)
    : PausablePlayArea(world, std::move(subgames), SubgameKind::kBobbler) {
  // Once for all games of this object: the next one goes on with what is left.
  m_nLives = kLives;
}

void PlayAreaObject_Bob::TurnOn() {
  PrepareGame();
  Inner().TurnOn();
  BuildPlayField();
  TellParent("showobj_Play1");
  StartGameTimer(kTick);
  LetTicksRun();
}

void PlayAreaObject_Bob::BuildPlayField() {
  folder_ = InfoFolder();
  SeedFromClock();
  m_nCellCount = 0;
  for (int i = 1; i <= kCells; ++i) AddBobbler(i, true);
  m_nCellCount = kCells;
}

void PlayAreaObject_Bob::AddBobbler(int i, bool odd_is_good) {
  const bool good = odd_is_good && i % 2 != 0;
  auto cell = LoadCell<CellObject_Bobbler>(folder_ + "\\" + (good ? kGoodCellFile : BadCellFile(i)),
                                           good ? "good" : "bad", "cell" + std::to_string(i));
  AddCell(cell);
  cell->Setxpos(ToInt16(kFieldWidth * Rnd(), "xpos of a cell"));
  cell->Setypos(ToInt16(kFieldHeight * Rnd(), "ypos of a cell"));
  cell->SetVisible(true);
  cell->CellObject::TurnOn();
}

void PlayAreaObject_Bob::AddBadCells(int n) {
  for (int i = 1; i <= n; ++i) AddBobbler(m_nCellCount + i, false);
  m_nCellCount = ToInt16(m_nCellCount + n, "number of cells");
}

void PlayAreaObject_Bob::PlayMouse(std::int16_t x, std::int16_t y, const std::string& action) {
  if (!ContainsNoCase(action, "mouseclick")) return;
  const unsigned game = Game();
  // All cells under the pointer count, those that a click on a good one adds as well.
  for (std::size_t i = 0; i < m_colCells.size(); ++i) {
    const std::shared_ptr<CellObject> cell = m_colCells[i];
    if (cell->Visible() && cell->AreWeOnTheObject(x, y)) ClickCell(*cell);
    if (game != Game()) return;
  }
}

void PlayAreaObject_Bob::ClickCell(CellObject& cell) {
  if (IsBad(cell)) {
    cell.SetVisible(false);
    cell.RunSound("hit");
  } else {
    ClickGoodCell(cell);
  }
}

void PlayAreaObject_Bob::ClickGoodCell(CellObject& cell) {
  const unsigned game = Game();
  if (m_nLives > std::numeric_limits<std::int16_t>::min()) --m_nLives;
  cell.RunSound("owww");
  if (m_nLives == 0) EndGame(false);
  // The bad cells come after the end as well, unless the outcome has prepared a new game already.
  const bool new_game = Game() > game + 1;
  if (!new_game && m_nCellCount < kManyCells) AddBadCells(kMoreBadCells);
}

void PlayAreaObject_Bob::UpdateGameData() {
  if (!TicksRun()) return;
  bool any_bad = false;
  bool any_good = false;
  for (const auto& cell : m_colCells) {
    any_bad = any_bad || (cell->Visible() && IsBad(*cell));
    any_good = any_good || (cell->Visible() && IsGood(*cell));
    cell->Update();
  }
  if (!any_bad) {
    EndGame(true);
  } else if (!any_good) {
    EndGame(false);
  }
}

void PlayAreaObject_Bob::Describe(Inspector& inspector) const {
  PausablePlayArea::Describe(inspector);
  inspector.Field("m_nLives", m_nLives);
  inspector.Field("m_nCellCount", m_nCellCount);
}

}  // namespace quendle
