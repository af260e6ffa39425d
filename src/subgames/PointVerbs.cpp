#include "subgames/PointVerbs.h"

#include "base/FirstFit.h"

namespace quendle {
namespace {

constexpr FitRow<PointVerb> kRows[] = {
    {Fit::kIs, "addclass", PointVerb::kAddClass},
    {Fit::kIs, "addpoints", PointVerb::kAddPoints},
    {Fit::kIs, "removepoints", PointVerb::kRemovePoints},
};

}  // namespace

PointVerb PointVerbOf(std::string_view message) {
  return FirstFit(kRows, message.substr(0, message.find('_')), PointVerb::kInner);
}

}  // namespace quendle
