#include "object/Region.h"

#include <utility>

#include "base/PathTokens.h"

namespace quendle {

std::vector<Region> LoadRegions(TextStream& stream) {
  std::vector<Region> regions;
  std::string name = stream.ReadLine("the name of a region, or \"nothing\"");
  if (IsNothing(name)) return regions;
  for (;;) {
    Region region;
    const std::string of = " of region \"" + name + "\"";
    region.SetX1(ReadInt16(stream, "X1" + of));
    region.SetY1(ReadInt16(stream, "Y1" + of));
    region.SetX2(ReadInt16(stream, "X2" + of));
    region.SetY2(ReadInt16(stream, "Y2" + of));
    region.SetName(std::move(name));
    regions.push_back(std::move(region));
    if (stream.AtEndOfStream()) return regions;
    name = stream.ReadLine("the name of a region");
  }
}

}  // namespace quendle
