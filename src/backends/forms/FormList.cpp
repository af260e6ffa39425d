#include "backends/forms/FormList.h"

#include <algorithm>

namespace quendle {

void FormList::Add(Form& form, FormEvents& events) {
  forms_.push_back(std::make_unique<FormInput>(form, events));
}

void FormList::Remove(const Form& form) {
  std::erase_if(forms_, [&](const auto& input) { return &input->Record() == &form; });
}

FormInput* FormList::InView() {
  auto found = std::find_if(forms_.begin(), forms_.end(), [](const auto& input) {
    return input->Record().visible && input->Record().enabled;
  });
  return found == forms_.end() ? nullptr : found->get();
}

}  // namespace quendle
