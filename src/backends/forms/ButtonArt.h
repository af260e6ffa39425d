#pragma once

#include <string>
#include <string_view>

#include "backends/forms/Canvas.h"
#include "backends/forms/TextPainter.h"
#include "platform/Geometry.h"

namespace quendle {

// How a picture button stands.
struct ButtonState {
  bool highlighted = false;
  bool pressed = false;
};

// Draws the button whose art is called `name` ("play", "ok", "close", ...) into `area`. `word`
// stands on buttons that have room for it; empty gives the art's own word. An unknown name gives
// a plain button with its word.
void DrawButton(Canvas& canvas, TextPainter& text, std::string_view name, std::string_view word,
                const Rect& area, ButtonState state);

// "ok" of "ok-highlight", and whether the highlight was there.
std::string ArtName(std::string_view picture, bool& highlighted);

}  // namespace quendle
