#include "toolbelt/DriveBench.h"
#include "toolbelt/bench/BenchContent.h"
#include "toolbelt/bench/Measurement.h"

namespace quendle {
namespace {

TEST(BenchContent, ThePointerIsOverExactlyOneChain) {
  DriveBench bench;
  PutChainContent(bench.files, {{"lamp", {"lamp*", "*over"}},
                                {"door", {"*HandMouseOver", "*"}},
                                {"boat", {"nothing", "boatHandMouseOver", "*"}}});
  bench.Do("play");
  bench.Do("send cs_measured");
  bench.Do("trace on");
  const Point door = PlaceOfChain(1);
  bench.Do("move " + std::to_string(door.x) + " " + std::to_string(door.y));
  std::vector<std::string> hits;
  const Json events = bench.Do("events")["events"];
  for (const Json& event : events) {
    if (event["kind"] == "statement") hits.push_back(event["text"]);
  }
  // The lamp and the boat get "handmouseovernot", the door "doorhandmouseover".
  EXPECT_THAT(hits, testing::ElementsAre("mtp hit_1_0", "mtp hit_2_2"));
}

TEST(Measurement, TheCheckOfAFrameIsTheUsualCrc) {
  const std::uint32_t pixels[] = {0x313233, 0x343536, 0x373839};  // "123456789"
  EXPECT_EQ(CrcOfPixels(pixels, 3), 0xCBF43926u);
}

}  // namespace
}  // namespace quendle
