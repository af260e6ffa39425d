#include "backends/headless/HeadlessFormHost.h"

#include <algorithm>

namespace quendle {
namespace {

bool IsShown(const Form& form) { return form.visible && form.enabled; }

// The two pictures of a button stand in one place and act alike: the hidden one is reached too.
bool Reachable(const Control& control) {
  return control.enabled && (control.visible || control.kind == ControlKind::kPicture);
}

bool Accepts(const Control& control, int value) {
  switch (control.kind) {
    case ControlKind::kRadio:
      return value == 1;
    case ControlKind::kCheck:
      return value == 0 || value == 1;
    case ControlKind::kScroll:
      return value >= 0 && value <= control.maximum;
    default:
      return false;
  }
}

}  // namespace

void HeadlessFormHost::Add(Form& form, FormEvents& events) {
  entries_.push_back({&form, &events, 0});
  Update(form);
}

void HeadlessFormHost::Remove(Form& form) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.form == &form; });
}

void HeadlessFormHost::Update(Form& form) {
  for (Entry& entry : entries_) {
    if (entry.form != &form) continue;
    if (!IsShown(form)) {
      entry.shown = 0;
    } else if (entry.shown == 0) {
      entry.shown = ++shows_;
    }
  }
}

Form* HeadlessFormHost::InView() const {
  const Entry* front = Front();
  return front == nullptr ? nullptr : front->form;
}

std::vector<Form*> HeadlessFormHost::Forms() const {
  std::vector<Form*> forms;
  for (const Entry& entry : entries_) forms.push_back(entry.form);
  return forms;
}

bool HeadlessFormHost::OverForm() {
  const Entry* entry = Reach();
  if (entry == nullptr) return false;
  entry->events->PointerOverForm();
  return true;
}

bool HeadlessFormHost::Over(std::string_view control, int index) {
  const Entry* entry = Reach();
  Control* found = entry == nullptr ? nullptr : entry->form->Find(control, index);
  if (found == nullptr || !Reachable(*found)) return false;
  entry->events->PointerOver(*found);
  return true;
}

bool HeadlessFormHost::Press(std::string_view control, int index, Point at) {
  const Entry* entry = Reach();
  Control* found = entry == nullptr ? nullptr : entry->form->Find(control, index);
  if (found == nullptr || !Reachable(*found)) return false;
  entry->events->Press(*found, at);
  return true;
}

bool HeadlessFormHost::Set(std::string_view control, int index, int value) {
  const Entry* entry = Reach();
  Control* found = entry == nullptr ? nullptr : entry->form->Find(control, index);
  if (found == nullptr || !Reachable(*found) || !Accepts(*found, value)) return false;
  entry->events->Set(*found, value);
  return true;
}

bool HeadlessFormHost::Key(FormKey key) {
  const Entry* entry = Reach();
  if (entry == nullptr) return false;
  entry->events->Key(key);
  return true;
}

bool HeadlessFormHost::Drop(const std::string& native_path) {
  const Entry* entry = Reach();
  if (entry == nullptr) return false;
  if (!entry->events->TakesDrops()) return false;
  entry->events->Drop(native_path);
  return true;
}

bool HeadlessFormHost::Close() {
  const Entry* entry = Front();
  if (entry == nullptr) return false;
  entry->events->QueryClose();
  return true;
}

bool HeadlessFormHost::EndProgram() {
  const Entry* entry = Front();
  if (entry == nullptr) return false;
  entry->events->EndProgram();
  return true;
}

const HeadlessFormHost::Entry* HeadlessFormHost::Front() const {
  const Entry* front = nullptr;
  for (const Entry& entry : entries_) {
    if (entry.shown > 0 && (front == nullptr || entry.shown > front->shown)) front = &entry;
  }
  return front;
}

const HeadlessFormHost::Entry* HeadlessFormHost::Reach() {
  const Entry* front = Front();
  if (front != nullptr) front->form->window_state = WindowState::kNormal;
  return front;
}

}  // namespace quendle
