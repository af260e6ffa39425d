// The warm colours that everything we draw shares.
#pragma once

#include "backends/forms/Canvas.h"

namespace quendle::palette {

inline constexpr Rgba kOutline = Hex(0x5A3A22);
inline constexpr Rgba kCream = Hex(0xFFF4DF);
inline constexpr Rgba kCreamDeep = Hex(0xFFE6C2);
inline constexpr Rgba kPaper = Hex(0xFFFCF5);
inline constexpr Rgba kPeach = Hex(0xFFCFA3);
inline constexpr Rgba kOrange = Hex(0xF79A3E);
inline constexpr Rgba kOrangeDeep = Hex(0xE07B22);
inline constexpr Rgba kLeaf = Hex(0x6CC04A);
inline constexpr Rgba kLeafDeep = Hex(0x4A9E33);
inline constexpr Rgba kSky = Hex(0x63B8E8);
inline constexpr Rgba kSkyDeep = Hex(0x3B93C9);
inline constexpr Rgba kLavender = Hex(0xB79BE0);
inline constexpr Rgba kLavenderDeep = Hex(0x9376C4);
inline constexpr Rgba kRose = Hex(0xF0705C);
inline constexpr Rgba kRoseDeep = Hex(0xD04E3C);
inline constexpr Rgba kSun = Hex(0xFFD23F);
inline constexpr Rgba kFur = Hex(0xE9B06B);
inline constexpr Rgba kFurDark = Hex(0xB97B3B);
inline constexpr Rgba kSkin = Hex(0xFFD9B3);
inline constexpr Rgba kWhite = Hex(0xFFFFFF);

}  // namespace quendle::palette
