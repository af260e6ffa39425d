// "HelpSys.txt": five lines, "True" or "False", in the order of the fields.

#include <array>

#include "base/ContentFiles.h"
#include "logic/GameLogicLayer.h"
#include "logic/ScreenMeaning.h"
#include "media/MediaWorld.h"

namespace quendle {
namespace {

constexpr const char* kFile = "\\HelpSys.txt";

std::array<bool*, 5> Fields(HelpMemory& help) {
  return {&help.m_bHelpMedicalBook, &help.m_bHelpPatientRoom, &help.m_bHelpToolRoom,
          &help.m_bHelpElevator, &help.m_bHelpToolItem};
}

}  // namespace

bool& HelpMemory::GivenAt(HelpPlace place) {
  switch (place) {
    case HelpPlace::kMedicalBook:
      return m_bHelpMedicalBook;
    case HelpPlace::kPatientRoom:
      return m_bHelpPatientRoom;
    case HelpPlace::kToolRoom:
      return m_bHelpToolRoom;
    case HelpPlace::kElevator:
      return m_bHelpElevator;
  }
  return m_bHelpElevator;
}

void GameLogicLayer::ReadHelpMemory() {
  const ContentFiles& files = world_.media.content;
  const std::string path = files.BaseDirectory() + kFile;
  if (!files.FileExistsAt(path)) return;
  auto stream = files.OpenTextFileChecked(path, OpenMode::kRead, false);
  for (bool* field : Fields(help_)) {
    std::string line = stream->ReadLine("\"True\" or \"False\"");
    if (!EqualsNoCase(line, "true") && !EqualsNoCase(line, "false")) {
      throw FatalError("\"" + line + "\" is neither \"True\" nor \"False\"", stream->Place());
    }
    *field = EqualsNoCase(line, "true");
  }
}

void GameLogicLayer::WriteHelpMemory() const {
  const ContentFiles& files = world_.media.content;
  auto stream = files.OpenTextFileChecked(files.BaseDirectory() + kFile, OpenMode::kWrite, true);
  HelpMemory help = help_;
  for (const bool* field : Fields(help)) stream->WriteLine(*field ? "True" : "False");
  stream->Close();
}

}  // namespace quendle
