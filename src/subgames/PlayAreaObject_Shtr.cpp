#include "subgames/PlayAreaObject_Shtr.h"

#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/Settings.h"
#include "base/Text.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "subgames/CellCorners.h"
#include "subgames/CellObject_Shooter.h"
#include "subgames/CellObject_Shot.h"
#include "subgames/Field.h"
#include "subgames/SubgameKinds.h"

namespace quendle {
namespace {

constexpr int kShots = 10;
constexpr std::int16_t kLives = 2;
constexpr std::int16_t kPlayerX = 400;
constexpr std::int16_t kPlayerY = 535;
constexpr int kTick = 60;      // milliseconds
constexpr int kHardTick = 50;  // the only rule of any game that knows the difficulty

std::shared_ptr<CellObject_Shot> AsShot(const std::shared_ptr<CellObject>& cell) {
  return std::dynamic_pointer_cast<CellObject_Shot>(cell);
}

// The cell, if it is an enemy.
std::shared_ptr<CellObject_Shooter> AsEnemy(const std::shared_ptr<CellObject>& cell) {
  return cell->IsGoodCell() ? nullptr : std::dynamic_pointer_cast<CellObject_Shooter>(cell);
}

}  // namespace

PlayAreaObject_Shtr::PlayAreaObject_Shtr(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames)
    : CellPlayArea(world, std::move(subgames), SubgameKind::kShooter) {}

void PlayAreaObject_Shtr::LoadGameData(const std::string& path) {
  CellPlayArea::LoadGameData(path);
  const ContentFiles& files = World().media.content;
  const std::string& base = files.BaseDirectory();
  auto list = files.OpenTextFileChecked(base + LoadCurrentDirectory(header_.cell_list),
                                        OpenMode::kRead, false);
  cell_files_ = ReadCellList(*list);
  for (std::string& file : cell_files_) file = LoadCurrentDirectory(file);
  auto points = files.OpenTextFileChecked(base + kFormationFile, OpenMode::kRead, false);
  m_colFormations = ReadFormations(*points);
}

void PlayAreaObject_Shtr::TurnOn() {
  PrepareGame();
  m_nLives = kLives;
  player_y_ = kPlayerY;
  Inner().TurnOn();
  BuildPlayField();
  TellParent("showobj_Play1");
  PlaceCells();
  StartGameTimer(EqualsNoCase(World().media.settings.DifficultyLevel, "Hard") ? kHardTick : kTick);
}

void PlayAreaObject_Shtr::BuildPlayField() {
  if (m_colFormations.empty()) {
    throw FatalError("play area \"" + ObjectName() + "\" has no game data to build its field from");
  }
  SeedFromClock();
  const double last = static_cast<double>(m_colFormations.size()) - 1;
  m_nFormation = ToInt16(Rnd() * last + 1, "number of a formation");
  AddEnemies();
  for (int i = 1; i <= kShots; ++i) {
    auto shot = LoadCell<CellObject_Shot>(cell_files_.back(), "shot", "shot" + std::to_string(i));
    shot->SetVisible(false);
    AddCell(shot);
  }
  auto player = LoadCell<CellObject_Shooter>(cell_files_.front(), "cell1", "cell111");
  player->SetGoodCell(true);
  AddCell(player);
}

void PlayAreaObject_Shtr::AddEnemies() {
  const std::size_t enemies = m_colFormations[static_cast<std::size_t>(m_nFormation - 1)].size();
  const double lines = static_cast<double>(cell_files_.size());
  for (std::size_t i = 1; i <= enemies; ++i) {
    const auto file = static_cast<std::size_t>(RoundHalfEven(Rnd() * (lines - 3) + 2));
    const std::string type = "cell" + std::to_string(file);
    AddCell(LoadCell<CellObject_Shooter>(cell_files_[file - 1], type, type + std::to_string(i)));
  }
}

void PlayAreaObject_Shtr::PlaceCells() {
  for (std::size_t i = 0; i < m_colCells.size(); ++i) {
    const std::shared_ptr<CellObject> cell = m_colCells[i];
    if (auto shot = AsShot(cell)) {
      shot->TurnOn(kFieldWidth, kFieldHeight);
      shot->SetGoal(0, 0);
      shot->SetGoodCell(true);
    } else if (auto enemy = AsEnemy(cell)) {
      PlaceEnemy(*enemy, i);
    } else if (auto player = Player()) {
      player->TurnOn(kFieldWidth, kFieldHeight);
      player->SetGoal(kPlayerX, player_y_);
    }
    cell->SetVisible(false);
  }
}

void PlayAreaObject_Shtr::PlaceEnemy(CellObject_Shooter& enemy, std::size_t number) {
  const Formation& formation = m_colFormations[static_cast<std::size_t>(m_nFormation - 1)];
  const CoordObject& point = formation[number];
  enemy.TurnOn(kFieldWidth, kFieldHeight);
  enemy.SetGoal(ToInt16(point.X, "x of an enemy"), ToInt16(point.Y, "y of an enemy"));
}

std::shared_ptr<CellObject_Shooter> PlayAreaObject_Shtr::Player() const {
  // Last, unless it was accepted away.
  if (m_colCells.empty() || !m_colCells.back()->IsGoodCell()) return nullptr;
  return std::dynamic_pointer_cast<CellObject_Shooter>(m_colCells.back());
}

std::shared_ptr<CellObject_Shot> PlayAreaObject_Shtr::FreeShot() const {
  for (const auto& cell : m_colCells) {
    if (auto shot = AsShot(cell); shot != nullptr && !shot->Visible()) return shot;
  }
  return nullptr;
}

void PlayAreaObject_Shtr::PlayMouse(std::int16_t x, std::int16_t, const std::string& action) {
  if (ContainsNoCase(action, "mouseover")) {
    if (auto player = Player()) player->SetGoal(x, player_y_);
  }
  if (ContainsNoCase(action, "mouseclick") && m_nFireDelay == 0) Fire(x);
}

void PlayAreaObject_Shtr::Fire(std::int16_t x) {
  auto shot = FreeShot();
  auto player = Player();
  if (shot == nullptr || player == nullptr) return;
  m_nFireDelay = kFullFireDelay;
  player->RunSound("fire");
  Launch(*shot, x, player_y_, true);
}

void PlayAreaObject_Shtr::EnemyFire(std::int16_t x, std::int16_t y) {
  if (auto shot = FreeShot()) Launch(*shot, x, y, false);
}

void PlayAreaObject_Shtr::Launch(CellObject_Shot& shot, std::int16_t x, std::int16_t y, bool good) {
  shot.SetVisible(true);
  shot.SetGoal(x, y);
  shot.Reset();
  shot.SetGoodCell(good);
}

void PlayAreaObject_Shtr::UpdateGameData() {
  if (Stopped()) return;
  CountDownFireDelay();
  const unsigned game = Game();
  bool all_down = true;
  for (std::size_t i = 0; i < m_colCells.size(); ++i) {
    const std::shared_ptr<CellObject> cell = m_colCells[i];
    if (auto shot = AsShot(cell)) {
      UpdateShot(*shot);
      if (game != Game()) return;
    } else if (AsEnemy(cell) == nullptr) {
      cell->Update();
    } else if (cell->Visible()) {
      all_down = false;
      cell->Update();
    }
  }
  if (all_down) EndGame(true);
}

void PlayAreaObject_Shtr::UpdateShot(CellObject_Shot& shot) {
  const unsigned game = Game();
  if (shot.Visible() && shot.IsGoodCell()) {
    StrikeEnemies(shot);
  } else if (shot.Visible()) {
    StrikePlayer(shot);
  }
  if (game == Game()) shot.Update();
}

void PlayAreaObject_Shtr::StrikeEnemies(CellObject_Shot& shot) {
  for (const auto& cell : m_colCells) {
    auto enemy = AsEnemy(cell);
    if (enemy == nullptr || enemy->HitRecently() != 0 || !enemy->Visible()) continue;
    if (!PointIsOn(shot, 0, 0, *enemy) && !PointIsOn(shot, shot.width(), 0, *enemy)) continue;
    enemy->RunSound("hit");
    enemy->SetVisible(false);
    shot.SetGettingDestroyed(true);
  }
}

void PlayAreaObject_Shtr::StrikePlayer(CellObject_Shot& shot) {
  auto player = Player();
  if (player == nullptr || shot.GettingDestroyed()) return;
  const int bottom = shot.height();
  if (!PointIsOn(shot, 0, bottom, *player) && !PointIsOn(shot, shot.width(), bottom, *player)) {
    return;
  }
  player->RunSound("hit");
  --m_nLives;
  if (m_nLives < 1) EndGame(false);
  shot.SetGettingDestroyed(true);
}

void PlayAreaObject_Shtr::Retire(const std::shared_ptr<CellObject>& cell) {
  m_colRetired.push_back(cell);
  std::erase(m_colCells, cell);
}

void PlayAreaObject_Shtr::DropCells() {
  m_colRetired.clear();
  CellPlayArea::DropCells();
}

void PlayAreaObject_Shtr::Describe(Inspector& inspector) const {
  CellPlayArea::Describe(inspector);
  inspector.Field("m_colRetired", static_cast<long>(m_colRetired.size()));
  inspector.Field("m_colFormations", static_cast<long>(m_colFormations.size()));
  inspector.Field("m_nFormation", m_nFormation);
  inspector.Field("m_nLives", m_nLives);
  inspector.Field("player y", player_y_);
}

}  // namespace quendle
