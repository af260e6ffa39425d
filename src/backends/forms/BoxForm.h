#pragma once

#include <optional>
#include <string>
#include <vector>

#include "backends/forms/TextPainter.h"
#include "platform/Form.h"

namespace quendle {

// The form of a modal box: a text beside a friendly face, perhaps a line to type into, buttons.
class BoxForm : public FormEvents {
 public:
  struct Plan {
    std::string title;
    std::string text;
    std::vector<std::string> buttons;  // names of their art, from the left; the first is Enter's
    int escape = 0;                    // the button that Esc and closing stand for
    bool input = false;
  };
  // `text` measures; it is not kept.
  BoxForm(Plan plan, TextPainter& text);

  Form& Record() { return form_; }
  // Position of the button that was pressed; nothing while the box stands.
  std::optional<int> Answer() const { return answer_; }
  const Plan& Asked() const { return plan_; }
  // It went because its window was closed.
  bool Closed() const { return closed_; }
  // What was typed.
  std::string Typed();

  void PointerOverForm() override { Highlight(-1); }
  void PointerOver(Control& control) override;
  void Press(Control& control, Point at) override;
  void Key(FormKey key) override;
  void QueryClose() override {
    answer_ = plan_.escape;
    closed_ = true;
  }

 private:
  void LayOut(TextPainter& text);
  void AddButtons();
  void Highlight(int button);
  void MoveFocus(int step);
  Control& Button(int number);

  Plan plan_;
  Form form_;
  int first_button_ = 0;  // position in the record
  std::optional<int> answer_;
  bool closed_ = false;
};

}  // namespace quendle
