#include "backends/forms/BoxParts.h"

#include <utility>

namespace quendle {
namespace {

constexpr int kBevelRings = 4;

}  // namespace

Control& AddControl(Form& form, ControlKind kind, std::string name, const Rect& area) {
  Control& control = form.controls.emplace_back();
  control.kind = kind;
  control.name = std::move(name);
  control.area = area;
  return control;
}

void AddBevel(Form& form) {
  auto add = [&](const Rect& area, int grey) {
    AddControl(form, ControlKind::kLine, "lines", area).color = PackColor(grey, grey, grey);
  };
  auto [width, height] = form.size;
  for (int i = 0; i < kBevelRings; ++i) {
    bool inner = i == kBevelRings - 1;
    add({i, i, width - i, i + 1}, inner ? 0xE0 : 0xC0);
    add({i, i, i + 1, height - i}, inner ? 0xE0 : 0xC0);
    add({i, height - 1 - i, width - i, height - i}, inner ? 0x80 : 0x40);
    add({width - 1 - i, i, width - i, height - i}, inner ? 0x80 : 0x40);
  }
}

}  // namespace quendle
