// A whole process over the small clinic: the start-up form, the game window and the game.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "logic/GameLogicLayer.h"
#include "logic/SmallClinic.h"
#include "screens/WorldBench.h"
#include "shell/Application.h"
#include "shell/TandrelPrompt.h"

namespace quendle {

struct GameBench : BenchPlatform {
  explicit GameBench(std::int16_t edition = 2) : application(ports, edition, kBase) {
    PutSmallClinic(files);
    files.Put("\\DialogMode.txt", "On\r\n");  // the difficulty question is answered
  }

  Application::Status Do(const std::function<void()>& work) { return application.Deliver(work); }
  Application::Status Press(int picture) {
    return Do([&] { backend.forms.Press("Picture1", picture); });
  }
  // From process start to the first screen.
  Application::Status Play() {
    application.Start();
    return Press(1);
  }
  Application::Status Click(double x, double y) {
    return Do([&] { backend.window.Click(x, y); });
  }
  Application::Status Focus(bool on) {
    return Do([&] { backend.window.Focus(on); });
  }
  Application::Status Close() {
    return Do([&] { backend.window.CloseByPlayer(); });
  }
  Application::Status Send(const std::string& message) {
    return Do([&] { Logic()->Send(message); });
  }
  void Tick(int milliseconds) {
    backend.Tick(Milliseconds(milliseconds), [this](const std::function<void()>& work) {
      return Do(work) == Application::Status::kRunning;
    });
  }

  std::shared_ptr<GameLogicLayer> Logic() { return application.Game()->GameLogic; }
  ObjectWorld& World() { return application.Game()->objects; }
  std::string Current() {
    ObjectRef screen = Logic()->CurrentScreen();
    return screen == nullptr ? "(none)" : screen->ObjectName();
  }
  // Texts of the boxes shown.
  std::vector<std::string> Boxes() const {
    std::vector<std::string> texts;
    for (const ShownBox& box : backend.boxes.Shown()) texts.push_back(box.text);
    return texts;
  }
  // "operation path" of what changed the files, in order.
  std::vector<std::string> Changes() const {
    std::vector<std::string> changes;
    for (const auto& operation : files.Operations()) {
      if (operation.name == "write" || operation.name == "remove" || operation.name == "create") {
        changes.push_back(operation.name + " " + operation.path.substr(std::string(kBase).size()));
      }
    }
    return changes;
  }

  Application application;
};

}  // namespace quendle
