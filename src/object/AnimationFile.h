#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/TextStream.h"

namespace quendle {

// The record of one animation state.
struct AnimationRecord {
  std::string name;
  std::int16_t interval = 0;                         // milliseconds
  std::string loop;                                  // "loop" or another word
  std::string directive_file;                        // stored path, "nothing" or "unused"
  std::vector<std::vector<std::string>> frame_sets;  // frame names
  FilePlace place;
};

// An animation file. Without a picture nothing else is read.
struct AnimationFile {
  std::string picture;  // stored path, or "nothing"
  FilePlace picture_place;
  std::string frame_file;  // stored path
  std::vector<AnimationRecord> animations;
};

// `picture_is_nothing` tells of the stored path of the picture whether it resolves to "nothing".
template <class IsNothingPath>
AnimationFile ReadAnimationFile(TextStream& stream, IsNothingPath picture_is_nothing);

// Reads the records behind the two paths, to the end of the stream.
std::vector<AnimationRecord> ReadAnimationRecords(TextStream& stream);

template <class IsNothingPath>
AnimationFile ReadAnimationFile(TextStream& stream, IsNothingPath picture_is_nothing) {
  AnimationFile file;
  file.picture = stream.ReadLine("the path of a picture, or \"nothing\"");
  file.picture_place = stream.Place();
  if (picture_is_nothing(file.picture)) return file;
  file.frame_file = stream.ReadLine("the path of the frame file");
  file.animations = ReadAnimationRecords(stream);
  return file;
}

}  // namespace quendle
