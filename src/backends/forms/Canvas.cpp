#include "backends/forms/Canvas.h"

#include <algorithm>
#include <cmath>

namespace quendle {
namespace {

// A pixel row is sampled along this many lines; along a line coverage is exact.
constexpr int kLinesPerRow = 4;

struct Edge {
  Vec upper;
  Vec lower;
  int direction = 1;
};

struct Crossing {
  double x = 0;
  int direction = 1;
};

std::uint8_t MixByte(int a, int b, double part) {
  return static_cast<std::uint8_t>(std::lround(a + (b - a) * part));
}

// The edges of the closed outlines in pixels.
std::vector<Edge> EdgesOf(const Path& path, double scale) {
  std::vector<Edge> edges;
  for (const Path::Contour& contour : path.Contours()) {
    std::size_t count = contour.points.size();
    for (std::size_t i = 0; i < count; ++i) {
      const Vec& from = contour.points[i];
      const Vec& to = contour.points[(i + 1) % count];
      Vec a{from.x * scale, from.y * scale};
      Vec b{to.x * scale, to.y * scale};
      if (a.y == b.y) continue;
      if (a.y < b.y) {
        edges.push_back({a, b, 1});
      } else {
        edges.push_back({b, a, -1});
      }
    }
  }
  return edges;
}

// Adds the part of each pixel between two positions of a line to the coverage of the row.
void AddSpan(std::vector<double>& row, double from, double to) {
  from = std::clamp(from, 0.0, static_cast<double>(row.size()));
  to = std::clamp(to, 0.0, static_cast<double>(row.size()));
  if (to <= from) return;
  auto first = static_cast<std::size_t>(from);
  auto last = static_cast<std::size_t>(to);
  if (first == last) {
    row[first] += to - from;
    return;
  }
  row[first] += static_cast<double>(first + 1) - from;
  for (std::size_t x = first + 1; x < last; ++x) row[x] += 1;
  if (last < row.size()) row[last] += to - static_cast<double>(last);
}

void AddLine(std::vector<double>& row, std::vector<Crossing>& crossings) {
  std::sort(crossings.begin(), crossings.end(),
            [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
  int winding = 0;
  double start = 0;
  for (const Crossing& crossing : crossings) {
    if (winding == 0) start = crossing.x;
    winding += crossing.direction;
    if (winding == 0) AddSpan(row, start, crossing.x);
  }
}

// A line of some width with round ends. All turn the same way, so that overlapping ones add up.
Path Capsule(Vec a, Vec b, double width) {
  double radius = width / 2;
  double angle = std::atan2(b.y - a.y, b.x - a.x) * 180 / 3.14159265358979;
  Path capsule = Path::Arc(a, radius, radius, angle + 90, angle + 270);
  Path end = Path::Arc(b, radius, radius, angle - 90, angle + 90);
  for (const Vec& point : end.Contours().front().points) capsule.LineTo(point.x, point.y);
  return capsule.Close();
}

}  // namespace

Rgba Mix(Rgba a, Rgba b, double part) {
  return {MixByte(a.r, b.r, part), MixByte(a.g, b.g, part), MixByte(a.b, b.b, part),
          MixByte(a.a, b.a, part)};
}

Canvas::Canvas(Size size, double scale)
    : size_{std::max(size.width, 1), std::max(size.height, 1)},
      scale_(scale),
      clip_{0, 0, size_.width, size_.height},
      pixels_(static_cast<std::size_t>(size_.width) * size_.height, 0xFFFFFFFFu) {}

void Canvas::SetClip(const Rect& area) {
  const auto pixel = [this](int value, int most) {
    return std::clamp(static_cast<int>(std::lround(value * scale_)), 0, most);
  };
  clip_ = {pixel(area.left, size_.width), pixel(area.top, size_.height),
           pixel(area.right, size_.width), pixel(area.bottom, size_.height)};
}

void Canvas::LiftClip() { clip_ = {0, 0, size_.width, size_.height}; }

void Canvas::Clear(Rgba color) {
  std::fill(pixels_.begin(), pixels_.end(),
            0xFF000000u | std::uint32_t{color.r} << 16 | std::uint32_t{color.g} << 8 | color.b);
}

void Canvas::Fill(const Path& path, Rgba color) { FillWith(path, {color, color, 0, 1}); }

void Canvas::FillShaded(const Path& path, Rgba top, Rgba bottom, double from_y, double to_y) {
  FillWith(path, {top, bottom, from_y, to_y});
}

void Canvas::Stroke(const Path& path, double width, Rgba color) {
  Path outline;
  for (const Path::Contour& contour : path.Contours()) {
    std::size_t count = contour.points.size();
    std::size_t lines = contour.closed ? count : count - 1;
    for (std::size_t i = 0; i < lines; ++i) {
      outline.Add(Capsule(contour.points[i], contour.points[(i + 1) % count], width));
    }
    if (count == 1) outline.Add(Path::Ellipse(contour.points[0], width / 2, width / 2));
  }
  Fill(outline, color);
}

void Canvas::FillRect(double x, double y, double width, double height, Rgba color) {
  auto left = static_cast<int>(std::lround(x * scale_));
  auto top = static_cast<int>(std::lround(y * scale_));
  auto right = static_cast<int>(std::lround((x + width) * scale_));
  auto bottom = static_cast<int>(std::lround((y + height) * scale_));
  for (int row = std::max(top, 0); row < std::min(bottom, size_.height); ++row) {
    for (int column = std::max(left, 0); column < std::min(right, size_.width); ++column) {
      Blend(column, row, color, 255);
    }
  }
}

void Canvas::Blend(int x, int y, Rgba color, int coverage) {
  if (!clip_.Holds({x, y})) return;
  std::uint32_t& pixel = pixels_[static_cast<std::size_t>(y) * size_.width + x];
  int alpha = color.a * coverage / 255;
  auto channel = [&](int shift, int value) {
    int old = static_cast<int>(pixel >> shift & 255);
    return static_cast<std::uint32_t>((value * alpha + old * (255 - alpha) + 127) / 255) << shift;
  };
  pixel = 0xFF000000u | channel(16, color.r) | channel(8, color.g) | channel(0, color.b);
}

Rgba Canvas::At(double x, double y) const {
  int column = std::clamp(static_cast<int>(x * scale_), 0, size_.width - 1);
  int row = std::clamp(static_cast<int>(y * scale_), 0, size_.height - 1);
  return Hex(pixels_[static_cast<std::size_t>(row) * size_.width + column] & 0xFFFFFFu);
}

void Canvas::FillWith(const Path& path, const Shade& shade) {
  std::vector<Edge> edges = EdgesOf(path, scale_);
  if (edges.empty()) return;
  double top = edges.front().upper.y;
  double bottom = edges.front().lower.y;
  for (const Edge& edge : edges) {
    top = std::min(top, edge.upper.y);
    bottom = std::max(bottom, edge.lower.y);
  }
  std::sort(edges.begin(), edges.end(),
            [](const Edge& a, const Edge& b) { return a.upper.y < b.upper.y; });
  int first = std::max(0, static_cast<int>(std::floor(top)));
  int last = std::min(size_.height - 1, static_cast<int>(std::floor(bottom)));
  std::vector<double> coverage(static_cast<std::size_t>(size_.width));
  std::vector<Crossing> crossings;
  for (int row = first; row <= last; ++row) {
    std::fill(coverage.begin(), coverage.end(), 0.0);
    for (int line = 0; line < kLinesPerRow; ++line) {
      double y = row + (line + 0.5) / kLinesPerRow;
      crossings.clear();
      for (const Edge& edge : edges) {
        if (edge.upper.y > y) break;
        if (edge.lower.y <= y) continue;
        double part = (y - edge.upper.y) / (edge.lower.y - edge.upper.y);
        crossings.push_back({edge.upper.x + (edge.lower.x - edge.upper.x) * part, edge.direction});
      }
      AddLine(coverage, crossings);
    }
    double height = (row + 0.5) / scale_;
    double part = std::clamp((height - shade.from_y) / (shade.to_y - shade.from_y), 0.0, 1.0);
    Rgba color = Mix(shade.top, shade.bottom, part);
    for (int x = 0; x < size_.width; ++x) {
      if (coverage[x] > 0) {
        Blend(x, row, color, static_cast<int>(std::lround(coverage[x] * 255 / kLinesPerRow)));
      }
    }
  }
}

}  // namespace quendle
