#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/TextStream.h"

namespace quendle {

// A named state of an object: what sounds, what moves, and which script decides.
class ObjState {
 public:
  const std::string& Name() const { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }
  // A sound state of the object, "nothing" or "unchanged".
  const std::string& SoundState() const { return sound_; }
  void SetSoundState(std::string name) { sound_ = std::move(name); }
  // An animation state of the object, "nothing", "unchanged" or "terminate".
  const std::string& AnimationState() const { return animation_; }
  void SetAnimationState(std::string name) { animation_ = std::move(name); }
  // A script of the object, or "nothing".
  void SetScriptState(std::string name) { script_ = std::move(name); }
  const std::string& ScriptState() const { return script_; }

  // Where the record stands.
  const FilePlace& Place() const { return place_; }
  void SetPlace(FilePlace place) { place_ = std::move(place); }

 private:
  std::string name_;
  std::string sound_;
  std::string animation_;
  std::string script_;
  FilePlace place_;
};

// Reads a state file: records of six lines, or the one line "nothing" for an object without states.
std::vector<ObjState> ReadStateFile(TextStream& stream);

}  // namespace quendle
