// A platform for tests of pictures and sounds: the raster backend, files in memory, boxes that
// note their texts.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "backends/codecs/PictureDecoderLoader.h"
#include "backends/raster/BitmapPictureSaver.h"
#include "backends/raster/PictureFiles.h"
#include "backends/raster/RasterDirectDraw.h"
#include "backends/raster/RasterDisplayModes.h"
#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"
#include "base/ContentFiles.h"
#include "base/EventSink.h"
#include "base/SeededRandom.h"
#include "base/Settings.h"
#include "base/TimerQueue.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "platform/Boxes.h"
#include "platform/Faults.h"
#include "platform/FormHost.h"
#include "platform/GameWindow.h"
#include "platform/Ports.h"
#include "platform/SystemServices.h"
#include "support/FakeSounds.h"

namespace quendle {

class StoppedClock : public Clock {
 public:
  double TimeOfDay() override { return 0; }
  Milliseconds Monotonic() override { return {}; }
};

class NotedBoxes : public Boxes {
 public:
  std::vector<std::pair<std::string, std::string>> shown;
  void MessageBox(const std::string& title, const std::string& text) override {
    shown.emplace_back(title, text);
  }
  bool YesNoBox(const std::string&, const std::string&) override { return true; }
  std::string InputBox(const std::string&, const std::string&) override { return {}; }
  std::string ChooseFile(const std::string&, const std::vector<FileFilter>&) override { return {}; }
};

class StillWindow : public GameWindow {
 public:
  explicit StillWindow(ContextHandle context) : context_(context) {}
  Point corner;
  void Show(GameWindowEvents&) override {}
  int Handle() const override { return 7; }
  ContextHandle DrawingContext() override { return context_; }
  void SetCaption(const std::string&) override {}
  std::optional<WindowProc> ReplaceWindowProc(WindowProc) override { return std::nullopt; }
  void SendMessageA(unsigned, std::intptr_t, std::intptr_t) override {}
  void ShowPointer(bool) override {}
  void Beep() override {}
  Point ClientToScreen() override { return corner; }
  void Close() override {}

 private:
  ContextHandle context_;
};

class NoForms : public FormHost {
 public:
  void Add(Form&, FormEvents&) override {}
  void Remove(Form&) override {}
  void Update(Form&) override {}
};

class NoServices : public SystemServices {
 public:
  bool PreviousInstanceRuns() override { return false; }
  int MajorVersion() override { return 5; }
  void OpenInShell(const std::string&) override {}
  void Beep() override {}
};

class NotedLog : public EventSink {
 public:
  std::vector<std::string> lines;
  void LogEvent(std::string_view message, int, std::string_view) override {
    lines.emplace_back(message);
  }
};

struct MediaPlatform {
  MediaPlatform() {
    settings.BaseDirectory = "C:";
    world.log = &log;
    files.Put("C:\\info\\tools\\tool.bmp", Drawn({"kr", "rr"}));
  }

  Settings settings;
  PictureFiles files;
  Faults faults;
  RasterScreen screen;
  RasterGdi gdi{files, screen, faults};
  RasterDirectDraw direct_draw{gdi, screen, faults};
  RasterDisplayModes modes{faults};
  StoppedClock clock;
  TimerQueue timers{clock};
  SeededRandom random{1};
  NotedBoxes boxes;
  FakeSounds graphs;
  StillWindow window{gdi.WindowContext()};
  NoForms forms;
  NoServices system;
  NotedLog log;
  PictureDecoderLoader picture_loader;
  BitmapPictureSaver picture_saver{files};
  Ports ports{files,  clock,  timers, random, boxes,          gdi,          direct_draw, modes,
              graphs, window, forms,  system, picture_loader, picture_saver};
  ContentFiles content{files, settings};
  MediaWorld world{settings, ports, content};
};

}  // namespace quendle
