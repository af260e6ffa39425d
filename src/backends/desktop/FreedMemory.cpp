#include "backends/desktop/FreedMemory.h"

#include <cstdlib>  // tells whose library it is

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace quendle {

void GiveFreedMemoryBack() {
#if defined(__GLIBC__)
  // A threshold that is set no longer grows with the blocks that are freed.
  constexpr int kLargeBlock = 128 * 1024;
  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
#endif
}

}  // namespace quendle
