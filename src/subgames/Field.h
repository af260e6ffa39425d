#pragma once

#include <cstdint>

namespace quendle {

// The field that the arcade games are played on, in pixels.
inline constexpr std::int16_t kFieldWidth = 800;
inline constexpr std::int16_t kFieldHeight = 600;

}  // namespace quendle
