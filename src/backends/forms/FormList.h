#pragma once

#include <memory>
#include <vector>

#include "backends/forms/FormInput.h"

namespace quendle {

// The forms of a game, in the order in which they were added.
class FormList {
 public:
  // Both outlive their stay in the list.
  void Add(Form& form, FormEvents& events);
  void Remove(const Form& form);
  // The first that is visible and enabled; null for none. It lives until its form is removed.
  FormInput* InView();

 private:
  std::vector<std::unique_ptr<FormInput>> forms_;
};

}  // namespace quendle
