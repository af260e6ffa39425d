// "HelpSys.txt": five lines, "True" or "False", in the order of the fields.

#include <array>

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"
#include "logic/GameLogicLayer.h"
#include "media/MediaWorld.h"

namespace quendle {
namespace {

std::array<bool*, 5> Fields(HelpMemory& help) {
  return {&help.m_bHelpMedicalBook, &help.m_bHelpPatientRoom, &help.m_bHelpToolRoom,
          &help.m_bHelpElevator, &help.m_bHelpToolItem};
}

}  // namespace

void GameLogicLayer::ReadHelpMemory() {
  const ContentFiles& files = world_.media.content;
  const std::string path = PlayerPath(files, kHelpMemoryFile);
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
  auto stream =
      files.OpenTextFileChecked(PlayerPath(files, kHelpMemoryFile), OpenMode::kWrite, true);
  HelpMemory help = help_;
  for (const bool* field : Fields(help)) stream->WriteLine(*field ? "True" : "False");
  stream->Close();
}

}  // namespace quendle
