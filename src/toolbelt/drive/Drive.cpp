#include "toolbelt/drive/Drive.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "backends/files/ContentHash.h"
#include "backends/files/DiskFileSystem.h"
#include "base/FatalError.h"
#include "base/Text.h"
#include "toolbelt/drive/DriveCommand.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

constexpr int kGameFailed = 3;

Json Refusal(const std::string& reason) { return {{"ok", false}, {"error", ToUtf8(reason)}}; }

Json FatalAnswer(DriveSession& session) {
  const FaultReport& fault = session.Game().Fault();
  Json answer = {{"ok", false}, {"fatal", ToUtf8(fault.text)}};
  answer["file"] = fault.place.file.empty() ? Json() : Json(ToUtf8(fault.place.file));
  answer["line"] = fault.place.line > 0 ? Json(fault.place.line) : Json();
  answer["object"] = ToUtf8(fault.object);
  answer["message"] = ToUtf8(fault.message);
  answer["boxes"] = DescribeBoxes(session.Platform().boxes.TakeShown());
  return answer;
}

Json CarryOut(DriveSession& session, const std::string& line) {
  const std::string_view text = line;
  const std::size_t end = std::min(text.find(' '), text.size());
  const DriveCommand* command = FindCommand(text.substr(0, end));
  if (command == nullptr) {
    throw CommandRefused("there is no command \"" + line.substr(0, end) + "\"");
  }
  Arguments arguments(text.substr(end), command->usage);
  return command->run(session, arguments);
}

std::string_view WithoutLineEnd(std::string_view line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
  while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
  return line;
}

bool ReadCommand(std::istream& in, std::string& command) {
  std::string line;
  while (std::getline(in, line)) {
    const std::string_view text = WithoutLineEnd(line);
    // What a scenario expects of an answer stands behind ">": that is for its runner.
    if (text.empty() || text.front() == '#' || text.front() == '>') continue;
    command = text;
    return true;
  }
  return false;
}

}  // namespace

Json RunCommandLine(DriveSession& session, const std::string& line) {
  Json fields;
  try {
    const std::optional<std::string> text = FromUtf8(line);
    if (!text) return Refusal("a character of the command has no place in the 8-bit set");
    fields = CarryOut(session, *text);
  } catch (const CommandRefused& refused) {
    return Refusal(refused.what());
  } catch (const FatalError& error) {
    // Not of the game, whose faults end in its own frame: an argument that is out of range.
    return Refusal(error.what());
  }
  if (session.Game().GetStatus() == Application::Status::kFailed) return FatalAnswer(session);
  Json answer = {{"ok", true}};
  if (fields.is_object()) answer.update(fields);
  if (session.Game().GetStatus() == Application::Status::kEnded) {
    answer["ended"] = true;
    answer["boxes"] = DescribeBoxes(session.Platform().boxes.TakeShown());
  }
  return answer;
}

int RunDriveSession(DriveSession& session, std::istream& in, std::ostream& out) {
  std::string command;
  while (session.Running() && !session.Quit() && ReadCommand(in, command)) {
    out << RunCommandLine(session, command).dump() << std::endl;
  }
  return session.Game().GetStatus() == Application::Status::kFailed ? kGameFailed : 0;
}

int RunDrive(const DriveSettings& settings) {
  namespace fs = std::filesystem;
  const std::string content = fs::canonical(settings.content).string();
  const std::string user = settings.user.empty() ? "" : fs::canonical(settings.user).string();
  std::ifstream file;
  if (!settings.file.empty()) {
    file.open(settings.file);
    if (!file) throw std::runtime_error(settings.file + ": can't be read");
  }
  Faults faults;
  DiskFileSystem files({content, user, ""}, faults);
  DriveOptions options = settings.options;
  options.content_hash = [&content] { return HashOfContent(content); };
  DriveSession session(files, faults, content, options);
  return RunDriveSession(session, settings.file.empty() ? std::cin : file, std::cout);
}

}  // namespace quendle
