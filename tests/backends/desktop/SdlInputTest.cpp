#include "backends/desktop/SdlInput.h"

#include <SDL.h>
#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(SdlInput, OnlyF2AndF12AreKeysOfTheLayersOverTheFrame) {
  SDL_Keysym key{};
  key.sym = SDLK_F2;
  EXPECT_EQ(FunctionKeyOf(key), FunctionKey::kF2);
  key.sym = SDLK_F12;
  EXPECT_EQ(FunctionKeyOf(key), FunctionKey::kF12);
  for (SDL_Keycode other : {SDLK_ESCAPE, SDLK_F1, SDLK_F3, SDLK_2}) {
    key.sym = other;
    EXPECT_EQ(FunctionKeyOf(key), std::nullopt);
  }
}

}  // namespace
}  // namespace quendle
