#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "subgames/CellObject.h"
#include "subgames/PlayAreaCallbacks.h"
#include "subgames/PlayAreaObject.h"
#include "subgames/SubgameFiles.h"

namespace quendle {

// What the shooter, the blinker and the bobbler share: a header file, a list of cells made when the
// area is turned on, and the selection of cells by messages.
class CellPlayArea : public PlayAreaObject, public EnemyFireTarget {
 public:
  CellPlayArea(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames, SubgameKind kind);

  void TurnOff() override;
  // Takes the absolute value of n from the lives.
  void DecrementLife(std::int16_t n);
  // Only the shooter's enemies fire.
  void EnemyFire(std::int16_t, std::int16_t) override {}
  void Describe(Inspector& inspector) const override;

 protected:
  static constexpr std::int16_t kFullFireDelay = 5;  // ticks

  void LoadGameData(const std::string& path) override;
  void StartGame() override;
  void StopGame() override;
  void DropCells() override;
  // "select" and what follows names the cell that is selected.
  void SelectCell(const std::string& message) override;
  // "acceptedcell" takes the selected cell out of the field.
  void AcceptCell() override;
  // An accepted cell: the shooter takes it out of the play as well.
  virtual void Retire(const std::shared_ptr<CellObject>&) {}

  // Adds a cell to the play and to the inner children.
  void AddCell(const std::shared_ptr<CellObject>& cell);
  void SetCellsVisible(bool visible);
  // The ticks until the player may fire.
  void CountDownFireDelay();
  // "\info\NAME", of the parent's name: where the files of this subgame stand.
  std::string InfoFolder();

  GameHeader header_;
  std::vector<std::shared_ptr<CellObject>> m_colCells;
  std::int16_t m_nLives = 0;
  std::int16_t m_nFireDelay = kFullFireDelay;
};

}  // namespace quendle
