#include "toolbelt/Render.h"

#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>

#include "backends/files/DiskFileSystem.h"
#include "backends/raster/RasterBitmap.h"
#include "base/FatalError.h"
#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "toolbelt/Arguments.h"
#include "toolbelt/Drive.h"
#include "toolbelt/PngFile.h"
#include "toolbelt/TemporaryFolder.h"

namespace quendle {
namespace {

constexpr int kGameFailed = 3;

int ReportFault(DriveSession& session) {
  std::cerr << "quendle: " << ToUtf8(session.Game().Fault().box_text) << "\n";
  return kGameFailed;
}

void EnterScreen(DriveSession& session, const std::string& screen) {
  GameLogicLayer& logic = session.Logic();
  if (!logic.Keeper()->DoesScreenExist(screen)) {
    throw CommandRefused("there is no screen \"" + screen + "\"" +
                         DidYouMean(screen, logic.Keeper()->Table().Keys()));
  }
  if (EqualsNoCase(logic.CurrentScreen()->ObjectName(), screen)) return;
  session.Deliver([&] { logic.Send("cs_" + screen); });
}

}  // namespace

int RenderScreen(const std::string& content, const std::string& screen,
                 const std::string& png_path) {
  const TemporaryFolder user;
  const std::string base = std::filesystem::canonical(content).string();
  Faults faults;
  DiskFileSystem files({base, user.Path(), ""}, faults);
  DriveSession session(files, faults, base, {});
  RunCommandLine(session, "play");
  if (!session.Running()) return ReportFault(session);
  EnterScreen(session, screen);
  if (!session.Running()) return ReportFault(session);
  const auto frame = session.ComposeFrame();
  if (frame == nullptr) return ReportFault(session);
  WritePng(png_path, frame->Width(), frame->Height(), frame->Pixels());
  return 0;
}

}  // namespace quendle
