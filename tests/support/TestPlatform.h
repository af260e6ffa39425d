// A platform for tests: content in memory, virtual time, the raster backend, fake sounds.
#pragma once

#include <string>

#include "backends/files/MemoryFileSystem.h"
#include "backends/headless/HeadlessBackend.h"
#include "backends/raster/PictureFiles.h"
#include "base/ContentFiles.h"
#include "base/Settings.h"
#include "platform/Faults.h"
#include "platform/Ports.h"
#include "support/FakeSounds.h"

namespace quendle {

// A `Globals` or the worlds it is made of can stand on it:
//
//   TestPlatform platform;
//   Globals globals(platform.settings, platform.ports, platform.content);
struct TestPlatform {
  TestPlatform() {
    settings.BaseDirectory = kBase;
    // The window path takes the key colour from this picture.
    files.Put("\\info\\tools\\tool.bmp", Drawn({"kr", "rr"}));
  }

  // Lets virtual time pass; due timers fire.
  void Tick(int milliseconds) {
    backend.Tick(Milliseconds(milliseconds), [](const std::function<void()>& work) {
      work();
      return true;
    });
  }

  static constexpr const char* kBase = "C:\\Game";

  Faults faults;
  MemoryFileSystem files{kBase, &faults};
  HeadlessBackend backend{files, faults};
  FakeSounds sounds;
  Settings settings;
  Ports ports{files,
              backend.clock,
              backend.timers,
              backend.random,
              backend.boxes,
              backend.gdi,
              backend.direct_draw,
              backend.display_modes,
              sounds,
              backend.window,
              backend.forms,
              backend.system,
              backend.picture_loader,
              backend.picture_saver};
  ContentFiles content{files, settings};
};

}  // namespace quendle
