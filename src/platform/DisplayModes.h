#pragma once

namespace quendle {

// Display modes of the window path.
class DisplayModes {
 public:
  virtual ~DisplayModes() = default;
  // ChangeDisplaySettingsA with the test flag; negative when the mode can't be had.
  virtual long Test(int width, int height, int depth) = 0;
  // The same with the full-screen flag: sets the mode.
  virtual long Set(int width, int height, int depth) = 0;
  // Back to the registered mode.
  virtual void Restore() = 0;
};

}  // namespace quendle
