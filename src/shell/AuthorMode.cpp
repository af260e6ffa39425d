#include "shell/AuthorMode.h"

#include "diagnostics/AuthorLines.h"
#include "logic/GameLogicLayer.h"
#include "shell/Application.h"

namespace quendle {

AuthorMode::~AuthorMode() { SwitchOn(false); }

void AuthorMode::SwitchOn(bool on) {
  if (on == on_) return;
  on_ = on;
  application_.SetTracer(on ? &trail_ : nullptr);
}

AuthorPage AuthorMode::PageAt(std::optional<Point> pointer) {
  AuthorPage page;
  page.trail = LinesOf(trail_);
  const Globals* globals = application_.Game();
  if (globals == nullptr || globals->GameLogic == nullptr || !pointer) return page;
  const std::vector<ObjectUnder> objects =
      ObjectsUnder(*pointer, *globals->GameLogic, globals->objects);
  page.under = LinesOf(*pointer, objects);
  page.outlines = OutlinesOf(objects);
  return page;
}

}  // namespace quendle
