#pragma once

#include <vector>

#include "diagnostics/PointerReport.h"
#include "platform/AuthorSource.h"

namespace quendle {

class ClickTrail;

// What lies under the pointer, in words: a few lines an object, the topmost first.
std::vector<AuthorLine> LinesOf(Point pointer, const std::vector<ObjectUnder>& objects);

// The trail of the last click in words: a line a step, indented by what caused what.
std::vector<AuthorLine> LinesOf(const ClickTrail& trail);

// Outlines of the objects, their frames and regions. A frame that is its whole object, and
// what repeats, is left out.
std::vector<AuthorOutline> OutlinesOf(const std::vector<ObjectUnder>& objects);

}  // namespace quendle
