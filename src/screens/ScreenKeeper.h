#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "object/ObjectWorld.h"
#include "screens/GameObjectMemento.h"

namespace quendle {

// A line of the screen table.
struct ScreenInfoEntry {
  std::string ScreenPath;  // from the base directory
  std::string ScreenName;
};

// A live screen.
struct ScreenCacheEntry {
  ObjectRef m_ptrGameObject;
  std::int16_t m_nAge = 0;        // counts lookups, not time
  bool m_bFreeToRelease = false;  // the game has left the screen
};

// Owns the table of all screens, a small cache of live ones and the saved state of the others.
class ScreenKeeper {
 public:
  // Entries from which on a free one makes room for a new one.
  static constexpr std::size_t kCacheThreshold = 5;

  explicit ScreenKeeper(ObjectWorld& world) : world_(world) {}
  ~ScreenKeeper() { Release(); }
  ScreenKeeper(const ScreenKeeper&) = delete;
  ScreenKeeper& operator=(const ScreenKeeper&) = delete;

  // Reads the table (path from the base directory). `logic` becomes the parent of every screen.
  void InitializeScreenKeeper(const std::string& path, std::weak_ptr<MessageTarget> logic,
                              ContextHandle context);
  // Tells which screens are held elsewhere: those never make room for others.
  void SpareWhile(std::function<bool(const GameObjectInterface&)> held) { held_ = std::move(held); }
  // The screen as the player left it, live or newly built; nothing for an unknown name.
  ObjectRef GetScreen(const std::string& name);
  // The screen may make room for another. Nothing, or a screen not in the cache, is ignored.
  void FreeToReleaseScreen(const ObjectRef& screen);
  // Applies the screen's saved state to it. Nothing asks for RefreshScreen: the game loads.
  void RefreshScreen(const ObjectRef& screen) { RestoreMemento(screen); }
  void LoadScreen(const ObjectRef& screen) { RestoreMemento(screen); }
  // Takes the state of a cached screen. Tutorials and subgames aren't kept.
  void SaveScreen(const ObjectRef& screen);
  // Takes the state of a cached screen, and destroys it.
  void ReleaseScreen(const ObjectRef& screen);
  // Reads the records of a saved game; a damaged one is fatal.
  static void ReadSavedGame(TextStream& stream, WorkDepth& depth, GameObjectMemento::List& list);
  // Reads the saved game (name beside the executable); a missing file is a new game, a damaged one
  // is fatal, and so is one that can't be read.
  void LoadGame(const std::string& file_name);
  // Takes the state of all cached screens and replaces the saved game. A failed write is fatal, and
  // the old file stands.
  void SaveGame(const std::string& file_name);
  // Writes the same as SaveGame would, and changes nothing in the keeper. False when that fails.
  bool WriteSnapshot(const std::string& file_name) const;
  // True if the table has the name, case ignored.
  bool DoesScreenExist(const std::string& name) const;
  // Releases all screens and forgets everything.
  void Release();
  // Appends the names of all screens but "tools" and "cursors".
  void EnumerateScreens(std::vector<std::string>& names) const;

  const KeyedList<ScreenCacheEntry>& Cache() const { return m_colScreenCache; }
  const KeyedList<ScreenInfoEntry>& Table() const { return m_colScreenInfo; }
  const GameObjectMemento::List& Mementos() const { return m_colMementos; }

 private:
  ObjectRef FindCached(const std::string& name);
  ObjectRef BuildScreen(const std::string& name);
  void MakeRoom();
  bool MayGo(const ScreenCacheEntry& entry) const;
  GameObjectMemento::Ref TakeMemento(GameObjectInterface& screen) const;
  void StoreMemento(GameObjectMemento::Ref memento);
  void RestoreMemento(const ObjectRef& screen);
  void SaveAllMementos();
  void WriteMementos(TextStream& stream, const GameObjectMemento::List& list) const;
  std::string FullPath(const std::string& file_name) const;

  ObjectWorld& world_;
  std::function<bool(const GameObjectInterface&)> held_;
  KeyedList<ScreenCacheEntry> m_colScreenCache{"cached screen"};
  KeyedList<ScreenInfoEntry> m_colScreenInfo{"screen"};
  GameObjectMemento::List m_colMementos{"saved screen"};
  std::weak_ptr<MessageTarget> m_ptrGameLogic;
  ContextHandle m_hDC = 0;
};

}  // namespace quendle
