// What all fuzz targets share. A target is one function over bytes; whatever they are, nothing but
// a FatalError or the end of the process may come of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "base/FatalError.h"
#include "base/ProcessEnds.h"

namespace quendle {

inline std::string_view BytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Does the work; true unless it ended in one of the two exceptions of the engine.
template <class Work>
bool EndsWell(Work&& work) {
  try {
    work();
    return true;
  } catch (const FatalError&) {
  } catch (const ProcessEnds&) {
  }
  return false;
}

// A property that must hold for any input. Not an assertion: optimised builds check it too.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "broken property: %s\n", what);
  std::abort();
}

}  // namespace quendle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
