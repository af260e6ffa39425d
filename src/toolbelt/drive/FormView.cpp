#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "toolbelt/drive/DriveSession.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

const char* KindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::kPicture:
      return "picture";
    case ControlKind::kLabel:
      return "label";
    case ControlKind::kRadio:
      return "radio";
    case ControlKind::kCheck:
      return "check";
    case ControlKind::kFrame:
      return "frame";
    case ControlKind::kLine:
      return "line";
    case ControlKind::kImage:
      return "image";
    case ControlKind::kScroll:
      return "scroll";
    case ControlKind::kText:
      return "text";
  }
  return "";
}

Json DescribeControl(const Control& control) {
  return {{"name", TextJson(control.name)}, {"index", control.index},
          {"kind", KindName(control.kind)}, {"text", TextJson(control.text)},
          {"visible", control.visible},     {"enabled", control.enabled},
          {"value", control.value},         {"x", control.area.left},
          {"y", control.area.top},          {"width", control.area.Width()},
          {"height", control.area.Height()}};
}

Json DescribeForm(const Form& form) {
  Json controls = Json::array();
  for (const Control& control : form.controls) controls.push_back(DescribeControl(control));
  const bool minimised = form.window_state == WindowState::kMinimised;
  return {{"name", TextJson(form.name)},
          {"caption", TextJson(form.caption)},
          {"windowState", minimised ? "minimised" : "normal"},
          {"controls", std::move(controls)}};
}

}  // namespace

Json TextJson(std::string_view text) { return ToUtf8(text); }

Json TextListJson(const std::vector<std::string>& texts) {
  Json list = Json::array();
  for (const std::string& text : texts) list.push_back(TextJson(text));
  return list;
}

Json DescribeBoxes(const std::vector<ShownBox>& boxes) {
  Json list = Json::array();
  for (const ShownBox& box : boxes) {
    list.push_back({{"kind", box.kind},
                    {"title", TextJson(box.title)},
                    {"text", TextJson(box.text)},
                    {"answer", TextJson(box.answer)}});
  }
  return list;
}

Json FormAnswer(DriveSession& session) {
  const HeadlessFormHost& host = session.Platform().forms;
  const Form* in_view = host.InView();
  Json forms = Json::array();
  for (const Form* form : host.Forms()) {
    forms.push_back({{"name", TextJson(form->name)}, {"visible", form->visible}});
  }
  return {{"form", in_view == nullptr ? Json() : DescribeForm(*in_view)},
          {"forms", std::move(forms)}};
}

}  // namespace quendle
