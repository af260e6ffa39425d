#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "backends/codecs/PictureDecoderLoader.h"
#include "backends/headless/HeadlessFilterGraphs.h"
#include "backends/headless/HeadlessFormHost.h"
#include "backends/headless/HeadlessSystem.h"
#include "backends/headless/HeadlessWindow.h"
#include "backends/headless/ScriptedBoxes.h"
#include "backends/headless/ScriptedRandom.h"
#include "backends/headless/VirtualClock.h"
#include "backends/raster/BitmapPictureSaver.h"
#include "backends/raster/RasterDirectDraw.h"
#include "backends/raster/RasterDisplayModes.h"
#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"
#include "base/TimerQueue.h"
#include "platform/Faults.h"
#include "platform/Ports.h"

namespace quendle {

// A whole platform without a display, in virtual time: every port, and the player's side of each.
//
//   Faults faults;
//   MemoryFileSystem files("", &faults);
//   HeadlessBackend backend(files, faults);
//   Application game(backend.ports, 2, "");
struct HeadlessBackend {
  // How the due ticks are handed to the game; gives false when the run is over.
  using Deliver = std::function<bool(const std::function<void()>& work)>;
  // What is told of each tick that fired.
  using Fired = std::function<void(const std::string& callback)>;

  // Both must outlive the backend; `seed` begins the generator.
  HeadlessBackend(FileSystem& files, Faults& platform_faults, std::uint64_t seed = 1);
  HeadlessBackend(const HeadlessBackend&) = delete;
  HeadlessBackend& operator=(const HeadlessBackend&) = delete;

  // Lets time pass, going to each due time in turn. Ends early when the run is over.
  void Tick(Milliseconds time, const Deliver& deliver, const Fired& fired = {});

  Faults& faults;
  VirtualClock clock;
  TimerQueue timers{clock};
  ScriptedRandom random;
  ScriptedBoxes boxes;
  RasterScreen screen;
  RasterGdi gdi;
  RasterDirectDraw direct_draw;
  RasterDisplayModes display_modes;
  HeadlessFilterGraphs filter_graphs;
  HeadlessWindow window;
  HeadlessFormHost forms;
  HeadlessSystem system;
  PictureDecoderLoader picture_loader;
  BitmapPictureSaver picture_saver;
  Ports ports;
};

}  // namespace quendle
