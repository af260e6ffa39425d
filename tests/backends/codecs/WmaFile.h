// Windows Media files for tests, encoded as the content's are.
#pragma once

#include <string>

#include "support/WaveFiles.h"

namespace quendle {

// The samples (one channel) as a .wma file, padded at both ends as this encoder needs it: it loses
// its first frame and harms the last.
std::string WmaFile(const Samples& samples, int rate);

}  // namespace quendle
