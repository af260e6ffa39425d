#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "subgames/PausablePlayArea.h"

namespace quendle {

class CellObject_BBall;
class CellObject_Blinker;

// The field of the ball, the bricks and the paddle, which follows the pointer along a line.
class PlayAreaObject_Bkr : public PausablePlayArea {
 public:
  PlayAreaObject_Bkr(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames);

  void TurnOn() override;
  void UpdateGameData() override;
  void Describe(Inspector& inspector) const override;

 protected:
  void PauseForReplay() override;
  void RestartGame() override { LetTicksRun(); }
  void PlayMouse(std::int16_t x, std::int16_t y, const std::string& action) override;
  void DropCells() override;

 private:
  void BuildPlayField();
  void AddBrick(const std::string& folder, int i);
  // Lets bricks vanish where the ball is; true if any was left.
  bool StrikeBricks(CellObject_BBall& ball);
  void LoseBall(CellObject_BBall& ball);

  // In m_colCells stand the bricks alone.
  std::shared_ptr<CellObject_BBall> m_ptrBall;
  std::shared_ptr<CellObject_Blinker> m_ptrPaddle;
  std::int16_t m_nBalls = 0;
};

}  // namespace quendle
