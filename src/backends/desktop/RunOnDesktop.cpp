#include "backends/desktop/RunOnDesktop.h"

#include <iostream>

#include "backends/desktop/DesktopBackend.h"
#include "backends/desktop/FreedMemory.h"
#include "backends/desktop/VersionText.h"
#include "base/FatalError.h"
#include "base/ProcessEnds.h"

namespace quendle {
namespace {

constexpr int kFailed = 1;

int Play(DesktopBackend& backend, const ProgramInfo& info,
         const std::function<int(DesktopBackend&)>& play) {
  try {
    if (!backend.TellWhatIsMissing(info.product)) return kFailed;
    return play(backend);
  } catch (const ProcessEnds&) {
    return 0;
  } catch (const FatalError& error) {
    std::cerr << info.program << ": " << error.what() << "\n";
    backend.ShowFatal(info.product, error.BoxText());
    return kFailed;
  }
}

}  // namespace

int RunOnDesktop(const ProgramInfo& info, int argc, const char* const* argv,
                 const std::function<int(DesktopBackend&)>& play) {
  GiveFreedMemoryBack();
  std::optional<int> exit_code;
  GameOptions options = GameOptions::Parse(info.program, argc, argv, exit_code);
  if (exit_code) return *exit_code;
  GameFolders folders = GameFolders::Find(options, info.program, ExecutableFolder());
  if (options.version) {
    std::cout << VersionText(info.program, info.build, folders);
    return 0;
  }
  try {
    DesktopBackend backend(info.program, options, folders);
    return Play(backend, info, play);
  } catch (const FatalError& error) {
    std::cerr << info.program << ": " << error.what() << "\n";
    return kFailed;
  }
}

}  // namespace quendle
