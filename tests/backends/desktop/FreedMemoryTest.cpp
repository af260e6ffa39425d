#include "backends/desktop/FreedMemory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace quendle {
namespace {

TEST(FreedMemory, ALargeBlockIsTheSystemsAgainAlthoughOneOfItsSizeWasFreedBefore) {
#if !defined(__GLIBC__) || defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "the allocator in use has no such numbers";
#else
  GiveFreedMemoryBack();
  constexpr std::size_t kPicture = std::size_t{8} << 20;
  const std::size_t before = mallinfo2().hblkhd;
  // The first one freed is what an allocator left to itself learns from.
  for (int round = 0; round < 3; ++round) {
    const std::unique_ptr<char, void (*)(void*)> block(static_cast<char*>(std::malloc(kPicture)),
                                                       std::free);
    EXPECT_GE(mallinfo2().hblkhd, before + kPicture) << "a mapping of its own, round " << round;
  }
  EXPECT_EQ(mallinfo2().hblkhd, before);
#endif
}

}  // namespace
}  // namespace quendle
