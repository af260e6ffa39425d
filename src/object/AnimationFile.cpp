#include "object/AnimationFile.h"

#include <utility>

#include "base/Text.h"

namespace quendle {

std::vector<AnimationRecord> ReadAnimationRecords(TextStream& stream) {
  std::vector<AnimationRecord> records;
  while (!stream.AtEndOfStream()) {
    AnimationRecord record;
    record.name = stream.ReadLine("the name of an animation");
    record.place = stream.Place();
    const std::string of = " of animation \"" + record.name + "\"";
    record.interval = ReadInt16(stream, "interval" + of);
    record.loop = stream.ReadLine("the loop word" + of);
    record.directive_file = stream.ReadLine("the path of the directive file" + of);
    for (;;) {
      std::string line = stream.ReadLine("frame names or \"statedone\"" + of);
      if (EqualsNoCase(line, "statedone")) break;
      record.frame_sets.push_back(SplitTokens(line, ' '));
    }
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace quendle
