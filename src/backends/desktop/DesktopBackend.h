#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "backends/codecs/PictureDecoderLoader.h"
#include "backends/desktop/DebugWindow.h"
#include "backends/desktop/DesktopBoxes.h"
#include "backends/desktop/DesktopClock.h"
#include "backends/desktop/DesktopEventLoop.h"
#include "backends/desktop/DesktopFormHost.h"
#include "backends/desktop/DesktopSystem.h"
#include "backends/desktop/DesktopWindow.h"
#include "backends/desktop/FontFinder.h"
#include "backends/desktop/GameFolders.h"
#include "backends/desktop/GameOptions.h"
#include "backends/desktop/SdlFonts.h"
#include "backends/desktop/SdlLibrary.h"
#include "backends/desktop/StepClock.h"
#include "backends/files/DiskFileSystem.h"
#include "backends/forms/AuthorLayer.h"
#include "backends/forms/CaptionLayer.h"
#include "backends/forms/CaptionSetting.h"
#include "backends/forms/FormPainter.h"
#include "backends/forms/TextPainter.h"
#include "backends/raster/BitmapPictureSaver.h"
#include "backends/raster/RasterDirectDraw.h"
#include "backends/raster/RasterDisplayModes.h"
#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"
#include "backends/sound/OpenAlFilterGraphs.h"
#include "base/SeededRandom.h"
#include "platform/Faults.h"
#include "platform/Ports.h"

namespace quendle {

// Everything the game needs of a desktop, built and connected.
//
//   DesktopBackend backend("wumbly", options, GameFolders::Find(...));
//   if (!backend.TellWhatIsMissing()) return 1;
//   ... a game over backend.GetPorts() that shows its start-up form ...
//   backend.Run();  // ends by the exception that ends the game
class DesktopBackend {
 public:
  // Without a display: FatalError. A `clock` that isn't null goes in place of the system's, for
  // sounds as well, and outlives the backend.
  DesktopBackend(const std::string& program, const GameOptions& options, GameFolders folders,
                 Clock* clock = nullptr);

  Ports& GetPorts() { return ports_; }
  DesktopEventLoop& Loop() { return loop_; }
  // Settings.BaseDirectory of the game.
  const std::string& BaseDirectory() const { return folders_.content; }
  // The recorder of user actions is asked for: the interval of its ticks in milliseconds.
  const std::optional<std::int16_t>& Tester() const { return tester_; }
  // With which the random generator began.
  std::uint64_t Seed() const { return seed_; }
  // Without content or a font: tells the player in a box and gives false.
  bool TellWhatIsMissing(const std::string& product);
  // What is said in the game, for captions.
  void SetCaptionSource(CaptionSource* source) { captions_.SetSource(source); }
  // True if the player asked to see what authors see.
  bool WantsDebug() const { return wants_debug_; }
  // What F12 shows over the frame; null for nothing.
  void SetAuthorSource(AuthorSource* source) { author_.SetSource(source); }
  // Opens a window beside the game that shows the text; null closes it. The text outlives it.
  void ShowBeside(const TextSource* text);
  // Runs the event loop for ever: ProcessEnds and FatalError leave through it.
  void Run();
  // Shows a fatal error; the game window may stand or not.
  void ShowFatal(const std::string& product, const std::string& text);

 private:
  void Beep();

  GameFolders folders_;
  bool wants_debug_;
  SdlLibrary library_;
  const std::optional<std::int16_t> tester_;
  DesktopClock real_clock_;
  StepClock step_clock_{real_clock_};  // in use while the recorder is asked for
  Clock& clock_;
  DesktopEventLoop loop_;
  const std::uint64_t seed_;
  SeededRandom random_;
  Faults faults_;  // nothing is planned to fail
  DiskFileSystem files_;
  RasterScreen screen_;
  RasterGdi gdi_;
  RasterDirectDraw direct_draw_;
  RasterDisplayModes display_modes_;
  OpenAlFilterGraphs filter_graphs_;
  FontFinder font_files_;
  SdlFonts fonts_;
  TextPainter text_;
  FormPainter painter_;
  DesktopFormHost forms_;
  CaptionSetting caption_setting_;
  CaptionLayer captions_;
  AuthorLayer author_{text_};
  std::shared_ptr<DesktopWindow> window_;
  std::shared_ptr<DebugWindow> beside_;
  PictureDecoderLoader picture_loader_;
  BitmapPictureSaver picture_saver_;
  DesktopBoxes boxes_;
  DesktopSystem system_;
  Ports ports_;
};

}  // namespace quendle
