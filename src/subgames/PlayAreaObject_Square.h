#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "subgames/BoardCanvas.h"
#include "subgames/CellObject_Square.h"
#include "subgames/PlayAreaCallbacks.h"
#include "subgames/PlayAreaObject.h"
#include "subgames/SubgameFiles.h"

namespace quendle {

// The board of the sliding tiles: three by three places, one of them the gap.
class PlayAreaObject_Square : public PlayAreaObject, public SquareBoard {
 public:
  PlayAreaObject_Square(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames);

  void LoadObject(const LoadArguments& arguments) override;
  void TurnOn() override;
  void TurnOff() override;
  void UpdateGameData() override;
  void Describe(Inspector& inspector) const override;

  // Slides the tile into the gap beside it, or lets it wiggle.
  void SquareClicked(CellObject_Square& cell, const std::string& state) override;
  // Goes on with a wiggle, or looks whether the board is in order.
  void AnimationDone() override;
  // True if a tile would stand fully on the field there.
  bool CheckPosition(const CoordObject& coord) const;

 protected:
  void LoadGameData(const std::string& path) override;
  void StartGame() override;
  void StopGame() override;
  bool TakesMouse(const std::string& action) const override;
  void DropCells() override;

 private:
  void RequirePlayableBoard() const;
  void LayOutTiles();
  void AddTile(int place, int row, int column, std::vector<bool>& used);
  int DrawFreeTile(const std::vector<bool>& used);
  int TileNamed(const std::string& state) const;
  int PlaceOf(int tile) const;
  int GapBeside(int place) const;
  bool IsGap(int place) const;
  void Slide(CellObject_Square& cell, int place, int gap);
  void BeginWiggle(CellObject_Square& cell, int place);
  void WiggleOn();
  void SetRandomGoal(CellObject_Square& cell, int index);
  bool IsInOrder() const;
  void FlyOut();
  // Of a place, counted from 0.
  int PlaceX(int index) const;
  int PlaceY(int index) const;
  int LastTile() const;

  // Valid while loaded.
  SquareData data_;
  std::unique_ptr<BoardCanvas> canvas_;

  // Change in play. Entry 0 of both arrays is not used.
  std::vector<std::int16_t> m_aBoard;  // tile number of each place, 0 for the gap
  std::vector<std::shared_ptr<CellObject_Square>> m_aCells;  // by the place they began at
  std::int32_t m_lStartTime = 0;                             // whole seconds since midnight
  bool m_bSolved = false;
  bool m_bAnimating = false;  // a tile moves; input is closed
  std::int16_t m_nWiggles = 0;
  std::int16_t m_nWigglePos = 0;  // place of the wiggling tile, from 0
  std::weak_ptr<CellObject_Square> m_ptrWiggleCell;
  std::int16_t cell_width_ = 0;
  std::int16_t cell_height_ = 0;
};

}  // namespace quendle
