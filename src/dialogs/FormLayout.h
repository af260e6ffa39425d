// The shared look of the game's forms: a bevel of lines, buttons made of picture pairs, a title
// bar of its own. All lengths are pixels of the form.
#pragma once

#include <string>

#include "platform/Form.h"

namespace quendle {

inline constexpr int kTitleFontSize = 15;
inline constexpr int kTextFontSize = 12;
inline constexpr Color kTextColor = PackColor(0x20, 0x30, 0x40);
inline constexpr Color kLinkColor = PackColor(0x10, 0x40, 0xA0);

// Adds the 16 lines of the bevel, elements 1 to 16 of `lines`, and arranges them. Ring i lies i
// pixels inside the form's edge: element i+1 is its top, i+5 its bottom, i+9 its right and i+13
// its left. Top and left are light, bottom and right dark, the innermost ring a little lighter.
void LoadBorders(Form& form);

// Adds a button as a picture pair: the odd `index` at rest, index+1 its highlighted twin, hidden.
// `art` names the picture ("ok", "ok-highlight"), `word` tells what the button does.
void AddPicturePair(Form& form, int index, const std::string& art, const std::string& word,
                    const Rect& area);

// Moves each even element of Picture1 between `lower` and `upper` next to its odd partner: left
// and top are the partner's plus 1. The sizes are the partner's too.
void PairButtonPictures(Form& form, int lower, int upper);

// Places the buttons minimise, maximise and close, which are the odd elements `minimise`,
// minimise+2 and minimise+4, at the top right: 105, 73 and 41 pixels left of the right edge.
void PositionTitleButtons(Form& form, int minimise);

// Places the title label Label1 and the title-bar buttons along the top edge, clear of the bevel.
// The label keeps its height.
void LayoutTitleBar(Form& form, int minimise);

// Puts the OK button (element 1) into the middle of the bottom edge and pairs all pictures up to
// `last`.
void ArrangeButtons(Form& form, int last);

// All odd elements of Picture1 up to `last` become visible, all even ones hidden; then, for an
// index above 0, that element is hidden and the one behind it shown. True if anything changed.
bool ShowHighlight(Form& form, int index, int last);

// Adds a label `name` with `text`.
Control& AddLabel(Form& form, const std::string& name, const std::string& text, const Rect& area);
// Adds a label that leads somewhere when pressed.
Control& AddLink(Form& form, const std::string& name, const std::string& text, const Rect& area);
// Adds a frame with its caption.
Control& AddFrame(Form& form, const std::string& name, const std::string& text, const Rect& area);
// Adds a radio button to the group of the frame `group`.
Control& AddRadio(Form& form, const std::string& group, const std::string& name,
                  const std::string& text, const Rect& area);
Control& AddCheck(Form& form, const std::string& name, const std::string& text, const Rect& area);

// Adds a place for a picture, an element of its control array.
Control& AddImage(Form& form, const std::string& name, int index, const Rect& area);
// Adds a scroll bar; it lies when it is wider than high.
Control& AddScroll(Form& form, const std::string& name, const Rect& area);

// Sets one radio button and clears the others of its group.
void SetRadio(Form& form, Control& radio);
// Sets the radio button of that name, which must exist.
void SetRadio(Form& form, const std::string& name);
// True if the radio button or check box of that name is set.
bool IsSet(Form& form, const std::string& name);

}  // namespace quendle
