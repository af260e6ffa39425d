#include "shell/ObjectClasses.h"

#include <memory>

#include "base/Text.h"
#include "logic/BodyViewObject.h"
#include "logic/ButtonObject.h"
#include "logic/MenuObject.h"
#include "logic/PatientObject.h"
#include "logic/ScreenObject.h"
#include "logic/ToolObject.h"
#include "object/ObjectFactory.h"
#include "screens/ScreenNames.h"
#include "subgames/PointSystemObject.h"
#include "subgames/SubgameClasses.h"
#include "subgames/SubgameKinds.h"
#include "subgames/SubgameObject.h"

namespace quendle {
namespace {

struct TypeWord {
  std::string_view word;
  ObjectClass object_class;
};

// Beside those of the play areas.
constexpr TypeWord kTypeWords[] = {
    {"hall", ObjectClass::kScreen},        {"overlay", ObjectClass::kScreen},
    {"dialog", ObjectClass::kButton},      {"button", ObjectClass::kButton},
    {"key", ObjectClass::kButton},         {"doctor", ObjectClass::kPatient},
    {"patient", ObjectClass::kPatient},    {"menu", ObjectClass::kMenu},
    {"tool", ObjectClass::kTool},          {"bodyview", ObjectClass::kBodyView},
    {kSubgameType, ObjectClass::kSubgame}, {"pointsystem", ObjectClass::kPointSystem},
};

template <class Class>
ObjectRef Make(ObjectWorld& world) {
  return std::make_shared<Class>(world);
}

ObjectFactory::Maker MakerOf(ObjectClass object_class) {
  switch (object_class) {
    case ObjectClass::kScreen:
      return Make<ScreenObject>;
    case ObjectClass::kButton:
      return Make<ButtonObject>;
    case ObjectClass::kPatient:
      return Make<PatientObject>;
    case ObjectClass::kMenu:
      return Make<MenuObject>;
    case ObjectClass::kTool:
      return Make<ToolObject>;
    case ObjectClass::kBodyView:
      return Make<BodyViewObject>;
    case ObjectClass::kSubgame:
      return Make<SubgameObject>;
    case ObjectClass::kPointSystem:
      return Make<PointSystemObject>;
    case ObjectClass::kPlayArea:
      break;  // made with what all play areas of a run share
  }
  return {};
}

}  // namespace

std::optional<ObjectClass> ObjectClassOf(std::string_view type_word) {
  for (const TypeWord& row : kTypeWords) {
    if (EqualsNoCase(row.word, type_word)) return row.object_class;
  }
  if (SubgameKindOf(type_word)) return ObjectClass::kPlayArea;
  return std::nullopt;
}

void RegisterObjectClasses(ObjectFactory& factory) {
  for (const TypeWord& row : kTypeWords) {
    factory.Register(std::string(row.word), MakerOf(row.object_class));
  }
  RegisterPlayAreas(factory);
}

}  // namespace quendle
