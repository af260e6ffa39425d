// Plain records of a form and its controls, shared by the form logic, the hosts and the tools.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Picture.h"

namespace quendle {

enum class ControlKind { kPicture, kLabel, kRadio, kCheck, kFrame, kLine, kImage, kScroll, kText };

struct Control {
  std::string name;  // "Picture1", "optEasy", "lines"
  int index = 0;     // element of a control array, 0 for a single control
  ControlKind kind = ControlKind::kLabel;
  std::string text;  // labels break it into lines inside their area; pictures: the button's word
  Rect area;         // in pixels of the form
  bool visible = true;
  bool enabled = true;
  int value = 0;        // radio and check: 0 or 1; scroll bar: position
  int maximum = 0;      // scroll bar
  std::string group;    // radio: name of its frame; one of a group is set
  std::string picture;  // picture box: name of its art, such as "ok" or "ok-highlight"
  Color color = 0;      // line: its colour; label and text: colour of the letters
  bool link = false;    // label: leads somewhere when pressed
  bool hover = false;   // label: shown with the look of a link under the pointer
  int font_size = 9;    // points
  SharedPicture image;  // image: what it shows, stretched to its area
  Rect clip;            // image and line: the part of the form it is seen in; empty for all of it
  // Line: 0 fills its area, else a stroke of that width from the area's left top to its right
  // bottom corner, which may lie left of it or above.
  int thickness = 0;
};

enum class WindowState { kNormal, kMinimised };

struct Form {
  std::string name;
  std::string caption;
  bool visible = false;
  bool enabled = false;
  WindowState window_state = WindowState::kNormal;  // a host sets normal when the player does so
  Size size;
  std::vector<Control> controls;
  int focus = -1;  // position in `controls` of the control with the keyboard focus, or -1

  // The control of that name (case ignored) and index; nothing when there is none.
  Control* Find(std::string_view control_name, int index = 0);
};

// Keys that a form understands.
enum class FormKey { kTab, kBackTab, kUp, kDown, kLeft, kRight, kSpace, kEnter, kEscape };

// Handlers of a form's events, implemented by the form's logic.
class FormEvents {
 public:
  virtual ~FormEvents() = default;
  virtual void PointerOverForm() = 0;
  virtual void PointerOver(Control& control) = 0;
  virtual void Press(Control& control, Point at) = 0;  // `at`: pixels of the control
  // A value chosen otherwise than by a press: a radio or check by a tool (0 or 1), a scroll bar
  // (its position). The form's logic changes the record.
  virtual void Set(Control& /*control*/, int /*value*/) {}
  // True while a file may be dropped on the form: only then the pointer shows that it may.
  virtual bool TakesDrops() const { return false; }
  // A file was dropped on the form; the path is the system's.
  virtual void Drop(const std::string& /*native_path*/) {}
  virtual void Key(FormKey key) = 0;
  virtual void QueryClose() = 0;  // the window system asks the form to close
  // The system wants the program to end, by a signal for instance. A box is no more than closed:
  // who asked it goes on, and what stands behind it is told then.
  virtual void EndProgram() { QueryClose(); }
};

}  // namespace quendle
