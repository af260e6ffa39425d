#include "toolbelt/play/Walk.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "logic/ScreenWalk.h"
#include "toolbelt/Progress.h"
#include "toolbelt/play/ContentRun.h"
#include "toolbelt/play/WalkReport.h"

namespace quendle {
namespace {

constexpr const char* kHand = "hand";

// The root names of all tools, in the order of the global list; the hand where there is none.
std::vector<std::string> KnownActionWords(const ObjectWorld& world) {
  std::vector<std::string> words;
  for (const auto& [name, object] : world.GlobalObjects) {
    if (EqualsNoCase(object->ObjectType(), "tool")) words.push_back(StripToolWords(name));
  }
  if (words.empty()) words.emplace_back(kHand);
  return words;
}

void StartWalk(DriveSession& session, const WalkSettings& settings,
               const std::shared_ptr<ScreenWalk>& walk) {
  GameLogicLayer& logic = session.Logic();
  logic.SetScreenWalk(walk);
  const auto step = settings.brief ? &GameLogicLayer::EnumerateScreen2Verification
                                   : &GameLogicLayer::EnumerateScreenVerification;
  walk->timer = session.Platform().timers.SetTimer(Milliseconds(settings.interval), "OnWalkTimer",
                                                   [&logic, step](int) { (logic.*step)(); });
}

// Lets time pass until the walk has ended the game, or a fault has.
void LetItWalk(DriveSession& session, const WalkSettings& settings, const ScreenWalk& walk) {
  Progress progress(std::cerr, Progress::ErrorIsTerminal());
  while (session.Running()) {
    session.Platform().Tick(Milliseconds(settings.interval),
                            [&](const auto& work) { return session.Deliver(work); });
    progress.Step("screen", std::min(walk.screen, walk.screens.size()), walk.screens.size());
  }
}

}  // namespace

int RunWalk(const WalkSettings& settings, std::ostream& out, std::ostream& errors) {
  ContentRun run(settings.content, settings.options);
  DriveSession& session = run.Session();
  const auto walk = std::make_shared<ScreenWalk>();
  WalkReport report(*walk);
  session.Game().SetTracer(&report);
  if (!run.Play(settings.difficulty)) return run.TellFault(errors);
  walk->screens = run.Screens();
  walk->words = settings.words.empty() ? KnownActionWords(session.World().objects) : settings.words;
  StartWalk(session, settings, walk);
  LetItWalk(session, settings, *walk);
  report.Print(out);
  out.flush();
  if (session.Game().GetStatus() == Application::Status::kFailed) {
    errors << "on screen " << report.Visits().back().screen << ": ";
    return run.TellFault(errors);
  }
  return report.Warnings() > 0 ? 1 : 0;
}

std::vector<std::string> ReadActionWords(const std::string& text) {
  std::vector<std::string> words;
  // No tool has a name with a dot or a slash in it.
  if (text.find_first_of("./\\") != std::string::npos && !std::filesystem::is_regular_file(text)) {
    throw std::runtime_error(text + ": there is no such file");
  }
  if (std::filesystem::is_regular_file(text)) {
    std::ifstream file(text);
    for (std::string line; std::getline(file, line);) {
      const std::string_view word = TrimBlanks(std::string_view(line).substr(0, line.find('\r')));
      if (!word.empty() && word.front() != '#') words.emplace_back(word);
    }
  } else {
    for (const std::string& part : SplitTokens(text, ',')) {
      const std::string_view word = TrimBlanks(part);
      if (!word.empty()) words.emplace_back(word);
    }
  }
  if (words.empty()) throw std::runtime_error(text + ": there is no action word in it");
  return words;
}

}  // namespace quendle
