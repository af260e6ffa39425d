#include "backends/forms/IconArt.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "backends/forms/Palette.h"

namespace quendle {
namespace {

using namespace palette;

double LineWidth(double radius) { return std::clamp(radius * 0.09, 1.2, 4.0); }

void FillOutlined(Canvas& canvas, const Path& path, Rgba color, double line) {
  canvas.Fill(path, color);
  canvas.Stroke(path, line, kOutline);
}

void DrawEye(Canvas& canvas, Vec centre, double radius) {
  canvas.Fill(Path::Ellipse(centre, radius, radius * 1.2), kOutline);
  Vec glint{centre.x + radius * 0.3, centre.y - radius * 0.45};
  canvas.Fill(Path::Ellipse(glint, radius * 0.38, radius * 0.38), kWhite);
}

Path PuppyEar(Vec c, double r) {
  Path ear;
  ear.MoveTo(c.x - r * 0.50, c.y - r * 0.70);
  ear.CurveTo({c.x - r * 0.95, c.y - r * 0.85}, {c.x - r * 1.18, c.y - r * 0.1},
              {c.x - r * 0.98, c.y + r * 0.28});
  ear.CurveTo({c.x - r * 0.88, c.y + r * 0.46}, {c.x - r * 0.66, c.y + r * 0.30},
              {c.x - r * 0.60, c.y - r * 0.05});
  return ear.Close();
}

void DrawPuppyMouth(Canvas& canvas, Vec c, double r, bool happy) {
  double line = LineWidth(r);
  if (happy) {
    Path tongue = Path::RoundRect(c.x - r * 0.13, c.y + r * 0.52, r * 0.26, r * 0.36, r * 0.13);
    FillOutlined(canvas, tongue, Hex(0xF58A8A), line);
  }
  Path smile;
  smile.MoveTo(c.x - r * 0.30, c.y + r * 0.42);
  smile.CurveTo({c.x - r * 0.24, c.y + r * 0.62}, {c.x - r * 0.04, c.y + r * 0.62},
                {c.x, c.y + r * 0.42});
  smile.CurveTo({c.x + r * 0.04, c.y + r * 0.62}, {c.x + r * 0.24, c.y + r * 0.62},
                {c.x + r * 0.30, c.y + r * 0.42});
  canvas.Stroke(smile, line, kOutline);
  canvas.Stroke(Path().MoveTo(c.x, c.y + r * 0.22).LineTo(c.x, c.y + r * 0.42), line, kOutline);
  canvas.Fill(Path::Ellipse({c.x, c.y + r * 0.17}, r * 0.17, r * 0.12), kOutline);
  canvas.Fill(Path::Ellipse({c.x - r * 0.05, c.y + r * 0.13}, r * 0.05, r * 0.03),
              Hex(0xFFFFFF, 180));
}

}  // namespace

void DrawPuppy(Canvas& canvas, Vec c, double r, bool happy) {
  double line = LineWidth(r);
  Path head = Path::Ellipse({c.x, c.y + r * 0.02}, r * 0.82, r * 0.80);
  FillOutlined(canvas, head, kFur, line);
  canvas.Fill(Path::Ellipse({c.x, c.y + r * 0.38}, r * 0.46, r * 0.36), kCream);
  canvas.Fill(Path::Ellipse({c.x + r * 0.30, c.y - r * 0.20}, r * 0.25, r * 0.30), kCream);
  Path ear = PuppyEar(c, r);
  FillOutlined(canvas, ear, kFurDark, line);
  FillOutlined(canvas, ear.Mirrored(c.x), kFurDark, line);
  DrawEye(canvas, {c.x - r * 0.30, c.y - r * 0.14}, r * 0.13);
  DrawEye(canvas, {c.x + r * 0.30, c.y - r * 0.14}, r * 0.13);
  canvas.Fill(Path::Ellipse({c.x - r * 0.50, c.y + r * 0.20}, r * 0.12, r * 0.08),
              Hex(0xF58A6A, 120));
  canvas.Fill(Path::Ellipse({c.x + r * 0.50, c.y + r * 0.20}, r * 0.12, r * 0.08),
              Hex(0xF58A6A, 120));
  DrawPuppyMouth(canvas, c, r, happy);
}

void DrawPaw(Canvas& canvas, Vec c, double r, double degrees, Rgba color) {
  Path pad;
  pad.MoveTo(c.x, c.y - r * 0.08);
  pad.CurveTo({c.x + r * 0.36, c.y - r * 0.08}, {c.x + r * 0.66, c.y + r * 0.40},
              {c.x + r * 0.50, c.y + r * 0.66});
  pad.CurveTo({c.x + r * 0.34, c.y + r * 0.88}, {c.x + r * 0.16, c.y + r * 0.66},
              {c.x, c.y + r * 0.66});
  pad.CurveTo({c.x - r * 0.16, c.y + r * 0.66}, {c.x - r * 0.34, c.y + r * 0.88},
              {c.x - r * 0.50, c.y + r * 0.66});
  pad.CurveTo({c.x - r * 0.66, c.y + r * 0.40}, {c.x - r * 0.36, c.y - r * 0.08},
              {c.x, c.y - r * 0.08});
  canvas.Fill(pad.Close().Turned(c, degrees), color);
  const double toes[][3] = {
      {-0.68, -0.12, -20}, {-0.27, -0.56, -6}, {0.27, -0.56, 6}, {0.68, -0.12, 20}};
  for (const auto& [x, y, turn] : toes) {
    Vec toe{c.x + r * x, c.y + r * y};
    Path print = Path::Ellipse(toe, r * 0.21, r * 0.29).Turned(toe, turn);
    canvas.Fill(print.Turned(c, degrees), color);
  }
}

void DrawPhoto(Canvas& canvas, Vec c, double r) {
  double line = LineWidth(r);
  auto turned = [&](const Path& path) { return path.Turned(c, -6); };
  Path rim = turned(Path::RoundRect(c.x - r * 0.78, c.y - r * 0.92, r * 1.56, r * 1.84, r * 0.10));
  FillOutlined(canvas, rim, kPaper, line);
  canvas.Fill(turned(Path::RoundRect(c.x - r * 0.62, c.y - r * 0.76, r * 1.24, r * 1.24, r * 0.06)),
              Hex(0xBFE3F5));
  Vec face{c.x - r * 0.02, c.y - r * 0.08};
  canvas.Fill(Path::Ellipse({face.x, face.y - r * 0.10}, r * 0.46, r * 0.44), Hex(0x8A5A33));
  FillOutlined(canvas, Path::Ellipse({face.x, face.y + r * 0.06}, r * 0.40, r * 0.38), kSkin,
               line * 0.8);
  Path fringe;
  fringe.MoveTo(face.x - r * 0.40, face.y - r * 0.06);
  fringe.CurveTo({face.x - r * 0.30, face.y - r * 0.52}, {face.x + r * 0.34, face.y - r * 0.52},
                 {face.x + r * 0.40, face.y - r * 0.04});
  fringe.CurveTo({face.x + r * 0.20, face.y - r * 0.22}, {face.x - r * 0.04, face.y - r * 0.10},
                 {face.x - r * 0.10, face.y - r * 0.24});
  fringe.CurveTo({face.x - r * 0.16, face.y - r * 0.12}, {face.x - r * 0.30, face.y - r * 0.10},
                 {face.x - r * 0.40, face.y - r * 0.06});
  canvas.Fill(fringe.Close(), Hex(0x8A5A33));
  DrawEye(canvas, {face.x - r * 0.15, face.y + r * 0.06}, r * 0.065);
  DrawEye(canvas, {face.x + r * 0.15, face.y + r * 0.06}, r * 0.065);
  canvas.Stroke(Path::Arc({face.x, face.y + r * 0.16}, r * 0.16, r * 0.13, 25, 155), line * 0.8,
                kOutline);
}

void DrawGear(Canvas& canvas, Vec c, double r, Rgba color, Rgba hole) {
  constexpr int kTeeth = 8;
  std::vector<Vec> points;
  for (int i = 0; i < kTeeth * 4; ++i) {
    bool outer = i % 4 == 1 || i % 4 == 2;
    double shift = i % 4 == 1 ? -0.25 : i % 4 == 2 ? 0.25 : 0;
    double angle = (i + shift * -0.6 - 1.5) * 2 * std::numbers::pi / (kTeeth * 4);
    double radius = outer ? r * 0.88 : r * 0.66;
    points.push_back({c.x + radius * std::cos(angle), c.y + radius * std::sin(angle)});
  }
  Path gear = Path::Polygon(points);
  canvas.Stroke(gear, LineWidth(r) * 2, kOutline);
  canvas.Fill(gear, color);
  canvas.Stroke(gear, LineWidth(r) * 0.5, color);
  FillOutlined(canvas, Path::Ellipse(c, r * 0.28, r * 0.28), hole, LineWidth(r));
}

void DrawGlobe(Canvas& canvas, Vec c, double r) {
  double line = LineWidth(r);
  canvas.Fill(Path::Ellipse(c, r * 0.86, r * 0.86), Hex(0x9AD8F5));
  Path land;
  land.MoveTo(c.x - r * 0.55, c.y - r * 0.42);
  land.CurveTo({c.x - r * 0.1, c.y - r * 0.7}, {c.x + r * 0.2, c.y - r * 0.5},
               {c.x + r * 0.05, c.y - r * 0.2});
  land.CurveTo({c.x - r * 0.1, c.y + r * 0.05}, {c.x - r * 0.35, c.y - r * 0.05},
               {c.x - r * 0.5, c.y - r * 0.1});
  canvas.Fill(land.Close(), kLeaf);
  canvas.Fill(Path::Ellipse({c.x + r * 0.32, c.y + r * 0.34}, r * 0.30, r * 0.22), kLeaf);
  canvas.Stroke(Path::Ellipse(c, r * 0.86, r * 0.86), line, kOutline);
}

void DrawPlaySign(Canvas& canvas, Vec c, double r, Rgba color) {
  Path sign = Path::Polygon(
      {{c.x - r * 0.42, c.y - r * 0.62}, {c.x + r * 0.66, c.y}, {c.x - r * 0.42, c.y + r * 0.62}});
  canvas.Fill(sign, color);
  canvas.Stroke(sign, r * 0.26, color);
}

void DrawArrow(Canvas& canvas, Vec c, double r, double degrees, Rgba color) {
  const Path arrow = Path::Polygon({{c.x - r * 0.8, c.y - r * 0.22},
                                    {c.x + r * 0.05, c.y - r * 0.22},
                                    {c.x + r * 0.05, c.y - r * 0.62},
                                    {c.x + r * 0.8, c.y},
                                    {c.x + r * 0.05, c.y + r * 0.62},
                                    {c.x + r * 0.05, c.y + r * 0.22},
                                    {c.x - r * 0.8, c.y + r * 0.22}})
                         .Turned(c, degrees);
  canvas.Stroke(arrow, LineWidth(r) * 2, kOutline);
  canvas.Fill(arrow, color);
}

void DrawUndo(Canvas& canvas, Vec c, double r, Rgba color) {
  const Path round = Path::Arc(c, r * 0.58, r * 0.58, 200, 480);
  const Path head = Path::Polygon({{c.x - r * 0.92, c.y - r * 0.30},
                                   {c.x - r * 0.16, c.y - r * 0.20},
                                   {c.x - r * 0.62, c.y + r * 0.34}});
  canvas.Stroke(round, r * 0.26 + LineWidth(r) * 2, kOutline);
  canvas.Stroke(head, LineWidth(r) * 2, kOutline);
  canvas.Stroke(round, r * 0.26, color);
  canvas.Fill(head, color);
}

void DrawFolder(Canvas& canvas, Vec c, double r) {
  const double line = LineWidth(r);
  FillOutlined(canvas, Path::RoundRect(c.x - r * 0.9, c.y - r * 0.72, r * 0.8, r * 0.5, r * 0.1),
               kOrangeDeep, line);
  FillOutlined(canvas, Path::RoundRect(c.x - r * 0.9, c.y - r * 0.5, r * 1.8, r * 1.2, r * 0.12),
               kSun, line);
  canvas.Fill(Path::RoundRect(c.x - r * 0.8, c.y - r * 0.38, r * 1.6, r * 0.2, r * 0.08),
              Hex(0xFFFFFF, 110));
}

void DrawTick(Canvas& canvas, Vec c, double r, Rgba color) {
  Path tick;
  tick.MoveTo(c.x - r * 0.6, c.y + r * 0.05);
  tick.LineTo(c.x - r * 0.15, c.y + r * 0.5);
  tick.LineTo(c.x + r * 0.65, c.y - r * 0.5);
  canvas.Stroke(tick, r * 0.32, color);
}

void DrawCross(Canvas& canvas, Vec c, double r, Rgba color) {
  double arm = r * 0.5;
  canvas.Stroke(Path().MoveTo(c.x - arm, c.y - arm).LineTo(c.x + arm, c.y + arm), r * 0.3, color);
  canvas.Stroke(Path().MoveTo(c.x + arm, c.y - arm).LineTo(c.x - arm, c.y + arm), r * 0.3, color);
}

Canvas GameIcon() {
  constexpr int kSide = 64;
  Canvas canvas({kSide, kSide}, 1);
  canvas.Clear(palette::kPeach);
  DrawPuppy(canvas, {kSide / 2.0, kSide / 2.0}, kSide * 0.46, true);
  return canvas;
}

}  // namespace quendle
