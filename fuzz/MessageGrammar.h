// Messages, events and script lines as content of the small clinic would write them.
#pragma once

#include <string>

#include "LineMutator.h"

namespace quendle {

// The words of the small clinic.
std::string AnyObject(FuzzRandom& random);
std::string AnyScreen(FuzzRandom& random);
std::string AnyState(FuzzRandom& random);
std::string AnyAction(FuzzRandom& random);
// A small or a strange number.
std::string AnyNumber(FuzzRandom& random);

// "toobj_dog_runstate_better1", without the end of a line.
std::string AnyMessage(FuzzRandom& random);
// A line of a script, or a whole choice.
std::string AnyStatements(FuzzRandom& random);

}  // namespace quendle
