// "HelpSys.txt": five lines, "True" or "False", in the order of the fields.

#include <array>

#include "base/ContentFiles.h"
#include "base/PlayerFiles.h"
#include "logic/GameLogicLayer.h"
#include "logic/ScreenMeaning.h"
#include "media/MediaWorld.h"

namespace quendle {
namespace {

constexpr int kWarningLevel = 10;

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

// It is a comfort: one that can't be read is forgotten, and the help is given again.
void GameLogicLayer::ReadHelpMemory() {
  const ContentFiles& files = world_.media.content;
  const FileAnswer answer = files.Read(PlayerPath(files, kHelpMemoryFile));
  help_is_open_ = !answer && !answer.IsMissing();
  if (!answer) return;
  TextReader stream(*answer, kHelpMemoryFile);
  HelpMemory help;
  for (bool* field : Fields(help)) {
    const std::string line = stream.AtEndOfStream() ? "" : stream.ReadLine("a line");
    *field = EqualsNoCase(line, "true");
    if (*field || EqualsNoCase(line, "false")) continue;
    world_.LogGeneral("HelpSys.txt is damaged: all help is given again", kWarningLevel);
    return;
  }
  help_ = help;
}

void GameLogicLayer::WriteHelpMemory() const {
  if (help_is_open_) return;
  std::string bytes;
  TextComposer composer(bytes);
  HelpMemory help = help_;
  for (const bool* field : Fields(help)) composer.WriteLine(*field ? "True" : "False");
  const ContentFiles& files = world_.media.content;
  files.KeepFile(PlayerPath(files, kHelpMemoryFile), bytes);
}

}  // namespace quendle
