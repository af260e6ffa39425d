#include "shell/ObjectClasses.h"

#include <initializer_list>
#include <memory>

#include "logic/BodyViewObject.h"
#include "logic/ButtonObject.h"
#include "logic/MenuObject.h"
#include "logic/PatientObject.h"
#include "logic/ScreenObject.h"
#include "logic/ToolObject.h"
#include "object/ObjectFactory.h"
#include "subgames/SubgameClasses.h"

namespace quendle {
namespace {

template <class Class>
void Register(ObjectFactory& factory, std::initializer_list<const char*> words) {
  for (const char* word : words) {
    factory.Register(word, [](ObjectWorld& world) { return std::make_shared<Class>(world); });
  }
}

}  // namespace

void RegisterObjectClasses(ObjectFactory& factory) {
  Register<ScreenObject>(factory, {"hall", "overlay"});
  Register<ButtonObject>(factory, {"dialog", "button", "key"});
  Register<PatientObject>(factory, {"doctor", "patient"});
  Register<MenuObject>(factory, {"menu"});
  Register<ToolObject>(factory, {"tool"});
  Register<BodyViewObject>(factory, {"bodyview"});
  RegisterSubgameClasses(factory);
}

}  // namespace quendle
