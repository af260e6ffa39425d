#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "subgames/CellPlayArea.h"

namespace quendle {

class CellObject_Shooter;
class CellObject_Shot;

// The field of the shooter: a formation of enemies that slides and fires, a player that follows the
// pointer along a line, ten shots that both share.
class PlayAreaObject_Shtr : public CellPlayArea {
 public:
  PlayAreaObject_Shtr(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames);

  // Builds the field; without the game's data it is fatal.
  void TurnOn() override;
  void UpdateGameData() override;
  // An enemy's shot from this point, if one of the ten is free.
  void EnemyFire(std::int16_t x, std::int16_t y) override;
  void Describe(Inspector& inspector) const override;

 protected:
  void LoadGameData(const std::string& path) override;
  void PlayMouse(std::int16_t x, std::int16_t y, const std::string& action) override;
  void Retire(const std::shared_ptr<CellObject>& cell) override;
  void DropCells() override;

 private:
  void BuildPlayField();
  void AddEnemies();
  void PlaceCells();
  void PlaceEnemy(CellObject_Shooter& enemy, std::size_t number);
  std::shared_ptr<CellObject_Shooter> Player() const;
  std::shared_ptr<CellObject_Shot> FreeShot() const;
  void Launch(CellObject_Shot& shot, std::int16_t x, std::int16_t y, bool good);
  void Fire(std::int16_t x);
  void UpdateShot(CellObject_Shot& shot);
  void StrikeEnemies(CellObject_Shot& shot);
  void StrikePlayer(CellObject_Shot& shot);

  // Valid while loaded.
  std::vector<std::string> cell_files_;  // the player's, the enemies', the shot's
  std::vector<Formation> m_colFormations;

  // In m_colCells stand the enemies, the ten shots and the player, in this order.
  std::vector<std::shared_ptr<CellObject>> m_colRetired;
  std::int16_t m_nFormation = 0;  // from 1
  std::int16_t player_y_ = 0;
};

}  // namespace quendle
