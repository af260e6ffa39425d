#include "toolbelt/making/TreeTool.h"

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>
#include <ostream>

#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "toolbelt/Progress.h"
#include "toolbelt/drive/Views.h"
#include "toolbelt/play/ContentRun.h"

namespace quendle {
namespace {

constexpr std::size_t kNameColumn = 32;
constexpr std::size_t kTypeColumn = 10;
constexpr std::size_t kStateColumn = 22;

std::string Padded(std::string text, std::size_t width) {
  // Bytes behind the first of a letter take no column.
  const auto more = std::ranges::count_if(text, [](char c) { return (c & 0xC0) == 0x80; });
  const std::size_t columns = text.size() - static_cast<std::size_t>(more);
  text.append(std::max<std::size_t>(2, width - std::min(width, columns)), ' ');
  return text;
}

// One object a line, indented by its depth.
void PrintObject(const Json& object, std::size_t depth, std::ostream& out) {
  const auto text = [&object](const char* field) { return object.value(field, std::string()); };
  const auto number = [&object](const char* field) {
    return std::to_string(object.value(field, 0));
  };
  out << Padded(std::string(depth * 2, ' ') + text("name"), kNameColumn)
      << Padded(text("type"), kTypeColumn) << Padded(text("state"), kStateColumn)
      << Padded("at " + number("x") + "," + number("y"), 12) << number("width") << "x"
      << number("height");
  if (!object.value("visible", true)) out << "  hidden";
  out << "\n";
  for (const Json& child : object["children"]) PrintObject(child, depth + 1, out);
}

// The trees that a content tree is made of: its screens, then what stands beside them.
class Forest {
 public:
  explicit Forest(const TreeSettings& settings) : settings_(settings) {}

  // False when a game ended fatally; that has been told.
  bool Grow(std::ostream& errors) {
    if (!settings_.screen.empty()) return AddScreen(settings_.screen, errors);
    ContentRun run(settings_.content, settings_.options);
    if (!run.Play()) return Failed(run, errors);
    Progress progress(std::cerr, Progress::ErrorIsTerminal());
    const std::vector<std::string> screens = run.Screens();
    for (std::size_t i = 0; i < screens.size(); ++i) {
      progress.Step("screen", i + 1, screens.size());
      if (!AddScreen(screens[i], errors)) return false;
    }
    const GameLogicLayer& logic = run.Session().Logic();
    trees_.push_back(DescribeTree(*logic.ToolsScreen()));
    trees_.push_back(DescribeTree(*logic.CursorsScreen()));
    for (const auto& [name, object] : run.Session().World().objects.GlobalObjects) {
      global_.push_back(DescribeTree(*object));
    }
    return true;
  }

  void Print(std::ostream& out) const {
    for (const Json& tree : trees_) PrintObject(tree, 0, out);
    if (global_.empty()) return;
    out << "global objects\n";
    for (const Json& object : global_) PrintObject(object, 1, out);
  }
  void PrintJson(std::ostream& out) const {
    Json all = {{"screens", trees_}};
    if (!global_.empty()) all["global"] = global_;
    out << all.dump(1) << "\n";
  }

 private:
  // Each screen in a game of its own: what one does on being entered doesn't show in the next.
  bool AddScreen(const std::string& screen, std::ostream& errors) {
    ContentRun run(settings_.content, settings_.options);
    if (!run.Play()) return Failed(run, errors);
    const GameLogicLayer& logic = run.Session().Logic();
    for (const ObjectRef& layer : {logic.ToolsScreen(), logic.CursorsScreen()}) {
      if (!EqualsNoCase(layer->ObjectName(), screen)) continue;
      trees_.push_back(DescribeTree(*layer));
      return true;
    }
    if (!run.Enter(screen)) return Failed(run, errors);
    trees_.push_back(DescribeTree(*logic.CurrentScreen()));
    return true;
  }
  static bool Failed(ContentRun& run, std::ostream& errors) {
    run.TellFault(errors);
    return false;
  }

  const TreeSettings& settings_;
  Json trees_ = Json::array();
  Json global_ = Json::array();
};

}  // namespace

int PrintTree(const TreeSettings& settings, std::ostream& out, std::ostream& errors) {
  Forest forest(settings);
  const bool well = forest.Grow(errors);
  if (settings.json) {
    forest.PrintJson(out);
  } else {
    forest.Print(out);
  }
  return well ? 0 : kGameFailed;
}

}  // namespace quendle
