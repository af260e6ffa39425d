#include "platform/Form.h"

#include <algorithm>
#include <cctype>

namespace quendle {
namespace {

bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](unsigned char left, unsigned char right) {
                      return std::tolower(left) == std::tolower(right);
                    });
}

}  // namespace

Control* Form::Find(std::string_view control_name, int index) {
  auto found = std::find_if(controls.begin(), controls.end(), [&](const Control& control) {
    return control.index == index && SameName(control.name, control_name);
  });
  return found == controls.end() ? nullptr : &*found;
}

}  // namespace quendle
