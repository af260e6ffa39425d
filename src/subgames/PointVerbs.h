#pragma once

#include <string_view>

namespace quendle {

// What a list of points does with a message.
enum class PointVerb {
  kInner,  // what any object does with it
  kAddClass,
  kAddPoints,
  kRemovePoints
};

// By what stands in front of the first underscore, be it empty.
PointVerb PointVerbOf(std::string_view message);

}  // namespace quendle
