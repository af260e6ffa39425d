// The files that an object is made of, read into plain records.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/TextStream.h"

namespace quendle {

// The nine lines that name an object.
struct ObjectFile {
  std::string type;
  std::string name;
  std::string depth;       // a number; stored, never used
  std::string data_file;   // stored path
  std::string child_list;  // stored path, or "nothing"
  std::string directives;
  FilePlace type_place;
  FilePlace directives_place;
};

// Reads an object file. Lines 4 to 6 have no meaning and are dropped; a third line that isn't a
// number is fatal.
ObjectFile ReadObjectFile(TextStream& stream);

// The five lines that name an object's other files: stored paths, or "nothing".
struct DataFile {
  std::string states;
  std::string animations;
  std::string sounds;
  std::string scripts;
};

DataFile ReadDataFile(TextStream& stream);

// Resolves a path that stands in one of an object's own files: the tokens of any stored path
// against the folder of its data file, then "<RootObjectName>\" or else "<ObjectName>", once.
std::string ResolveObjectPath(std::string_view directory, std::string_view object_name,
                              std::string_view path);

// One line of a child list: the trimmed line and its first word.
struct ChildLine {
  std::string child;  // "GlobalObject_name" or a stored path
  std::string line;
  FilePlace place;
};

// Reads a child list to its end. A blank line is fatal: no child stands on it.
std::vector<ChildLine> ReadChildList(TextStream& stream);

// What a directive line says; the last word of a kind counts.
struct Directives {
  bool visible_given = false;
  std::optional<bool> visible;  // nothing for a word other than "on" and "off"
  std::optional<std::string> depth;
  std::optional<std::string> state;
  std::optional<std::string> runstate;
  std::optional<std::int16_t> xpos;
  std::optional<std::int16_t> ypos;
};

// The key of a directive.
enum class DirectiveKey { kVisible, kDepth, kState, kRunState, kXPos, kYPos, kNone };
DirectiveKey DirectiveKeyOf(std::string_view word);

// False for a word `key_value` that changes nothing on a line: without a known key and a value that
// the key knows.
bool SaysSomething(std::string_view directive);

// Reads the words `key_value` of a directive line. Unknown keys are ignored; a known key without a
// value, or a position that isn't a number, is fatal.
Directives ParseDirectives(std::string_view line, const FilePlace& place);

}  // namespace quendle
