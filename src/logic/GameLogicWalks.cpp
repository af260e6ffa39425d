// The verification walks of the game logic.

#include "logic/GameHost.h"
#include "logic/GameLogicLayer.h"
#include "logic/ScreenWalk.h"
#include "media/MediaWorld.h"
#include "platform/Ports.h"
#include "platform/TimerService.h"

namespace quendle {
namespace {

// Above the threshold of "general.txt": a log of that level keeps the messages alone.
constexpr int kScreenLevel = 20;
constexpr int kMessageLevel = 10;

}  // namespace

void GameLogicLayer::EnumerateScreenVerification() {
  TakeWalkStep([this](ScreenWalk& walk) {
    if (walk.word > walk.words.size()) {
      walk.word = 1;
      // More rounds than count can only come of a walk without words.
      if (walk.round <= ScreenWalk::kRounds) ++walk.round;
    } else if (walk.round > ScreenWalk::kRounds) {
      VisitScreen(walk);
      walk.round = 1;
      ++walk.screen;
    } else if (walk.ScreensLeft()) {
      const std::string message = "toscreen_currentscreen_totype_patient_useraction_" +
                                  walk.words[walk.word - 1] + "mouseclick";
      world_.LogGeneral("Current Message: " + message, kMessageLevel);
      Send(message);
      ++walk.word;
    } else {
      KillWalkTimer(walk);
      Send("exitgame");
    }
  });
}

void GameLogicLayer::EnumerateScreen2Verification() {
  TakeWalkStep([this](ScreenWalk& walk) {
    if (walk.ScreensLeft()) {
      VisitScreen(walk);
      ++walk.screen;
      return;
    }
    KillWalkTimer(walk);
    world_.LogGeneral("Exiting Game", kScreenLevel);
    Send("exitgame");
  });
}

void GameLogicLayer::TakeWalkStep(const std::function<void(ScreenWalk&)>& step) {
  if (walk_ == nullptr) throw FatalError("a step of a verification walk finds no walk");
  const std::shared_ptr<ScreenWalk> walk = walk_;
  if (walk->in_step) return;
  walk->in_step = true;
  step(*walk);
  walk->in_step = false;
}

void GameLogicLayer::VisitScreen(const ScreenWalk& walk) {
  if (!walk.ScreensLeft()) throw FatalError("a verification walk has no screen to go to");
  const std::string& screen = walk.screens[walk.screen - 1];
  world_.LogGeneral("Current Screen: " + screen, kScreenLevel);
  Send("cs_" + screen);
  host_.Beep();
}

void GameLogicLayer::KillWalkTimer(ScreenWalk& walk) {
  world_.media.ports.timers.KillTimer(walk.timer);
  walk.timer = 0;
}

}  // namespace quendle
