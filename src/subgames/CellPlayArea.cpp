#include "subgames/CellPlayArea.h"

#include <cstdlib>
#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/SF_Strings.h"
#include "base/Text.h"
#include "media/MediaWorld.h"
#include "object/ObjectWorld.h"
#include "subgames/SubgameKinds.h"

namespace quendle {

CellPlayArea::CellPlayArea(ObjectWorld& world, std::shared_ptr<SubgameWorld> subgames,
                           SubgameKind kind)
    : PlayAreaObject(world, std::move(subgames), kind) {}

void CellPlayArea::LoadGameData(const std::string& path) {
  auto stream = World().media.content.OpenTextFileChecked(path, OpenMode::kRead, false);
  header_ = ReadGameHeader(*stream);
}

void CellPlayArea::StartGame() {
  if (!Stopped()) return;
  BeginGame();
  SetCellsVisible(true);
}

void CellPlayArea::StopGame() {
  if (Stopped()) return;
  Inner().ProcessState("default");
  TellParent("showobj_Play1");
  SetStopped();
  SetCellsVisible(false);
}

void CellPlayArea::TurnOff() {
  for (std::size_t i = 0; i < m_colCells.size(); ++i) {
    std::shared_ptr<CellObject> cell = m_colCells[i];
    cell->TurnOff();
  }
  PlayAreaObject::TurnOff();
}

void CellPlayArea::DropCells() {
  m_colCells.clear();
  PlayAreaObject::DropCells();
}

void CellPlayArea::AddCell(const std::shared_ptr<CellObject>& cell) {
  m_colCells.push_back(cell);
  AdoptCell(cell);
}

void CellPlayArea::SetCellsVisible(bool visible) {
  for (const auto& cell : m_colCells) cell->SetVisible(visible);
}

void CellPlayArea::CountDownFireDelay() {
  if (m_nFireDelay > 0) --m_nFireDelay;
}

void CellPlayArea::DecrementLife(std::int16_t n) {
  m_nLives = ToInt16(m_nLives - std::abs(n), "lives");
}

void CellPlayArea::SelectCell(const std::string& message) {
  const std::string base = SF_splitLeft(Selected(), "-");
  if (base != Selected()) {
    for (std::size_t i = 0; i < m_colCells.size(); ++i) {
      std::shared_ptr<CellObject> cell = m_colCells[i];
      if (EqualsNoCase(cell->ObjectName(), base)) cell->Send("reset", this);
    }
  }
  Select(SF_remove(message, "select"));
}

void CellPlayArea::AcceptCell() {
  const std::string name = SF_splitLeft(Selected(), "-");
  for (std::size_t i = 0; i < m_colCells.size(); ++i) {
    std::shared_ptr<CellObject> cell = m_colCells[i];
    if (!EqualsNoCase(cell->ObjectName(), name)) continue;
    cell->TurnOff();
    Retire(cell);
    break;
  }
  Children().Remove(name);
  Select("");
  if (m_colCells.empty()) TellAbove("subgamedone");
}

std::string CellPlayArea::InfoFolder() {
  std::shared_ptr<MessageTarget> parent = Parent();
  const auto* frame = dynamic_cast<GameObjectInterface*>(parent.get());
  if (frame == nullptr) {
    throw FatalError("play area \"" + ObjectName() +
                     "\" is in no subgame, after which the folder of its cells is named");
  }
  return FolderOfCells(frame->ObjectName());
}

void CellPlayArea::Describe(Inspector& inspector) const {
  PlayAreaObject::Describe(inspector);
  inspector.Field("m_colCells", static_cast<long>(m_colCells.size()));
  inspector.Field("m_nFireDelay", m_nFireDelay);
}

}  // namespace quendle
