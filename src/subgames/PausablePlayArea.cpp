#include "subgames/PausablePlayArea.h"

namespace quendle {

void PausablePlayArea::StartGame() {
  if (Stopped()) LetTicksRun();
  CellPlayArea::StartGame();
}

void PausablePlayArea::Describe(Inspector& inspector) const {
  CellPlayArea::Describe(inspector);
  inspector.Field("m_nRunState", m_nRunState);
}

}  // namespace quendle
