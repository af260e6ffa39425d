#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "subgames/PausablePlayArea.h"

namespace quendle {

// The field of the good and the bad cells that drift around and are clicked away.
class PlayAreaObject_Bob : public PausablePlayArea {
 public:
  PlayAreaObject_Bob(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames);

  void TurnOn() override;
  void UpdateGameData() override;
  void Describe(Inspector& inspector) const override;

 protected:
  void PlayMouse(std::int16_t x, std::int16_t y, const std::string& action) override;
  // The end stops the running game in full: its state, and the play button.
  bool StopsBeforeItsEnd() const override { return false; }

 private:
  void BuildPlayField();
  void AddBobbler(int i, bool odd_is_good);
  void AddBadCells(int n);
  void ClickCell(CellObject& cell);
  void ClickGoodCell(CellObject& cell);

  std::string folder_;            // of the cells' files, since the area was turned on last
  std::int16_t m_nCellCount = 0;  // the highest cell number made
};

}  // namespace quendle
