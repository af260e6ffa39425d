#include "subgames/PlayAreaObject_Bkr.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "object/ObjectWorld.h"
#include "subgames/CellObject_BBall.h"
#include "subgames/CellObject_Blinker.h"
#include "subgames/SubgameKinds.h"

namespace quendle {
namespace {

constexpr int kBricks = 32;
constexpr std::int16_t kBalls = 3;
constexpr int kTick = 50;  // milliseconds, at every difficulty
constexpr std::int16_t kBallStart = 300;
constexpr std::int16_t kPaddleX = 350;
constexpr std::int16_t kPaddleY = 550;

// Every sixth brick is of the first kind, every fifth of the others of the second, and so on.
const char* BrickFile(int i) {
  for (int kind = 0; kind < 4; ++kind) {
    if (i % (6 - kind) == 0) return kBrickFiles[static_cast<std::size_t>(kind)];
  }
  return kBrickFiles.back();
}

}  // namespace

PlayAreaObject_Bkr::PlayAreaObject_Bkr(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames)
    : PausablePlayArea(world, std::move(subgames), SubgameKind::kBlinker) {}

void PlayAreaObject_Bkr::TurnOn() {
  PrepareGame();
  m_nBalls = kBalls;
  Inner().TurnOn();
  BuildPlayField();
  TellParent("showobj_Play1");
  StartGameTimer(kTick);
  LetTicksRun();
}

void PlayAreaObject_Bkr::BuildPlayField() {
  // Two numbers are drawn and not used; what comes later in the sequence leans on it.
  Rnd();
  Rnd();
  const std::string folder = InfoFolder();
  for (int i = 1; i <= kBricks; ++i) AddBrick(folder, i);

  m_ptrBall = LoadCell<CellObject_BBall>(folder + "\\" + kBallFile, "shot", "shot1");
  AdoptCell(m_ptrBall);
  m_ptrBall->Setxpos(kBallStart);
  m_ptrBall->Setypos(kBallStart);
  m_ptrBall->CellObject::TurnOn();

  m_ptrPaddle = LoadCell<CellObject_Blinker>(folder + "\\" + kPaddleFile, "paddle", "paddle1");
  m_ptrPaddle->SetGoodCell(true);
  AdoptCell(m_ptrPaddle);
  // Its goal is still 0,0: the first tick takes it into the corner, until the pointer moves.
  m_ptrPaddle->Setxpos(kPaddleX);
  m_ptrPaddle->Setypos(kPaddleY);
  m_ptrPaddle->CellObject::TurnOn();
}

void PlayAreaObject_Bkr::AddBrick(const std::string& folder, int i) {
  auto brick = LoadCell<CellObject_Blinker>(folder + "\\" + BrickFile(i), "cell1",
                                            "cell" + std::to_string(i));
  AddCell(brick);
  // Twenty places for thirty-two bricks: some stand under others.
  brick->Setxpos(ToInt16(i % 3 * 50 + 100, "xpos of a brick"));
  brick->Setypos(ToInt16(RoundHalfEven(i / 5.0) * 50, "ypos of a brick"));
  brick->SetVisible(true);
  brick->CellObject::TurnOn();
}

void PlayAreaObject_Bkr::DropCells() {
  m_ptrBall = nullptr;
  m_ptrPaddle = nullptr;
  PausablePlayArea::DropCells();
}

void PlayAreaObject_Bkr::PlayMouse(std::int16_t x, std::int16_t, const std::string& action) {
  if (m_ptrPaddle != nullptr && ContainsNoCase(action, "mouseover")) {
    m_ptrPaddle->SetGoal(x, kPaddleY);
  }
}

void PlayAreaObject_Bkr::UpdateGameData() {
  if (!TicksRun()) return;
  // Held here: the end of the game drops both, and they still move in this tick.
  const std::shared_ptr<CellObject_BBall> ball = m_ptrBall;
  const std::shared_ptr<CellObject_Blinker> paddle = m_ptrPaddle;
  if (ball == nullptr || paddle == nullptr) return;
  const unsigned game = Game();
  CountDownFireDelay();
  if (!StrikeBricks(*ball)) EndGame(true);
  if (ball->DidWeHitCell(*paddle)) ball->ChangeDirection(*paddle, 1);
  ball->Update();
  paddle->Update();
  // A game that is won can't lose its ball any more.
  if (game == Game() && ball->DidWeHitTheGutter()) LoseBall(*ball);
}

bool PlayAreaObject_Bkr::StrikeBricks(CellObject_BBall& ball) {
  bool any_left = false;
  for (const auto& brick : m_colCells) {
    if (!brick->Visible()) continue;
    any_left = true;
    if (!ball.DidWeHitCell(*brick)) continue;
    brick->SetVisible(false);
    brick->RunSound("bounce");
    ball.ChangeDirection(*brick, 1);
  }
  return any_left;
}

void PlayAreaObject_Bkr::LoseBall(CellObject_BBall& ball) {
  ball.RunSound("hit");
  ball.ResetBall();
  --m_nBalls;
  if (m_nBalls == 0) {
    EndGame(false);
  } else {
    Send("replaygame", this);
  }
}

void PlayAreaObject_Bkr::PauseForReplay() {
  HoldTicks();
  TellAbove("showobj_replay");
}

void PlayAreaObject_Bkr::Describe(Inspector& inspector) const {
  PausablePlayArea::Describe(inspector);
  inspector.Field("m_nBalls", m_nBalls);
}

}  // namespace quendle
