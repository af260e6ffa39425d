#include "object/SoundFile.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace quendle {

std::vector<SoundRecord> ReadSoundFile(TextStream& stream) {
  std::vector<SoundRecord> records;
  while (!stream.AtEndOfStream()) {
    SoundRecord record;
    record.name = stream.ReadLine("the name of a sound");
    record.place = stream.Place();
    record.path = stream.ReadLine("the path of sound \"" + record.name + "\"");
    record.loop = stream.ReadLine("the loop word of sound \"" + record.name + "\"");
    record.directives = stream.ReadLine("line 4 of sound \"" + record.name + "\"");
    records.push_back(std::move(record));
  }
  return records;
}

bool AsksToLoad(const SoundRecord& record) {
  const std::vector<std::string> words = SplitTokens(record.directives, ' ');
  return std::any_of(words.begin(), words.end(), [](const std::string& word) {
    std::vector<std::string> pieces = SplitTokens(word, '_');
    return !pieces.empty() && EqualsNoCase(pieces[0], "load");
  });
}

}  // namespace quendle
