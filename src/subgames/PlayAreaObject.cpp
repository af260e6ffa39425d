#include "subgames/PlayAreaObject.h"

#include <optional>
#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/PathTokens.h"
#include "base/Text.h"
#include "base/Watch.h"
#include "media/MediaWorld.h"
#include "object/MessageWork.h"
#include "object/ObjectWorld.h"
#include "platform/Clock.h"
#include "platform/Ports.h"
#include "platform/RandomSource.h"
#include "platform/TimerService.h"
#include "script/ActionText.h"
#include "subgames/PlayAreaVerbs.h"
#include "subgames/SubgameFiles.h"
#include "subgames/SubgameKinds.h"

namespace quendle {

PlayAreaObject::PlayAreaObject(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames,
                               SubgameKind kind)
    : ForwardingObject(world), world_(world), subgames_(std::move(subgames)), kind_(kind) {}

PlayAreaObject::~PlayAreaObject() { KillGameTimer(); }

void PlayAreaObject::LoadObject(const LoadArguments& arguments) {
  LoadArguments inner = arguments;
  inner.directives = "unused";
  Inner().LoadObject(inner);
  const std::string stored = StoredGamePath(arguments);
  if (IsNothing(stored)) return;
  LoadGameData(world_.media.content.BaseDirectory() + LoadCurrentDirectory(stored));
}

std::string PlayAreaObject::StoredGamePath(const LoadArguments& arguments) const {
  const ContentFiles& files = world_.media.content;
  auto data = files.OpenTextFileChecked(arguments.data_file, OpenMode::kRead, false);
  std::optional<std::string> path = ReadGamePathOfDataFile(*data);
  if (!path && !arguments.object_file.empty()) {
    auto object = files.OpenTextFileChecked(arguments.object_file, OpenMode::kRead, false);
    path = ReadGamePathOfObjectFile(*object);
  }
  if (path) return *path;
  throw FatalError(
      "play area \"" + arguments.name +
          "\" needs the path of its game's data, or \"nothing\": a sixth line of this file",
      {files.DisplayName(arguments.data_file), 6});
}

void PlayAreaObject::LoadCellFile(const ObjectRef& cell, const std::string& file,
                                  const std::string& type, const std::string& name) {
  LoadArguments arguments;
  arguments.type = type;
  arguments.name = name;
  arguments.data_file = file;
  arguments.depth = "0";
  arguments.parent = weak_from_this();
  arguments.child_list = "nothing";
  arguments.outer = cell;
  arguments.context = DrawingSurface();
  cell->LoadObject(arguments);
}

void PlayAreaObject::AdoptCell(const ObjectRef& cell) { Children().Add(cell, cell->ObjectName()); }

bool PlayAreaObject::TakesMouse(const std::string& action) const {
  return ContainsNoCase(action, "mouseclick") || ContainsNoCase(action, "mouseover");
}

void PlayAreaObject::UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) {
  if (m_bStopped || !TakesMouse(action.Text())) return;
  const unsigned game = game_;
  // The inner object takes its position off once more for the cells: they are hit where they are
  // shown only while the area stands at 0,0.
  const std::int16_t inner_x = ToInt16(x - xpos(), "x in a play area");
  const std::int16_t inner_y = ToInt16(y - ypos(), "y in a play area");
  if (m_strSelected.empty()) {
    Inner().UpdateGameObject(inner_x, inner_y, action);
  } else {
    Inner().UpdateGameObject(inner_x, inner_y, ActionText(action.Text() + m_strSelected));
  }
  if (!m_bStopped && game == game_) PlayMouse(x, y, action.Text());
}

void PlayAreaObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                   bool verifying, bool& result) {
  const PlayAreaVerb verb = PlayAreaVerbOf(kind_, message);
  if (verb == PlayAreaVerb::kInner) {
    Inner().HandleMessage(message, sender, verifying, result);
    return;
  }
  const MessageWork work(Inner(), message, sender, verifying);
  if (!verifying) CarryOut(verb, message);
}

