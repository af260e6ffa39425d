#include "subgames/SubgameClasses.h"

#include <memory>

#include "object/ObjectFactory.h"
#include "subgames/PlayAreaObject_Bkr.h"
#include "subgames/PlayAreaObject_Bob.h"
#include "subgames/PlayAreaObject_Shtr.h"
#include "subgames/PlayAreaObject_Square.h"
#include "subgames/SubgameKinds.h"
#include "subgames/SubgameWorld.h"

namespace quendle {
namespace {

template <class Area>
ObjectFactory::Maker MakerOf(const std::shared_ptr<SubgameWorld>& subgames) {
  return [subgames](ObjectWorld& world) { return std::make_shared<Area>(world, subgames); };
}

ObjectFactory::Maker AreaMaker(SubgameKind kind, const std::shared_ptr<SubgameWorld>& subgames) {
  switch (kind) {
    case SubgameKind::kSquare:
      return MakerOf<PlayAreaObject_Square>(subgames);
    case SubgameKind::kShooter:
      return MakerOf<PlayAreaObject_Shtr>(subgames);
    case SubgameKind::kBlinker:
      return MakerOf<PlayAreaObject_Bkr>(subgames);
    case SubgameKind::kBobbler:
      return MakerOf<PlayAreaObject_Bob>(subgames);
  }
  return {};
}

}  // namespace

void RegisterPlayAreas(ObjectFactory& factory) {
  auto subgames = std::make_shared<SubgameWorld>();
  for (const SubgameRow& row : Subgames()) {
    factory.Register(std::string(row.type_word), AreaMaker(row.kind, subgames));
  }
}

}  // namespace quendle
