// Scripts under test, parsed from text, and a target that notes what they do.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/TextStream.h"
#include "base/WorkDepth.h"
#include "script/ActionText.h"
#include "script/ScriptState.h"
#include "script/ScriptTarget.h"
#include "script/ScriptVariables.h"
#include "support/Fatal.h"

namespace quendle {

using Lines = std::vector<std::string>;

// The lines of a text as the lines of the script file "s.txt".
inline std::vector<ScriptLine> ScriptLines(const std::string& text) {
  std::vector<ScriptLine> lines;
  TextReader reader(text, "s.txt");
  while (!reader.AtEndOfStream()) {
    std::string line = reader.ReadLine("a line");
    lines.push_back({std::move(line), reader.Place()});
  }
  return lines;
}

inline ScriptState Parsed(const std::string& text) {
  WorkDepth depth;
  ScriptState script;
  script.Parse(ScriptLines(text), depth);
  return script;
}

inline std::string ParseFault(const std::string& text) {
  return FatalOf([&] { Parsed(text); });
}

// A node as text: "begin(action:x,if(boolif1: a = b(action:y)))".
inline std::string Shape(const Command& command) {
  std::string shape(NodeTypeName(command.Type()));
  if (!command.Text().empty()) shape += ":" + command.Text();
  if (command.Children().empty()) return shape;
  shape += "(";
  for (const Command& child : command.Children()) shape += Shape(child) + ",";
  shape.back() = ')';
  return shape;
}

inline std::string ShapeOf(const std::string& text) { return Shape(Parsed(text).Root()); }

// Notes the statements that reach it.
class NotedTarget : public ScriptTarget {
 public:
  Lines statements;
  bool verified = false;
  void Interpret(const Statement& statement, bool verifying, bool&) override {
    statements.push_back(statement.Text());
    verified = verified || verifying;
  }
};

// The statements that a script carries out for an action.
inline Lines RunOf(const std::string& text, const std::string& action) {
  ScriptState script = Parsed(text);
  NotedTarget target;
  ActionText action_text(action);
  script.Execute(ScriptVariables(action_text), target);
  return target.statements;
}

inline std::string RunFault(const std::string& text, const std::string& action) {
  return FatalOf([&] { RunOf(text, action); });
}

inline Lines Printed(const std::string& text) {
  Lines lines;
  Parsed(text).PrintScript(lines);
  return lines;
}

}  // namespace quendle
