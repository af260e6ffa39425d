#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "object/ForwardingObject.h"
#include "screens/GameObjectMemento.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

// Fields that a class tells of itself.
class JsonInspector : public Inspector {
 public:
  explicit JsonInspector(Json& fields) : fields_(fields) {}
  void Field(std::string_view name, std::string_view value) override { At(name) = TextJson(value); }
  void Field(std::string_view name, long value) override { At(name) = value; }
  void Flag(std::string_view name, bool value) override { At(name) = value; }

 private:
  // "points.hits" is the field "hits" of an object "points".
  Json& At(std::string_view name) {
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos) return fields_[std::string(name)];
    return fields_[std::string(name.substr(0, dot))][ToUtf8(name.substr(dot + 1))];
  }

  Json& fields_;
};

Json NamesOfFrames(const GameObject& object) {
  Json names = Json::array();
  for (const FrameRef& frame : object.CurrentFrames()) names.push_back(TextJson(frame->FrameName));
  return names;
}

Json DescribeWithoutChildren(GameObjectInterface& object) {
  Json fields = {{"name", TextJson(object.ObjectName())}, {"type", TextJson(object.ObjectType())}};
  fields["state"] = TextJson(object.CurrentState());
  if (const GameObject* inner = InnerObject(object)) {
    fields["history"] = TextListJson(inner->StateHistory());
    fields["animation"] = TextJson(inner->CurrentAnimationName());
    fields["frames"] = NamesOfFrames(*inner);
  }
  fields["x"] = object.xpos();
  fields["y"] = object.ypos();
  fields["width"] = object.width();
  fields["height"] = object.height();
  fields["visible"] = object.Visible();
  fields["on"] = object.ObjectOn();
  fields["timer"] = object.TimerID();
  if (const auto* inspectable = dynamic_cast<const Inspectable*>(&object)) {
    JsonInspector inspector(fields);
    inspectable->Describe(inspector);
  }
  fields["picture"] = TextJson(object.PictureName());
  return fields;
}

}  // namespace

Json DescribeObject(GameObjectInterface& object) {
  Json fields = DescribeWithoutChildren(object);
  Json names = Json::array();
  for (const auto& [key, child] : object.Children()) names.push_back(TextJson(child->ObjectName()));
  fields["children"] = std::move(names);
  return fields;
}

Json DescribeTree(GameObjectInterface& object) {
  Json fields = DescribeWithoutChildren(object);
  Json children = Json::array();
  for (const auto& [key, child] : object.Children()) children.push_back(DescribeTree(*child));
  fields["children"] = std::move(children);
  return fields;
}

Json DescribeMemento(const GameObjectMemento& memento) {
  Json children = Json::array();
  for (const auto& [key, child] : memento.Children()) children.push_back(DescribeMemento(*child));
  return {{"name", TextJson(memento.ObjectName())},
          {"state", TextJson(memento.CurrentState())},
          {"x", memento.xpos()},
          {"y", memento.ypos()},
          {"visible", memento.Visible()},
          {"children", std::move(children)}};
}

}  // namespace quendle
