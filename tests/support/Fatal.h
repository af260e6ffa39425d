// Asks for the message of a fatal error.
#pragma once

#include <string>
#include <utility>

#include "base/FatalError.h"

namespace quendle {

// "FILE:LINE: text" of the FatalError that `work` ends in, or "no fatal error".
template <class Work>
std::string FatalOf(Work&& work) {
  try {
    std::forward<Work>(work)();
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fatal error";
}

// The text of the box that shows it.
template <class Work>
std::string FatalBoxOf(Work&& work) {
  try {
    std::forward<Work>(work)();
  } catch (const FatalError& error) {
    return error.BoxText();
  }
  return "no fatal error";
}

}  // namespace quendle
