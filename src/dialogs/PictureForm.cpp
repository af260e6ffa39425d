#include "dialogs/PictureForm.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Settings.h"
#include "dialogs/FormFocus.h"
#include "dialogs/FormLayout.h"
#include "platform/FormHost.h"
#include "platform/SystemServices.h"

namespace quendle {
namespace {

constexpr int kArrowScroll = 20;
constexpr Rect kTitleButtonSize{0, 0, 28, 28};

// Where the buttons (by index) with a greater index begin.
auto FirstBehind(const std::vector<FormButton>& buttons, int index) {
  return std::upper_bound(
      buttons.begin(), buttons.end(), index,
      [](int wanted, const FormButton& button) { return wanted < button.index; });
}

}  // namespace

PictureForm::PictureForm(FormServices services, std::string name, Size size) : services_(services) {
  form_.name = std::move(name);
  form_.size = size;
}

PictureForm::~PictureForm() {
  if (registered_) services_.host.Remove(form_);
}

void PictureForm::AddButtons(const std::vector<FormButton>& buttons) {
  for (const FormButton& button : buttons) {
    AddPicturePair(form_, button.index, button.art, button.word, button.area);
    buttons_.insert(FirstBehind(buttons_, button.index), button);
  }
}

void PictureForm::AddTitleButtons(int minimise, std::function<void()> close) {
  AddButtons({
      {minimise, "minimise", "Minimise", kTitleButtonSize, [this] { Minimise(); }},
      {minimise + 2, "maximise", "Maximise", kTitleButtonSize, [this] { services_.system.Beep(); }},
      {minimise + 4, "close", "Close", kTitleButtonSize, std::move(close)},
  });
}

int PictureForm::LastPicture() const { return buttons_.empty() ? 0 : buttons_.back().index + 1; }

void PictureForm::ButtonCommand(int index) {
  const auto behind = FirstBehind(buttons_, index);
  if (behind != buttons_.begin()) std::prev(behind)->action();
}

void PictureForm::Register() {
  services_.host.Add(form_, *this);
  registered_ = true;
}

void PictureForm::SetShown(bool shown) {
  form_.visible = shown;
  form_.enabled = shown;
  form_.focus = -1;
  HighlightButton(0);
  ClearHover();
  Changed();
}

void PictureForm::PointerOverForm() {
  HighlightButton(0);
  ClearHover();
}

void PictureForm::PointerOver(Control& control) {
  if (control.kind == ControlKind::kPicture) HighlightButton(control.index);
  if (control.link) ShowHover(control);
}

void PictureForm::Press(Control& control, Point) {
  switch (control.kind) {
    case ControlKind::kPicture:
      ButtonCommand(control.index);
      break;
    case ControlKind::kRadio:
      Set(control, 1);
      break;
    case ControlKind::kCheck:
      Set(control, control.value != 0 ? 0 : 1);
      break;
    default:
      if (control.link) OpenLink(control);
  }
}

void PictureForm::Set(Control& control, int value) {
  if (control.kind == ControlKind::kRadio) {
    if (value != 0) Choose(control);
  } else if (control.kind == ControlKind::kCheck) {
    control.value = value != 0 ? 1 : 0;
    FocusOn(form_, control);
    Changed();
  }
}

void PictureForm::Key(FormKey key) {
  switch (key) {
    case FormKey::kTab:
      WalkFocus(1);
      break;
    case FormKey::kBackTab:
      WalkFocus(-1);
      break;
    case FormKey::kDown:
    case FormKey::kRight:
      MoveByArrow(1);
      break;
    case FormKey::kUp:
    case FormKey::kLeft:
      MoveByArrow(-1);
      break;
    case FormKey::kSpace:
      PressFocused();
      break;
    case FormKey::kEnter:
      PressEnter();
      break;
    case FormKey::kEscape:
      QueryClose();
      break;
  }
}

void PictureForm::HighlightButton(int index) {
  if (index != 0 && index % 2 == 0) return;
  if (!ShowHighlight(form_, index, LastPicture())) return;
  FollowVisiblePicture(form_);
  Changed();
}

void PictureForm::Minimise() {
  form_.window_state = WindowState::kMinimised;
  Changed();
}

void PictureForm::Changed() {
  if (registered_) services_.host.Update(form_);
}

void PictureForm::ClearHover() {
  bool changed = false;
  for (Control& control : form_.controls) changed |= std::exchange(control.hover, false);
  if (changed) Changed();
}

void PictureForm::ShowHover(Control& link) {
  if (link.hover) return;
  ClearHover();
  link.hover = true;
  Changed();
}

// In every form Label2 is the product's page and Label3 its support.
void PictureForm::OpenLink(const Control& link) {
  const Settings& settings = services_.settings;
  services_.system.OpenInShell(link.name == "Label3" ? "mailto:" + settings.SupportAddress
                                                     : settings.WebAddress);
}

void PictureForm::Choose(Control& radio) {
  SetRadio(form_, radio);
  FocusOn(form_, radio);
  Changed();
}

// A button that has the focus is highlighted, so that it is seen from afar.
void PictureForm::WalkFocus(int step) {
  MoveFocus(form_, step);
  const Control* focused = Focused(form_);
  if (focused == nullptr) return;
  const bool button = focused->kind == ControlKind::kPicture;
  HighlightButton(button ? focused->index : 0);
  Changed();
}

void PictureForm::MoveByArrow(int step) {
  Control* focused = Focused(form_);
  if (focused != nullptr && focused->kind == ControlKind::kRadio) {
    Choose(NeighbourInGroup(form_, *focused, step));
  } else if (focused != nullptr && focused->kind == ControlKind::kScroll) {
    Set(*focused, std::clamp(focused->value + step * kArrowScroll, 0, focused->maximum));
  } else {
    WalkFocus(step);
  }
}

void PictureForm::PressFocused() {
  if (Control* focused = Focused(form_)) Press(*focused, {});
}

void PictureForm::PressEnter() {
  Control* focused = Focused(form_);
  const bool acts = focused != nullptr && (focused->kind == ControlKind::kPicture || focused->link);
  if (acts) {
    Press(*focused, {});
  } else {
    ButtonCommand(DefaultButton());
  }
}

}  // namespace quendle
