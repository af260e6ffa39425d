#pragma once

#include <cstdint>
#include <functional>

#include "logic/GameHost.h"
#include "platform/GameWindow.h"

namespace quendle {

class SettingsFiles;
struct Globals;

// The one game window: hands its events to the game and watches the application's focus.
class Quendle_Game_Screen : public GameWindowEvents, public GameHost {
 public:
  // All must outlive the window.
  Quendle_Game_Screen(Globals& globals, SettingsFiles& files) : globals_(globals), files_(files) {}

  void Load() override;
  // Ends the process; the frame that called in runs ShutDownGame.
  void Unload() override;
  void KeyPress(int code) override;
  void MouseDown(int button, int shift, double x, double y) override;
  void MouseMove(int button, int shift, double x, double y) override;

  void Deactivate() override;
  void OpenProductPage() override;
  void ShowPointer(bool visible) override;
  void Beep() override;

 private:
  void HookWindowProc();
  std::intptr_t GameWindowProc(int window, unsigned message, std::intptr_t w, std::intptr_t l);

  Globals& globals_;
  SettingsFiles& files_;
  int GameWindowHandle = 0;
  WindowProc SavedWindowProc;  // the procedure that the hook replaced; empty without the hook
};

}  // namespace quendle
