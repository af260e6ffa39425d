#pragma once

#include <string>
#include <vector>

#include "base/TextStream.h"

namespace quendle {

// A record of four lines of an object's sound file or of the global list.
struct SoundRecord {
  std::string name;        // may hold "globalsound_"
  std::string path;        // stored path
  std::string loop;        // "loop" or another word
  std::string directives;  // `key_value` words; "load" is the only key
  FilePlace place;         // of the name
};

// Reads records to the end of the stream.
std::vector<SoundRecord> ReadSoundFile(TextStream& stream);

// True if the directives ask that the file is loaded at once.
bool AsksToLoad(const SoundRecord& record);

}  // namespace quendle