void PlayAreaObject::CarryOut(PlayAreaVerb verb, const std::string& message) {
  switch (verb) {
    case PlayAreaVerb::kStartGame:
      return StartGame();
    case PlayAreaVerb::kStopGame:
      return StopGame();
    case PlayAreaVerb::kEndGame:
      return EndGame(false);
    case PlayAreaVerb::kReplayGame:
      return PauseForReplay();
    case PlayAreaVerb::kRestartGame:
      return RestartGame();
    case PlayAreaVerb::kSelect:
      return SelectCell(message);
    case PlayAreaVerb::kAcceptedCell:
      return AcceptCell();
    case PlayAreaVerb::kInner:
      return;
  }
}

void PlayAreaObject::AddChildObject(ObjectRef child) {
  if (child != nullptr && child.get() != this) added_.push_back(std::move(child));
}

void PlayAreaObject::TurnOff() {
  Inner().TurnOff();
  KillGameTimer();
}

void PlayAreaObject::Release(bool forced) {
  if (!forced && world_.GlobalObjectExists(ObjectName())) return;
  KillGameTimer();
  DropCells();
  added_.clear();
  Inner().Release(forced);
}

void PlayAreaObject::PrepareGame() {
  DropCells();
  m_bStopped = true;
  ended_ = false;
  ++game_;
}

void PlayAreaObject::BeginGame() {
  m_bStopped = false;
  ended_ = false;
}

void PlayAreaObject::EndGame(bool won) {
  if (ended_) return;
  ended_ = true;
  ++game_;
  if (StopsBeforeItsEnd()) m_bStopped = true;
  DropCells();
  StopGame();
  TellAbove(won ? "subgame_won" : "subgame_lost");
}

void PlayAreaObject::DropCells() {
  // Taken out first: a cell that dies finds the list as it is by then.
  SetChildren(ObjectList("child"));
}

void PlayAreaObject::StartGameTimer(int milliseconds) {
  KillGameTimer();
  const int id = world_.media.ports.timers.SetTimer(
      Milliseconds(milliseconds), RowOf(kind_).timer,
      [subgames = subgames_, kind = kind_](int fired) { OnPlayAreaTimer(*subgames, kind, fired); });
  SetGameUpdateTimerID(ToInt16(id, "timer id"));
  subgames_->CurrentPlayArea(kind_) = weak_from_this();
}

void PlayAreaObject::KillGameTimer() {
  if (GameUpdateTimerID() == 0) return;
  world_.media.ports.timers.KillTimer(GameUpdateTimerID());
  SetGameUpdateTimerID(0);
}

std::int16_t PlayAreaObject::GameUpdateTimerID() const {
  return Int16FromText(timer_id_, "timer id");
}

void PlayAreaObject::SetGameUpdateTimerID(std::int16_t id) { timer_id_ = std::to_string(id); }

void PlayAreaObject::TellParent(const std::string& message) {
  if (std::shared_ptr<MessageTarget> parent = Parent()) parent->Send(message, this);
}

void PlayAreaObject::TellAbove(const std::string& message) {
  bool unused = false;
  Inner().NotifyParent(message, false, unused);
}

double PlayAreaObject::Rnd() { return world_.media.ports.random.Rnd(); }
void PlayAreaObject::SeedFromClock() { world_.media.ports.random.Randomize(TimeOfDay()); }
double PlayAreaObject::TimeOfDay() { return world_.media.ports.clock.TimeOfDay(); }

void PlayAreaObject::Describe(Inspector& inspector) const {
  ForwardingObject::Describe(inspector);
  inspector.Flag("m_bStopped", m_bStopped);
  inspector.Field("m_strSelected", m_strSelected);
  inspector.Field("GameUpdateTimerID", GameUpdateTimerID());
}

}  // namespace quendle
