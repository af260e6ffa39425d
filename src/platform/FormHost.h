#pragma once

#include "platform/Form.h"

namespace quendle {

// Shows forms. The form in view is the one that is visible and enabled; logic changes the record
// and then calls Update.
class FormHost {
 public:
  virtual ~FormHost() = default;
  // Makes a form known, once; both must outlive the host or be dropped with Remove.
  virtual void Add(Form& form, FormEvents& events) = 0;
  virtual void Remove(Form& form) = 0;
  // Something of the form changed: visibility, text, values, window state.
  virtual void Update(Form& form) = 0;
};

}  // namespace quendle
