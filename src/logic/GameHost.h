#pragma once

namespace quendle {

// What the game's rules need of the program around them.
class GameHost {
 public:
  virtual ~GameHost() = default;
  // Tells the main window that the application has lost the focus.
  virtual void Deactivate() = 0;
  virtual void OpenProductPage() = 0;
  virtual void ShowPointer(bool visible) = 0;
  virtual void Beep() = 0;
};

}  // namespace quendle
