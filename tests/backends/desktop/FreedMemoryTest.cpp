#include "backends/desktop/FreedMemory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace quendle {
namespace {

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)

// Whether each of some blocks is a mapping of its own, and none is left behind.
bool LargeBlocksGoBack() {
  constexpr std::size_t kPicture = std::size_t{8} << 20;
  const std::size_t before = mallinfo2().hblkhd;
  // The first one freed is what an allocator left to itself learns from.
  for (int round = 0; round < 3; ++round) {
    const std::unique_ptr<char, void (*)(void*)> block(static_cast<char*>(std::malloc(kPicture)),
                                                       std::free);
    if (mallinfo2().hblkhd < before + kPicture) return false;
  }
  return mallinfo2().hblkhd == before;
}

// In a process of its own, as at the start of a game: no other test has used the allocator.
TEST(FreedMemoryDeathTest, ALargeBlockIsTheSystemsAgainAlthoughOneOfItsSizeWasFreedBefore) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(std::exit(LargeBlocksGoBack() ? 1 : 0), testing::ExitedWithCode(0), "")
      << "otherwise there is nothing to do";
  EXPECT_EXIT((GiveFreedMemoryBack(), std::exit(LargeBlocksGoBack() ? 0 : 1)),
              testing::ExitedWithCode(0), "");
}

#endif

}  // namespace
}  // namespace quendle
