#pragma once

#include <functional>
#include <string>
#include <vector>

#include "backends/desktop/DesktopEventLoop.h"
#include "backends/desktop/DesktopWindow.h"
#include "backends/forms/BoxForm.h"
#include "platform/Boxes.h"
#include "platform/PictureLoader.h"

namespace quendle {

// Boxes drawn by us: over the frame while the game's window is open, else in a window of their
// own; the system's where no window of ours can be had. The event loop runs while one stands.
class DesktopBoxes : public Boxes {
 public:
  // All outlive the boxes.
  DesktopBoxes(DesktopEventLoop& loop, DesktopWindow& window, FormPainter& painter,
               TextPainter& text, PictureLoader& loader)
      : loop_(loop), window_(window), painter_(painter), text_(text), loader_(loader) {}

  void MessageBox(const std::string& title, const std::string& text) override;
  bool YesNoBox(const std::string& title, const std::string& text) override;
  std::string InputBox(const std::string& title, const std::string& prompt) override;
  // The desktop's own chooser where there is one, else ours; it begins where the last file was
  // chosen, at first in the folder of pictures.
  std::string ChooseFile(const std::string& title, const std::vector<FileFilter>& filters) override;

 private:
  // The number of the pressed button.
  int Ask(BoxForm& box);
  // Lets a form stand until `done`; false when no window for it can be had. `each_tick` runs some
  // times a second meanwhile and tells whether the form has changed.
  bool Stand(FormInput& input, const std::function<bool()>& done,
             const std::function<bool()>& each_tick);
  bool ChooseNatively(const std::string& title, const std::vector<FileFilter>& filters,
                      std::string& path);
  std::string ChooseInOwnForm(const std::string& title, const std::vector<FileFilter>& filters);
  std::string AskForText(const std::string& title, const std::string& prompt);

  DesktopEventLoop& loop_;
  DesktopWindow& window_;
  FormPainter& painter_;
  TextPainter& text_;
  PictureLoader& loader_;
  std::string folder_;  // of the last chosen file; empty at first
};

// The system's own box, or a line on the error output where there is none either. Gives the number
// of the pressed button.
int ShowSystemBox(const std::string& title, const std::string& text,
                  const std::vector<std::string>& buttons);

}  // namespace quendle
