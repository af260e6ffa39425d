#pragma once

namespace quendle {

// Opens the game after the start-up form.
class GameStarter {
 public:
  virtual ~GameStarter() = default;
  // Sets UseDirectX and FullScreen, then shows the game window, whose load starts the game. The
  // start-up form is hidden by then and the settings are final.
  virtual void OpenGameWindow() = 0;
};

}  // namespace quendle
