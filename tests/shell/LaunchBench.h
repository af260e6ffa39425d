// What the tests of the launch stand on.
#pragma once

#include <functional>

#include "backends/headless/HeadlessBackend.h"
#include "dialogs/FormBench.h"
#include "platform/Boxes.h"
#include "platform/Ports.h"
#include "shell/GameStarter.h"
#include "shell/TandrelPrompt.h"

namespace quendle {

class RecordingBoxes : public Boxes {
 public:
  struct Shown {
    std::string kind, title, text;
    friend bool operator==(const Shown&, const Shown&) = default;
  };
  void MessageBox(const std::string& title, const std::string& text) override {
    shown.push_back({"message", title, text});
  }
  bool YesNoBox(const std::string& title, const std::string& text) override {
    shown.push_back({"question", title, text});
    return yes;
  }
  std::string InputBox(const std::string&, const std::string&) override { return ""; }
  std::string ChooseFile(const std::string&, const std::vector<FileFilter>&) override { return ""; }

  bool yes = true;
  std::vector<Shown> shown;
};

class RecordingStarter : public GameStarter {
 public:
  void OpenGameWindow() override {
    ++opened;
    if (at_opening) at_opening();
  }
  int opened = 0;
  std::function<void()> at_opening;
};

struct LaunchBench : FormBench {
  // Makes the start-up form and runs its load.
  void Start(std::int16_t edition = 2) {
    prompt = std::make_unique<TandrelPrompt>(Services(), ports, starter, edition);
    prompt->Load();
  }
  Form& Prompt() { return prompt->Record(); }
  std::string InView() { return host.InView() == nullptr ? "(none)" : host.InView()->name; }
  bool PressPicture(int index) { return host.Press("Picture1", index); }

  RecordingBoxes boxes;
  RecordingStarter starter;
  HeadlessBackend backend{files, faults};
  Ports ports{files,
              backend.clock,
              backend.timers,
              backend.random,
              boxes,
              backend.gdi,
              backend.direct_draw,
              backend.display_modes,
              backend.filter_graphs,
              backend.window,
              host,
              system,
              backend.picture_loader,
              backend.picture_saver};
  std::unique_ptr<TandrelPrompt> prompt;
};

}  // namespace quendle
