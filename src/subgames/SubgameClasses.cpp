#include "subgames/SubgameClasses.h"

#include <memory>

#include "object/ObjectFactory.h"
#include "subgames/PlayAreaObject_Bkr.h"
#include "subgames/PlayAreaObject_Bob.h"
#include "subgames/PlayAreaObject_Shtr.h"
#include "subgames/PlayAreaObject_Square.h"
#include "subgames/PointSystemObject.h"
#include "subgames/SubgameObject.h"
#include "subgames/SubgameWorld.h"

namespace quendle {
namespace {

template <class Class>
void Register(ObjectFactory& factory, const char* word) {
  factory.Register(word, [](ObjectWorld& world) { return std::make_shared<Class>(world); });
}

template <class Area>
void RegisterArea(ObjectFactory& factory, const char* word,
                  const std::shared_ptr<SubgameWorld>& subgames) {
  factory.Register(
      word, [subgames](ObjectWorld& world) { return std::make_shared<Area>(world, subgames); });
}

}  // namespace

void RegisterSubgameClasses(ObjectFactory& factory) {
  auto subgames = std::make_shared<SubgameWorld>();
  Register<SubgameObject>(factory, "subgame");
  Register<PointSystemObject>(factory, "pointsystem");
  RegisterArea<PlayAreaObject_Square>(factory, "playareasquare", subgames);
  RegisterArea<PlayAreaObject_Shtr>(factory, "playareashooter", subgames);
  RegisterArea<PlayAreaObject_Bkr>(factory, "playareablinker", subgames);
  RegisterArea<PlayAreaObject_Bob>(factory, "playareabobbler", subgames);
}

}  // namespace quendle
