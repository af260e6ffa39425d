#include "shell/Quendle_Game_Screen.h"

#include <optional>
#include <utility>

#include "base/Numbers.h"
#include "base/ProcessEnds.h"
#include "base/Settings.h"
#include "logic/GameLogicLayer.h"
#include "platform/Boxes.h"
#include "platform/SystemServices.h"
#include "shell/GameRun.h"
#include "shell/Globals.h"
#include "shell/TesterRun.h"

namespace quendle {
namespace {

constexpr int kEscape = 27;

}  // namespace

void Quendle_Game_Screen::Load() {
  GameWindow& window = globals_.media.ports.window;
  window.SetCaption(globals_.media.settings.ProductName);
  GameWindowHandle = window.Handle();
  HookWindowProc();
  StartUpGame(globals_, files_, *this, GameWindowHandle, window.DrawingContext());
}

void Quendle_Game_Screen::Unload() {
  if (globals_.Tester != nullptr) globals_.Tester->Close();
  throw ProcessEnds{true};
}

void Quendle_Game_Screen::HookWindowProc() {
  std::optional<WindowProc> replaced = globals_.media.ports.window.ReplaceWindowProc(
      [this](int window, unsigned message, std::intptr_t w, std::intptr_t l) {
        return GameWindowProc(window, message, w, l);
      });
  if (replaced) {
    SavedWindowProc = std::move(*replaced);
    return;
  }
  // The game goes on; a loss of focus doesn't pause it then.
  globals_.media.ports.boxes.MessageBox(globals_.media.settings.ProductName,
                                        "Could not handle Redrawing Error Recovery");
}

std::intptr_t Quendle_Game_Screen::GameWindowProc(int window, unsigned message, std::intptr_t w,
                                                  std::intptr_t l) {
  if (message == kActivateAppMessage) {
    std::shared_ptr<GameLogicLayer> logic = globals_.GameLogic;
    globals_.objects.GameActive = w != 0;
    if (globals_.Tester != nullptr) globals_.Tester->Focus(w != 0);
    if (logic != nullptr && w != 0) logic->PlaySound();
    if (logic != nullptr && w == 0) {
      logic->PauseSound();
      logic->Autosave();
    }
  }
  return SavedWindowProc ? SavedWindowProc(window, message, w, l) : 0;
}

void Quendle_Game_Screen::KeyPress(int code) {
  std::shared_ptr<GameLogicLayer> logic = globals_.GameLogic;
  if (logic == nullptr || code != kEscape) return;
  if (globals_.Tester != nullptr) globals_.Tester->Key(code);
  logic->Send("exitondemand");
}

void Quendle_Game_Screen::MouseDown(int, int, double x, double y) {
  std::shared_ptr<GameLogicLayer> logic = globals_.GameLogic;
  if (logic != nullptr)
    logic->MapMouseClick(ToInt16(x, "x of a click"), ToInt16(y, "y of a click"));
}

void Quendle_Game_Screen::MouseMove(int, int, double x, double y) {
  std::shared_ptr<GameLogicLayer> logic = globals_.GameLogic;
  if (logic != nullptr) logic->MapMouseCoords(ToInt16(x, "x of a move"), ToInt16(y, "y of a move"));
}

void Quendle_Game_Screen::Deactivate() {
  globals_.media.ports.window.SendMessageA(kActivateAppMessage, 0, 0);
}

void Quendle_Game_Screen::OpenProductPage() {
  globals_.media.ports.system.OpenInShell(globals_.media.settings.WebAddress);
}

void Quendle_Game_Screen::ShowPointer(bool visible) {
  globals_.media.ports.window.ShowPointer(visible);
}

void Quendle_Game_Screen::Beep() { globals_.media.ports.window.Beep(); }

}  // namespace quendle
