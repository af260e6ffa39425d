#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "object/ForwardingObject.h"
#include "subgames/SubgameWorld.h"

namespace quendle {

enum class PlayAreaVerb;

// What the play areas of all arcade games share: the game data's path, the timer, the messages,
// the start and the end of a game. Its parent is the frame of the subgame.
//
// A game's end sends a message whose scripts may change the screen and drop this area, or turn it
// on anew. Who calls EndGame holds the area, and afterwards compares Game() with the value before
// before it touches a cell.
class PlayAreaObject : public ForwardingObject,
                       public std::enable_shared_from_this<PlayAreaObject> {
 public:
  PlayAreaObject(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames, SubgameKind kind);
  ~PlayAreaObject() override;

  // The directive line of the object file has no effect. Line 6 of the data file, or else of the
  // object file, is the path of the game's data, or "nothing"; without either it is fatal.
  void LoadObject(const LoadArguments& arguments) override;
  // The pointer: nothing happens while no game runs.
  void UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) override;
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
  // Keeps the object and does nothing with it: only cells take part in a game.
  void AddChildObject(ObjectRef child) override;
  void TurnOff() override;
  void Release(bool forced) override;
  void Describe(Inspector& inspector) const override;

  // Ends the game, drops its cells and tells the frame. A game ends once.
  void EndGame(bool won);
  // One tick.
  virtual void UpdateGameData() = 0;

  // Kept as decimal text; 0 when no timer runs.
  std::int16_t GameUpdateTimerID() const;
  void SetGameUpdateTimerID(std::int16_t id);

 protected:
  // Reads the game's data (full path).
  virtual void LoadGameData(const std::string& path) = 0;
  virtual void StartGame() = 0;
  virtual void StopGame() = 0;
  // Verbs that not every kind of game has.
  virtual void PauseForReplay() {}
  virtual void RestartGame() {}
  virtual void SelectCell(const std::string&) {}
  virtual void AcceptCell() {}
  // Whether an event of this text is for the game.
  virtual bool TakesMouse(const std::string& action) const;
  // The pointer's event, in pixels of the screen, after the cells' scripts had it.
  virtual void PlayMouse(std::int16_t, std::int16_t, const std::string&) {}
  // A game that has stopped before its end tells nothing more of the stop.
  virtual bool StopsBeforeItsEnd() const { return true; }
  // Lets go of all cells, inner children included.
  virtual void DropCells();

  // For TurnOn: no game runs, and cells that a game has left behind are gone.
  void PrepareGame();
  // For StartGame.
  void BeginGame();
  void StartGameTimer(int milliseconds);
  // To the frame itself.
  void TellParent(const std::string& message);
  // On its way up from here.
  void TellAbove(const std::string& message);

  bool Stopped() const { return m_bStopped; }
  void SetStopped() { m_bStopped = true; }
  const std::string& Selected() const { return m_strSelected; }
  void Select(std::string name) { m_strSelected = std::move(name); }
  // Another number after each end and each preparation of a game.
  unsigned Game() const { return game_; }

  // `file` is relative to the base directory.
  template <class Cell>
  std::shared_ptr<Cell> LoadCell(const std::string& file, const std::string& type,
                                 const std::string& name) {
    auto cell = std::make_shared<Cell>(world_);
    LoadCellFile(cell, file, type, name);
    return cell;
  }
  // Makes a cell one of the inner children; a name that is there already is fatal.
  void AdoptCell(const ObjectRef& cell);

  ObjectWorld& World() { return world_; }
  // 0 up to but not including 1.
  double Rnd();
  void SeedFromClock();
  double TimeOfDay();

 private:
  void CarryOut(PlayAreaVerb verb, const std::string& message);
  std::string StoredGamePath(const LoadArguments& arguments) const;
  void LoadCellFile(const ObjectRef& cell, const std::string& file, const std::string& type,
                    const std::string& name);
  void KillGameTimer();

  ObjectWorld& world_;
  const std::shared_ptr<SubgameWorld> subgames_;
  const SubgameKind kind_;
  std::vector<ObjectRef> added_;  // never read

  std::string timer_id_ = "0";
  bool m_bStopped = true;
  bool ended_ = false;  // the game that was prepared last
  unsigned game_ = 0;
  std::string m_strSelected;
};

}  // namespace quendle
