#include "object/ObjectVerbs.h"

#include "base/FirstFit.h"

namespace quendle {
namespace {

constexpr FitRow<ObjectVerb> kRows[] = {
    {Fit::kHolds, "showobj", ObjectVerb::kShowObj},
    {Fit::kHolds, "runscript", ObjectVerb::kRunScript},
    {Fit::kIs, "useraction", ObjectVerb::kUserAction},
    {Fit::kHolds, "hidetype", ObjectVerb::kHideType},
    {Fit::kHolds, "hideobj", ObjectVerb::kHideObj},
    {Fit::kIs, "addglobalobj", ObjectVerb::kAddGlobalObj},
    {Fit::kHolds, "showtype", ObjectVerb::kShowType},
    {Fit::kHolds, "totype", ObjectVerb::kToType},
    {Fit::kHolds, "toobj", ObjectVerb::kToObj},
    {Fit::kIs, "toscreen", ObjectVerb::kClimb},
    {Fit::kIs, "runstate", ObjectVerb::kRunState},
    {Fit::kIs, "changestate", ObjectVerb::kChangeState},
    {Fit::kIs, "processstate", ObjectVerb::kChangeState},
    {Fit::kHolds, "cs", ObjectVerb::kClimb},
    {Fit::kHolds, "removeobj", ObjectVerb::kRemoveObj},
};

}  // namespace

ObjectVerb ObjectVerbOf(std::string_view first_word) {
  return FirstFit(kRows, first_word, ObjectVerb::kClimb);
}

bool EndsAtChildren(ObjectVerb verb) {
  switch (verb) {
    case ObjectVerb::kShowObj:
    case ObjectVerb::kShowType:
    case ObjectVerb::kToType:
    case ObjectVerb::kToObj:
      return true;
    case ObjectVerb::kHideObj:
    case ObjectVerb::kHideType:
    case ObjectVerb::kRunScript:
    case ObjectVerb::kUserAction:
    case ObjectVerb::kAddGlobalObj:
    case ObjectVerb::kRunState:
    case ObjectVerb::kChangeState:
    case ObjectVerb::kRemoveObj:
    case ObjectVerb::kClimb:
      return false;
  }
  return false;
}

}  // namespace quendle
