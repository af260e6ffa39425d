#pragma once

#include "backends/desktop/BoxForm.h"
#include "backends/desktop/DesktopEventLoop.h"
#include "backends/desktop/DesktopWindow.h"
#include "platform/Boxes.h"

namespace quendle {

// Boxes drawn by us: over the frame while the game's window is open, else in a window of their
// own; the system's where no window of ours can be had. The event loop runs while one stands.
class DesktopBoxes : public Boxes {
 public:
  // All outlive the boxes.
  DesktopBoxes(DesktopEventLoop& loop, DesktopWindow& window, FormPainter& painter,
               TextPainter& text)
      : loop_(loop), window_(window), painter_(painter), text_(text) {}

  void MessageBox(const std::string& title, const std::string& text) override;
  bool YesNoBox(const std::string& title, const std::string& text) override;
  std::string InputBox(const std::string& title, const std::string& prompt) override;
  // The path is typed, or the file is dropped on the box.
  std::string ChooseFile(const std::string& title) override;

 private:
  // The number of the pressed button.
  int Ask(BoxForm& box);
  void AskOverFrame(BoxForm& box, FormInput& input);
  bool AskInOwnWindow(BoxForm& box, FormInput& input);
  std::string AskForText(const std::string& title, const std::string& prompt);

  DesktopEventLoop& loop_;
  DesktopWindow& window_;
  FormPainter& painter_;
  TextPainter& text_;
};

// The system's own box, or a line on the error output where there is none either. Gives the number
// of the pressed button.
int ShowSystemBox(const std::string& title, const std::string& text,
                  const std::vector<std::string>& buttons);

}  // namespace quendle
