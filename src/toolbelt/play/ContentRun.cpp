#include "toolbelt/play/ContentRun.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <ostream>
#include <stdexcept>

#include "base/FatalError.h"
#include "base/PlayerFiles.h"
#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "toolbelt/drive/Arguments.h"
#include "toolbelt/drive/Drive.h"

namespace quendle {
namespace {

// A folder that isn't a content tree is told as that, not by the first file that it lacks.
void RequireContent(const std::string& folder) {
  namespace fs = std::filesystem;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (EqualsNoCase(at->path().filename().string(), "Info")) return;
  }
  throw std::runtime_error(folder + (error
                                         ? ": " + error.message()
                                         : ": there is no content: a tree has a folder \"Info\""));
}

}  // namespace

ContentRun::ContentRun(const std::string& content, const DriveOptions& options)
    : base_(std::filesystem::canonical(content).string()),
      files_({base_, user_.Path(), ""}, faults_),
      session_(files_, faults_, base_, options) {
  RequireContent(base_);
  for (const char* name : kPlayerFiles) {
    const std::string path = base_ + "\\" + name;
    if (files_.Exists(path)) files_.Remove(path);
  }
}

bool ContentRun::Play(const std::string& difficulty) {
  for (const std::string& line : CommandsToPlay(difficulty)) RunCommandLine(session_, line);
  return session_.Running();
}

std::vector<std::string> ContentRun::Screens() {
  std::vector<std::string> screens;
  session_.Logic().Keeper()->EnumerateScreens(screens);
  return screens;
}

bool ContentRun::Enter(const std::string& screen) {
  GameLogicLayer& logic = session_.Logic();
  if (!logic.Keeper()->DoesScreenExist(screen)) {
    throw CommandRefused("there is no screen \"" + screen + "\"" +
                         DidYouMean(screen, logic.Keeper()->Table().Keys()));
  }
  if (EqualsNoCase(logic.CurrentScreen()->ObjectName(), screen)) return true;
  return session_.Deliver([&] { logic.Send("cs_" + screen); });
}

int ContentRun::TellFault(std::ostream& out) {
  const FaultReport& fault = session_.Game().Fault();
  out << ToUtf8(FatalError(fault.text, fault.place).what()) << "\n";
  if (!fault.object.empty()) out << "  object:  " << ToUtf8(fault.object) << "\n";
  if (!fault.message.empty()) out << "  in work: " << ToUtf8(fault.message) << "\n";
  return kGameFailed;
}

std::vector<std::string> CommandsToPlay(const std::string& difficulty) {
  if (EqualsNoCase(difficulty, "Normal")) return {"play"};
  return {"start", "press Picture1 1", "set opt" + difficulty + " on", "press Picture1 1"};
}

}  // namespace quendle
