#include "screens/ScreenKeeper.h"

#include <algorithm>
#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/Watch.h"
#include "media/MediaWorld.h"
#include "object/ObjectFactory.h"
#include "platform/FileSystem.h"
#include "platform/Ports.h"
#include "screens/ScreenNames.h"

namespace quendle {
namespace {

bool IsSubgame(const GameObjectInterface& screen) {
  return EqualsNoCase(screen.ObjectType(), kSubgameType);
}

// Built anew at each visit.
bool IsNeverKept(const GameObjectInterface& screen) {
  return IsTutorial(screen.ObjectName()) || IsSubgame(screen);
}

// Takes the last memento of that name out of the list and puts the new one at the end.
void Replace(GameObjectMemento::List& list, GameObjectMemento::Ref memento) {
  for (std::size_t i = list.Count(); i >= 1; --i) {
    if (EqualsNoCase(list.Item(i)->ObjectName(), memento->ObjectName())) {
      list.RemoveAt(i);
      break;
    }
  }
  std::string name = memento->ObjectName();
  list.Add(std::move(memento), std::move(name));
}

}  // namespace

void ScreenKeeper::InitializeScreenKeeper(const std::string& path,
                                          std::weak_ptr<MessageTarget> logic,
                                          ContextHandle context) {
  m_ptrGameLogic = std::move(logic);
  m_hDC = context;
  const ContentFiles& files = world_.media.content;
  auto table = files.OpenTextFileChecked(files.BaseDirectory() + path, OpenMode::kRead, false);
  while (!table->AtEndOfStream()) {
    ScreenInfoEntry entry;
    entry.ScreenPath = ReadFilledLine(*table, "the path of a screen");
    auto screen =
        files.OpenTextFileChecked(files.BaseDirectory() + entry.ScreenPath, OpenMode::kRead, false);
    screen->ReadLine("the type word of a screen");
    entry.ScreenName = screen->ReadLine("the name of a screen");
    std::string name = entry.ScreenName;
    m_colScreenInfo.Add(std::move(entry), std::move(name), table->Place());
  }
}

ObjectRef ScreenKeeper::GetScreen(const std::string& name) {
  if (ObjectRef cached = FindCached(name)) return cached;
  ObjectRef screen = BuildScreen(name);
  if (screen == nullptr) return nullptr;
  RestoreMemento(screen);
  if (IsNeverKept(*screen)) return screen;
  MakeRoom();
  m_colScreenCache.Add(ScreenCacheEntry{screen}, screen->ObjectName());
  return screen;
}

ObjectRef ScreenKeeper::FindCached(const std::string& name) {
  ObjectRef found;
  for (auto& entry : m_colScreenCache) {
    ScreenCacheEntry& cached = entry.value;
    if (!EqualsNoCase(cached.m_ptrGameObject->ObjectName(), name)) continue;
    found = cached.m_ptrGameObject;
    cached.m_bFreeToRelease = false;
    cached.m_nAge = 0;
    RestoreMemento(found);
    break;
  }
  // Only a lookup that finds a live screen ages the cache; a build of a new one doesn't.
  if (found == nullptr) return nullptr;
  for (auto& entry : m_colScreenCache) {
    entry.value.m_nAge = SaturatingIncrement(entry.value.m_nAge);
  }
  return found;
}

ObjectRef ScreenKeeper::BuildScreen(const std::string& name) {
  for (const auto& entry : m_colScreenInfo) {
    if (!EqualsNoCase(entry.value.ScreenName, name)) continue;
    world_.watch.Trace(TraceKind::kScreen, name, "", "build");
    return CreateGameObject(world_, world_.media.content.BaseDirectory() + entry.value.ScreenPath,
                            m_hDC, m_ptrGameLogic);
  }
  return nullptr;
}

void ScreenKeeper::MakeRoom() {
  if (m_colScreenCache.Count() < kCacheThreshold) return;
  const ScreenCacheEntry* victim = nullptr;
  for (const auto& entry : m_colScreenCache) {
    const ScreenCacheEntry& cached = entry.value;
    if (!MayGo(cached)) continue;
    if (victim == nullptr || cached.m_nAge > victim->m_nAge) victim = &cached;
  }
  if (victim == nullptr) return;
  ObjectRef screen = victim->m_ptrGameObject;
  ReleaseScreen(screen);
}

bool ScreenKeeper::MayGo(const ScreenCacheEntry& entry) const {
  const GameObjectInterface& screen = *entry.m_ptrGameObject;
  if (!entry.m_bFreeToRelease || IsLayer(screen.ObjectName())) return false;
  // A screen that is entered anew from itself is both the one left and the one in view: it is freed
  // as the former while it is still the latter.
  return held_ == nullptr || !held_(screen);
}

void ScreenKeeper::FreeToReleaseScreen(const ObjectRef& screen) {
  if (screen == nullptr) return;
  for (auto& entry : m_colScreenCache) {
    if (EqualsNoCase(entry.value.m_ptrGameObject->ObjectName(), screen->ObjectName())) {
      entry.value.m_bFreeToRelease = true;
      return;
    }
  }
}

void ScreenKeeper::SaveScreen(const ObjectRef& screen) {
  if (screen == nullptr) return;
  for (auto& entry : m_colScreenCache) {
    GameObjectInterface& cached = *entry.value.m_ptrGameObject;
    if (!EqualsNoCase(cached.ObjectName(), screen->ObjectName())) continue;
    if (!IsNeverKept(cached)) StoreMemento(TakeMemento(cached));
  }
}

void ScreenKeeper::ReleaseScreen(const ObjectRef& screen) {
  if (screen == nullptr) return;
  for (std::size_t i = 1; i <= m_colScreenCache.Count(); ++i) {
    ObjectRef cached = m_colScreenCache.Item(i).m_ptrGameObject;
    if (!EqualsNoCase(cached->ObjectName(), screen->ObjectName())) continue;
    world_.watch.Trace(TraceKind::kScreen, cached->ObjectName(), "", "release");
    if (!IsSubgame(*cached)) StoreMemento(TakeMemento(*cached));
    cached->Release(false);
    m_colScreenCache.RemoveAt(i);
    return;
  }
}

GameObjectMemento::Ref ScreenKeeper::TakeMemento(GameObjectInterface& screen) const {
  auto memento = std::make_shared<GameObjectMemento>();
  screen.CreateMemento(*memento);
  return memento;
}

void ScreenKeeper::StoreMemento(GameObjectMemento::Ref memento) {
  Replace(m_colMementos, std::move(memento));
}

void ScreenKeeper::RestoreMemento(const ObjectRef& screen) {
  if (screen == nullptr) return;
  for (const auto& entry : m_colMementos) {
    if (!EqualsNoCase(entry.value->ObjectName(), screen->ObjectName())) continue;
    GameObjectMemento::Ref memento = entry.value;
    screen->LoadMemento(*memento);
    return;
  }
}

void ScreenKeeper::LoadGame(const std::string& file_name) {
  auto stream = world_.media.content.OpenPlayerFile(FullPath(file_name));
  if (stream == nullptr) return;
  ReadSavedGame(*stream, world_.watch.depth, m_colMementos);
  stream->Close();
}

void ScreenKeeper::ReadSavedGame(TextStream& stream, WorkDepth& depth,
                                 GameObjectMemento::List& list) {
  stream.ReadLine("the first line of a saved game");
  while (!EqualsNoCase(stream.ReadLine("\"begin\" or \"end\" of a saved game"), "end")) {
    auto memento = std::make_shared<GameObjectMemento>();
    memento->LoadFromFile(stream, depth);
    std::string name = memento->ObjectName();
    list.Add(std::move(memento), std::move(name), stream.Place());
  }
}

void ScreenKeeper::SaveGame(const std::string& file_name) {
  SaveAllMementos();
  std::string bytes;
  TextComposer composer(bytes);
  WriteMementos(composer, m_colMementos);
  if (world_.media.content.TryWrite(FullPath(file_name), bytes)) return;
  throw FatalError::WithBox(
      "The game could not be saved in " + file_name +
          ": the disk is full, or it may not be written to.\nWhat was kept of it before comes back "
          "with the next start.",
      {file_name, 0});
}

bool ScreenKeeper::WriteSnapshot(const std::string& file_name) const {
  GameObjectMemento::List list = m_colMementos;
  for (const auto& entry : m_colScreenCache) {
    Replace(list, TakeMemento(*entry.value.m_ptrGameObject));
  }
  std::string bytes;
  TextComposer composer(bytes);
  WriteMementos(composer, list);
  return world_.media.content.TryWrite(FullPath(file_name), bytes);
}

void ScreenKeeper::SaveAllMementos() {
  for (const auto& entry : m_colScreenCache) {
    StoreMemento(TakeMemento(*entry.value.m_ptrGameObject));
  }
}

void ScreenKeeper::WriteMementos(TextStream& stream, const GameObjectMemento::List& list) const {
  stream.WriteLine("begin");
  for (const auto& entry : list) {
    if (!IsNeverSaved(entry.value->ObjectName())) {
      entry.value->SaveToFile(stream, world_.watch.depth);
    }
  }
  stream.WriteLine("end");
}

std::string ScreenKeeper::FullPath(const std::string& file_name) const {
  return world_.media.content.BaseDirectory() + "\\" + file_name;
}

bool ScreenKeeper::DoesScreenExist(const std::string& name) const {
  return std::any_of(m_colScreenInfo.begin(), m_colScreenInfo.end(),
                     [&](const auto& entry) { return EqualsNoCase(entry.value.ScreenName, name); });
}

void ScreenKeeper::EnumerateScreens(std::vector<std::string>& names) const {
  for (const auto& entry : m_colScreenInfo) {
    if (!IsLayer(entry.value.ScreenName)) names.push_back(entry.value.ScreenName);
  }
}

void ScreenKeeper::Release() {
  for (const auto& entry : m_colScreenCache) entry.value.m_ptrGameObject->Release(false);
  m_colScreenCache.Clear();
  m_colScreenInfo.Clear();
  m_colMementos.Clear();
  m_ptrGameLogic.reset();
}

}  // namespace quendle
