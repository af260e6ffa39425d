#include "backends/forms/ButtonArt.h"

#include <algorithm>
#include <array>

#include "backends/forms/IconArt.h"
#include "backends/forms/Palette.h"
#include "base/Text.h"

namespace quendle {
namespace {

using namespace palette;

constexpr std::string_view kHighlightEnding = "-highlight";
constexpr double kPressedDown = 2;

struct Look {
  std::string_view name;
  std::string_view word;
  Rgba light;
  Rgba deep;
};

constexpr std::array<Look, 20> kLooks = {{{"play", "Play", kLeaf, kLeafDeep},
                                          {"personalize", "Personalize", kOrange, kOrangeDeep},
                                          {"options", "Options", kLavender, kLavenderDeep},
                                          {"link", "Web page", kSky, kSkyDeep},
                                          {"ok", "OK", kLeaf, kLeafDeep},
                                          {"yes", "Yes", kLeaf, kLeafDeep},
                                          {"no", "No", kRose, kRoseDeep},
                                          {"cancel", "Cancel", kRose, kRoseDeep},
                                          {"next", "Next", kLeaf, kLeafDeep},
                                          {"back", "Back", kOrange, kOrangeDeep},
                                          {"browse", "Browse...", kSky, kSkyDeep},
                                          {"undo", "Undo", kLavender, kLavenderDeep},
                                          {"reset", "Start over", kRose, kRoseDeep},
                                          {"up", "", kSky, kSkyDeep},
                                          {"down", "", kSky, kSkyDeep},
                                          {"left", "", kSky, kSkyDeep},
                                          {"right", "", kSky, kSkyDeep},
                                          {"minimise", "", kSun, kOrange},
                                          {"maximise", "", kLeaf, kLeafDeep},
                                          {"close", "", kRose, kRoseDeep}}};

Look LookOf(std::string_view name) {
  auto found = std::find_if(kLooks.begin(), kLooks.end(),
                            [&](const Look& look) { return EqualsNoCase(look.name, name); });
  return found != kLooks.end() ? *found : Look{name, "", kSky, kSkyDeep};
}

// Their sign says it all.
bool IsWordless(std::string_view name) {
  return name == "up" || name == "down" || name == "left" || name == "right";
}

bool IsTitleButton(std::string_view name) {
  return name == "minimise" || name == "maximise" || name == "close";
}

struct Box {
  double x, y, width, height;
  Vec Centre() const { return {x + width / 2, y + height / 2}; }
  double Short() const { return std::min(width, height); }
};

// The button's body; gives the part that is free for icon and word.
Box DrawBody(Canvas& canvas, const Look& look, const Rect& area, ButtonState state) {
  double small = std::min(area.Width(), area.Height());
  double rim = small < 40 ? 2.5 : 5.5;
  double line = small < 40 ? 1.6 : 3;
  double depth = small < 40 ? 2 : std::min(6.0, small * 0.08);
  double down = state.pressed ? kPressedDown : 0;
  Box body{area.left + rim, area.top + rim + down, area.Width() - 2 * rim,
           area.Height() - 2 * rim - depth};
  double radius = std::min(body.Short() * 0.42, 26.0);
  Path top = Path::RoundRect(body.x, body.y, body.width, body.height, radius);
  Path base = Path::RoundRect(body.x, body.y, body.width, body.height + depth - down, radius);
  if (state.highlighted) canvas.Stroke(base, 2 * rim, kSun);
  canvas.Stroke(base, line, kOutline);
  canvas.Fill(base, Mix(look.deep, kOutline, 0.25));
  Rgba light = state.highlighted ? Mix(look.light, kWhite, 0.28) : look.light;
  Rgba deep = state.highlighted ? Mix(look.deep, kWhite, 0.15) : look.deep;
  canvas.FillShaded(top, light, deep, body.y + body.height * 0.35, body.y + body.height);
  canvas.Fill(Path::RoundRect(body.x + radius * 0.5, body.y + body.height * 0.08,
                              body.width - radius, body.height * 0.20, body.height * 0.10),
              Hex(0xFFFFFF, 70));
  canvas.Stroke(top, line, kOutline);
  return body;
}

// Letters in white with a dark rim, readable on every colour.
void DrawWord(Canvas& canvas, TextPainter& text, std::string_view word, Vec centre, double size) {
  TextStyle style{size, true, false, kOutline};
  double rim = std::max(1.0, size * 0.055);
  const Vec around[] = {{-1, 0},   {1, 0},    {0, -1},  {0, 1},  {-.7, -.7},
                        {.7, -.7}, {-.7, .7}, {.7, .7}, {0, 1.7}};
  for (const Vec& step : around) {
    text.DrawCentred(canvas, word, style, {centre.x + step.x * rim, centre.y + step.y * rim});
  }
  style.color = kWhite;
  text.DrawCentred(canvas, word, style, centre);
}

// The largest size up to `wanted` at which the word fits.
double FittingSize(Canvas& canvas, TextPainter& text, std::string_view word, double wanted,
                   double width) {
  double have = text.WidthOf(word, {wanted, true, false, kOutline}, canvas.Scale());
  return have <= width ? wanted : wanted * width / have;
}

void DrawTitleSign(Canvas& canvas, std::string_view name, Vec c, double r) {
  if (name == "close") {
    DrawCross(canvas, c, r, kWhite);
  } else if (name == "minimise") {
    canvas.Stroke(Path().MoveTo(c.x - r * 0.5, c.y + r * 0.4).LineTo(c.x + r * 0.5, c.y + r * 0.4),
                  r * 0.3, kOutline);
  } else {
    canvas.Stroke(Path::RoundRect(c.x - r * 0.5, c.y - r * 0.5, r, r, r * 0.15), r * 0.22, kWhite);
  }
}

void DrawIcon(Canvas& canvas, std::string_view name, Vec c, double r, bool happy) {
  if (name == "play") {
    canvas.Fill(Path::Ellipse(c, r, r), kCream);
    canvas.Stroke(Path::Ellipse(c, r, r), 3, kOutline);
    DrawPuppy(canvas, {c.x, c.y + r * 0.04}, r * 0.80, happy);
  } else if (name == "personalize") {
    DrawPhoto(canvas, c, r * 0.92);
  } else if (name == "options") {
    DrawGear(canvas, c, r * 0.98, happy ? kSun : kCream, kLavenderDeep);
  } else if (name == "next" || name == "right") {
    DrawArrow(canvas, c, r, 0, kWhite);
  } else if (name == "down") {
    DrawArrow(canvas, c, r, 90, kWhite);
  } else if (name == "back" || name == "left") {
    DrawArrow(canvas, c, r, 180, kWhite);
  } else if (name == "up") {
    DrawArrow(canvas, c, r, 270, kWhite);
  } else if (name == "undo") {
    DrawUndo(canvas, c, r, kWhite);
  } else if (name == "browse") {
    DrawFolder(canvas, c, r);
  } else if (name == "reset") {
    DrawCross(canvas, c, r * 0.8, kOutline);
    DrawCross(canvas, {c.x, c.y - 1}, r * 0.74, kWhite);
  } else if (name == "link") {
    DrawGlobe(canvas, c, r);
  } else if (name == "ok" || name == "yes") {
    DrawTick(canvas, c, r * 0.66, kOutline);
    DrawTick(canvas, {c.x, c.y - 1}, r * 0.6, kWhite);
  } else if (name == "no" || name == "cancel") {
    DrawCross(canvas, c, r * 0.8, kOutline);
    DrawCross(canvas, {c.x, c.y - 1}, r * 0.74, kWhite);
  } else {
    DrawPaw(canvas, c, r * 0.8, 0, kCream);
  }
}

// A tall button carries its word below the picture.
void DrawStanding(Canvas& canvas, TextPainter& text, std::string_view name, std::string_view word,
                  const Box& body, ButtonState state) {
  double size = FittingSize(canvas, text, word, body.height * 0.18, body.width - 16);
  double icon = std::min(body.Short() * 0.36, (body.height - size * 1.8) / 2 - 4);
  DrawIcon(canvas, name, {body.Centre().x, body.y + 8 + icon}, icon, state.highlighted);
  DrawWord(canvas, text, word, {body.Centre().x, body.y + body.height - size}, size);
}

// Picture, word and sign side by side; in a row of such buttons the pictures stand in a column.
void DrawLying(Canvas& canvas, TextPainter& text, std::string_view name, std::string_view word,
               const Box& body, ButtonState state) {
  bool play = name == "play";
  double icon = body.height * (play ? 0.42 : 0.36);
  double sign = play ? body.height * 0.7 : 0;
  double margin = body.height * 0.12;
  double gap = body.height * 0.14;
  double room = body.width - 2 * margin - 2 * icon - gap - sign;
  double size = FittingSize(canvas, text, word, std::min(body.height * 0.44, 54.0), room);
  double width = text.WidthOf(word, {size, true, false, kOutline}, canvas.Scale());
  bool narrow = body.width < 160;
  double left = body.x + margin + (narrow ? (room - width) / 2 : 0);
  DrawIcon(canvas, name, {left + icon, body.Centre().y}, icon, state.highlighted);
  double from = left + 2 * icon + gap;
  double at = narrow ? from + width / 2 : from + room / 2;
  DrawWord(canvas, text, word, {at, body.Centre().y}, size);
  if (play) {
    Vec centre{body.x + body.width - margin - sign * 0.5, body.Centre().y};
    DrawPlaySign(canvas, centre, body.height * 0.27, kOutline);
    DrawPlaySign(canvas, centre, body.height * 0.22, kSun);
  }
}

}  // namespace

void DrawButton(Canvas& canvas, TextPainter& text, std::string_view name, std::string_view word,
                const Rect& area, ButtonState state) {
  Look look = LookOf(name);
  if (word.empty()) word = look.word.empty() && !IsTitleButton(name) ? name : look.word;
  Box body = DrawBody(canvas, look, area, state);
  if (IsTitleButton(name)) {
    DrawTitleSign(canvas, name, body.Centre(), body.Short() * 0.5);
    return;
  }
  if (IsWordless(name)) {
    DrawIcon(canvas, name, body.Centre(), body.Short() * 0.36, state.highlighted);
  } else if (body.width < body.height * 1.6) {
    DrawStanding(canvas, text, name, word, body, state);
  } else {
    DrawLying(canvas, text, name, word, body, state);
  }
}

std::string ArtName(std::string_view picture, bool& highlighted) {
  highlighted = picture.ends_with(kHighlightEnding);
  if (highlighted) picture.remove_suffix(kHighlightEnding.size());
  return FoldCase(picture);
}

}  // namespace quendle
