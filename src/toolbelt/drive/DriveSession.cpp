#include "toolbelt/drive/DriveSession.h"

#include "backends/raster/RasterSurface.h"
#include "logic/GameLogicLayer.h"
#include "media/MediaWorld.h"
#include "toolbelt/drive/Arguments.h"

namespace quendle {

DriveSession::DriveSession(FileSystem& files, Faults& faults, const std::string& base_directory,
                           const DriveOptions& options)
    : platform_(files, faults, options.seed),
      game_(platform_.ports, options.edition, base_directory) {
  if (options.tester) game_.SetTester({*options.tester, options.seed, options.content_hash});
  game_.SetForgiving(options.forgiving);
  if (options.window_path) faults.Plan("Create", 0, 0, false);
  platform_.system.SetOtherInstance(options.other_instance);
  if (options.system_version) platform_.system.SetMajorVersion(*options.system_version);
}

void DriveSession::Start() {
  started_ = true;
  game_.Start();
}

bool DriveSession::Deliver(const std::function<void()>& work) {
  return game_.Deliver(work) == Application::Status::kRunning;
}

Globals& DriveSession::World() {
  Globals* globals = game_.Game();
  if (globals == nullptr) throw CommandRefused("no game is on: use `play` first");
  return *globals;
}

GameLogicLayer& DriveSession::Logic() {
  Globals& globals = World();
  if (globals.GameLogic == nullptr) throw CommandRefused("no game is on: use `play` first");
  return *globals.GameLogic;
}

std::shared_ptr<const RasterBitmap> DriveSession::ComposeFrame() {
  GameLogicLayer& logic = Logic();
  if (!Deliver([&logic] { logic.Compose(); })) return nullptr;
  const MediaWorld& media = World().media;
  if (!media.UseDirectX) return platform_.gdi.BitmapOf(logic.BackContext());
  auto surface = std::dynamic_pointer_cast<RasterSurface>(media.off_screen_surface);
  if (surface == nullptr) throw CommandRefused("there is no surface to compose the frame on");
  return {surface, &surface->Bitmap()};
}

}  // namespace quendle
