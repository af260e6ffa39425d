#include "subgames/SubgameFiles.h"

#include <string_view>

#include "base/Numbers.h"
#include "base/PathTokens.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr std::size_t kObjectFileLines = 9;
constexpr std::size_t kDataPathLine = 7;
constexpr int kLinesBeforeGamePath = 5;

// Line 6, if it is there and not blank.
std::optional<std::string> ReadSixthLine(TextStream& stream) {
  for (int line = 0; line < kLinesBeforeGamePath; ++line) {
    if (stream.AtEndOfStream()) return std::nullopt;
    stream.ReadLine("a line");
  }
  if (stream.AtEndOfStream()) return std::nullopt;
  std::string path = stream.ReadLine("the path of the game's data");
  if (TrimBlanks(path).empty()) return std::nullopt;
  return path;
}

std::int16_t ReadLeadingInt16(TextStream& stream, std::string_view what) {
  const double value = LeadingNumber(stream.ReadLine(what));
  return ToInt16(value, what, stream.Place());
}

// Cuts at every single blank; two blanks hold an empty token between them.
std::vector<std::string> SplitAtBlanks(std::string_view text) {
  std::vector<std::string> tokens;
  while (true) {
    const std::size_t blank = text.find(' ');
    tokens.emplace_back(text.substr(0, blank));
    if (blank == std::string_view::npos) return tokens;
    text.remove_prefix(blank + 1);
  }
}

std::int16_t Coordinate(const std::vector<std::string>& tokens, std::size_t index,
                        const FilePlace& place) {
  const char* what = "coordinate of a formation";
  if (index >= tokens.size()) throw FatalError("the last point has no Y", place);
  return Int16FromText(tokens[index], what, place);
}

}  // namespace

std::optional<std::string> ReadGamePathOfDataFile(TextStream& stream) {
  return ReadSixthLine(stream);
}

std::optional<std::string> ReadGamePathOfObjectFile(TextStream& stream) {
  std::optional<std::string> path = ReadSixthLine(stream);
  if (path && ParseNumber(*path)) return std::nullopt;
  return path;
}

std::optional<std::string> ReadDataPathOfObjectFile(TextStream& stream) {
  std::vector<std::string> lines;
  while (!stream.AtEndOfStream()) lines.push_back(stream.ReadLine("a line"));
  if (lines.size() < kObjectFileLines) return std::nullopt;
  if (IsNothing(lines[0]) || lines[0].find('\\') != std::string::npos) return std::nullopt;
  return lines[kDataPathLine - 1];
}

GameHeader ReadGameHeader(TextStream& stream) {
  GameHeader header;
  header.text = stream.ReadLine("line 1 of a game header");
  header.number = ReadInt16(stream, "number in line 2 of a game header");
  header.flag = EqualsNoCase(stream.ReadLine("\"1\" or another word"), "1");
  header.cell_list = stream.ReadLine("the path of the cell list");
  stream.ReadLine("line 5 of a game header");
  stream.ReadLine("line 6 of a game header");
  return header;
}

SquareData ReadSquareData(TextStream& stream) {
  SquareData data;
  data.cell_file = stream.ReadLine("the path of the tiles' file");
  const double seconds = LeadingNumber(stream.ReadLine("the time limit in seconds"));
  data.time_limit = ToInt32(seconds, "time limit", stream.Place());
  data.grid_size = ReadLeadingInt16(stream, "number of tiles per row");
  data.grid_place = stream.Place();
  data.pitch = ReadLeadingInt16(stream, "pixels from tile to tile");
  data.left = ReadLeadingInt16(stream, "left of the first tile");
  data.top = ReadLeadingInt16(stream, "top of the first tile");
  while (!stream.AtEndOfStream()) {
    data.state_names.push_back(stream.ReadLine("the state name of a tile"));
  }
  data.end_place = stream.Place();
  return data;
}

std::vector<std::string> ReadCellList(TextStream& stream) {
  std::vector<std::string> paths;
  while (!stream.AtEndOfStream()) {
    paths.push_back(stream.ReadLine("the path of a cell"));
    if (TrimBlanks(paths.back()).empty()) {
      throw FatalError("a cell list holds a blank line", stream.Place());
    }
  }
  if (paths.size() < 2) {
    throw FatalError("a cell list needs lines for the player, its enemies and the shot",
                     stream.Place());
  }
  return paths;
}

std::vector<Formation> ReadFormations(TextStream& stream) {
  const std::string line = stream.ReadLine("the points of the formations");
  const FilePlace place = stream.Place();
  while (!stream.AtEndOfStream()) {
    if (!TrimBlanks(stream.ReadLine("a blank line")).empty()) {
      throw FatalError("all formations stand in the first line", stream.Place());
    }
  }
  const std::vector<std::string> tokens = SplitAtBlanks(TrimBlanks(line));
  std::vector<Formation> formations;
  Formation open;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i] == "*") {
      formations.push_back(open);
      open.clear();
      continue;
    }
    const std::int16_t x = Coordinate(tokens, i, place);
    ++i;
    CoordObject point;
    point.SetParams(x, Coordinate(tokens, i, place));
    open.push_back(point);
  }
  if (formations.empty()) throw FatalError("no formation is closed by \"*\"", place);
  return formations;
}

}  // namespace quendle
