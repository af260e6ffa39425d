// A script: parsed, printed, and run for the action texts in the lines before the line "==".

#include <string>
#include <utility>
#include <vector>

#include "Fuzz.h"
#include "MessageGrammar.h"
#include "base/TextStream.h"
#include "base/WorkDepth.h"
#include "script/ActionText.h"
#include "script/Command.h"
#include "script/Program.h"
#include "script/ScriptState.h"
#include "script/ScriptTarget.h"
#include "script/ScriptVariables.h"

using namespace quendle;

namespace {

// Notes the statements that a script carries out.
class NotedStatements : public ScriptTarget {
 public:
  void Interpret(const Statement& statement, bool, bool&) override {
    text += statement.Text() + '\n';
  }
  std::string text;
};

struct Run {
  bool well = false;
  Answer answer = Answer::kEmpty;
  std::string statements;
  friend bool operator==(const Run&, const Run&) = default;
};

template <class Script>
Run RunOnce(const Script& script, const ActionText& action) {
  Run run;
  NotedStatements target;
  run.well = EndsWell([&] { run.answer = script(ScriptVariables(action), target); });
  run.statements = target.text;
  return run;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TextReader stream(std::string(BytesOf(data, size)), "script.txt");
  std::vector<std::string> actions;
  while (!stream.AtEndOfStream()) {
    std::string line = stream.ReadLine("an action");
    if (line == "==") break;
    actions.push_back(std::move(line));
  }
  std::vector<ScriptLine> lines;
  while (!stream.AtEndOfStream()) lines.push_back({stream.ReadLine("a line"), stream.Place()});

  WorkDepth depth;
  ScriptState script;
  if (!EndsWell([&] { script.Parse(lines, depth); })) return 0;
  std::vector<std::string> printed;
  script.PrintScript(printed);
  script.VerifyParse(printed);
  for (const std::string& text : actions) {
    const ActionText action(text);
    // The steps must do what the tree says, also when they remember the branch of the time before.
    const Run tree = RunOnce([&](const auto& variables,
                                 auto& target) { return script.Root().Execute(variables, target); },
                             action);
    for (int time = 0; time < 2; ++time) {
      const Run steps = RunOnce(
          [&](const auto& variables, auto& target) { return script.Execute(variables, target); },
          action);
      Require(steps == tree, "a script's steps do what its tree does");
    }
  }
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  return MutateLines(data, size, most, seed, [](FuzzRandom& random) {
    return Below(random, 6) == 0 ? AnyAction(random) + "\n" : AnyStatements(random);
  });
}
