#include "object/AnimationFrame.h"

#include <algorithm>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::int32_t kStay = -1;

struct Halves {
  std::string first;
  std::string second;
};

// Cuts a text without its blanks at the first and, if there is one, the second delimiter.
Halves SplitWithoutBlanks(std::string_view text, char delimiter) {
  std::string packed(text);
  std::erase(packed, ' ');
  std::size_t cut = packed.find(delimiter);
  std::string second = packed.substr(cut + 1);
  second.resize(std::min(second.find(delimiter), second.size()));
  return {packed.substr(0, cut), std::move(second)};
}

Placement WithDrawSize(std::string_view text, char delimiter, const FilePlace& place) {
  Halves halves = SplitWithoutBlanks(text, delimiter);
  std::int32_t code = ContainsNoCase(halves.first, "stable")
                          ? kStay
                          : Int32FromText(halves.first, "placement", place);
  return {code, Int32FromText(halves.second, "draw size", place)};
}

Placement WithStep(std::string_view text, const FilePlace& place) {
  Halves halves = SplitWithoutBlanks(text, '+');
  const double step = NumberFromText(halves.second, "step of a placement", place);
  if (!ContainsNoCase(halves.first, "stable")) {
    const double sum = NumberFromText(halves.first, "placement", place) + step;
    return {ToInt32(sum, "placement", place), 0};
  }
  if (step == 0) {
    throw FatalError::WithBox("Error: Cannot have the line 'stable+0'", place);
  }
  return {ToInt32(-step, "placement", place), 0};
}

FrameRecord ReadFrameRecord(TextStream& stream) {
  FrameRecord record;
  AnimationFrame& frame = record.frame;
  frame.FrameName = TrimBlanks(stream.ReadLine("the name of a frame"));
  record.place = stream.Place();
  const std::string of = " of frame \"" + frame.FrameName + "\"";
  record.region_file = stream.ReadLine("the path of the region file" + of + ", or \"nothing\"");
  std::string line = stream.ReadLine("the horizontal placement" + of);
  Placement horizontal = ParsePlacement(line, stream.Place());
  line = stream.ReadLine("the vertical placement" + of);
  Placement vertical = ParsePlacement(line, stream.Place());
  frame.PlaceX = horizontal.code;
  frame.DrawWidth = horizontal.draw_size;
  frame.PlaceY = vertical.code;
  frame.DrawHeight = vertical.draw_size;
  frame.SourceX = ReadInt32(stream, "source x" + of);
  frame.SourceY = ReadInt32(stream, "source y" + of);
  frame.SourceWidth = ReadInt32(stream, "source width" + of);
  frame.SourceHeight = ReadInt32(stream, "source height" + of);
  stream.ReadLine("the separator line" + of);
  return record;
}

}  // namespace

Placement ParsePlacement(std::string_view text, const FilePlace& place) {
  if (text.find('\\') != std::string_view::npos) return WithDrawSize(text, '\\', place);
  if (text.find('/') != std::string_view::npos) return WithDrawSize(text, '/', place);
  if (text.find('+') != std::string_view::npos) return WithStep(text, place);
  if (ContainsNoCase(text, "stable")) return {kStay, 0};
  return {Int32FromText(text, "placement", place), 0};
}

std::vector<FrameRecord> ReadFrameFile(TextStream& stream) {
  std::vector<FrameRecord> records;
  while (!stream.AtEndOfStream()) records.push_back(ReadFrameRecord(stream));
  return records;
}

}  // namespace quendle
