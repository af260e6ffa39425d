#include "object/ObjState.h"

#include <utility>

#include "base/PathTokens.h"

namespace quendle {

std::vector<ObjState> ReadStateFile(TextStream& stream) {
  std::vector<ObjState> states;
  std::string name = stream.ReadLine("the name of a state, or \"nothing\"");
  if (IsNothing(name)) return states;
  for (;;) {
    ObjState state;
    state.SetPlace(stream.Place());
    state.SetSoundState(stream.ReadLine("the sound of state \"" + name + "\""));
    state.SetAnimationState(stream.ReadLine("the animation of state \"" + name + "\""));
    state.SetScriptState(stream.ReadLine("the script of state \"" + name + "\""));
    stream.ReadLine("line 5 of state \"" + name + "\"");
    stream.ReadLine("line 6 of state \"" + name + "\"");
    state.SetName(std::move(name));
    states.push_back(std::move(state));
    if (stream.AtEndOfStream()) return states;
    name = stream.ReadLine("the name of a state");
  }
}

}  // namespace quendle
