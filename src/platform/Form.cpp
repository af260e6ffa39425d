#include "platform/Form.h"

#include <algorithm>
#include <cctype>

namespace quendle {
namespace {

bool SameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](unsigned char left, unsigned char right) {
    return std::tolower(left) == std::tolower(right);
  });
}

}  // namespace

Control* Form::Find(std::string_view control_name, int index) {
  auto found = std::ranges::find_if(controls, [&](const Control& control) {
    return control.index == index && SameName(control.name, control_name);
  });
  return found == controls.end() ? nullptr : &*found;
}

}  // namespace quendle
