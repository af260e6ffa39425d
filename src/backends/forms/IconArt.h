// Small drawings for buttons and boxes. Each fits a circle around `centre`; lengths are form units.
#pragma once

#include "backends/forms/Canvas.h"

namespace quendle {

// A friendly puppy's head; happier (tongue out) when `happy`.
void DrawPuppy(Canvas& canvas, Vec centre, double radius, bool happy);
// A paw's print, turned by `degrees`.
void DrawPaw(Canvas& canvas, Vec centre, double radius, double degrees, Rgba color);
// A child's face in a photograph with a white rim.
void DrawPhoto(Canvas& canvas, Vec centre, double radius);
void DrawGear(Canvas& canvas, Vec centre, double radius, Rgba color, Rgba hole);
void DrawGlobe(Canvas& canvas, Vec centre, double radius);
// A triangle that points right: go on.
void DrawPlaySign(Canvas& canvas, Vec centre, double radius, Rgba color);
// An arrow that points right, turned by `degrees` clockwise.
void DrawArrow(Canvas& canvas, Vec centre, double radius, double degrees, Rgba color);
// An arrow that goes back round in a circle.
void DrawUndo(Canvas& canvas, Vec centre, double radius, Rgba color);
void DrawFolder(Canvas& canvas, Vec centre, double radius);
void DrawTick(Canvas& canvas, Vec centre, double radius, Rgba color);
void DrawCross(Canvas& canvas, Vec centre, double radius, Rgba color);

// The icon of the game's windows.
Canvas GameIcon();

}  // namespace quendle
