#include "backends/raster/OpaqueSpans.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "backends/raster/RasterBitmap.h"
#include "base/SeededRandom.h"

namespace quendle {
namespace {

constexpr std::uint32_t kKey = 0xC8C8C8;
constexpr int kPictureWidth = 150;
constexpr int kPictureHeight = 40;
constexpr int kTargetWidth = 200;
constexpr int kTargetHeight = 60;

// `opaque`: share of pixels without the key, in runs of many lengths.
std::vector<std::uint32_t> RandomPicture(double opaque, SeededRandom& random) {
  std::vector<std::uint32_t> words;
  while (words.size() < kPictureWidth * kPictureHeight) {
    const bool key = random.Rnd() >= opaque;
    const int run = 1 + static_cast<int>(random.Rnd() * (random.Rnd() < 0.2 ? 100 : 6));
    for (int i = 0; i < run; ++i) {
      words.push_back(key ? kKey : 1 + static_cast<std::uint32_t>(random.Rnd() * 1000));
    }
  }
  words.resize(kPictureWidth * kPictureHeight);
  return words;
}

// The slow and obvious way.
void DrawPixelByPixel(const std::vector<std::uint32_t>& picture, const Rect& from,
                      std::vector<std::uint32_t>& target, Point to) {
  for (int y = from.top; y < from.bottom; ++y) {
    for (int x = from.left; x < from.right; ++x) {
      const std::uint32_t word = picture[y * kPictureWidth + x];
      if (word != kKey) {
        target[(to.y + y - from.top) * kTargetWidth + to.x + x - from.left] = word;
      }
    }
  }
}

int Below(SeededRandom& random, int limit) { return static_cast<int>(random.Rnd() * limit); }

Rect RandomRect(SeededRandom& random, int width, int height) {
  const int left = Below(random, width), top = Below(random, height);
  return {left, top, left + 1 + Below(random, width - left), top + 1 + Below(random, height - top)};
}

TEST(OpaqueSpans, DrawWhatATestOfEachPixelDraws) {
  SeededRandom random(1);
  for (int round = 0; round < 300; ++round) {
    const auto picture = RandomPicture(round % 5 / 4.0, random);
    const Rect area = RandomRect(random, kPictureWidth, kPictureHeight);
    std::vector<std::uint32_t> drawn(kTargetWidth * kTargetHeight, 7), expected = drawn;
    const OpaqueSpans spans(picture.data(), kPictureWidth, area, kKey);
    spans.Copy(&picture[area.top * kPictureWidth + area.left], kPictureWidth,
               &drawn[10 * kTargetWidth + 20], kTargetWidth);
    DrawPixelByPixel(picture, area, expected, {20, 10});
    ASSERT_EQ(drawn, expected) << round;
  }
}

TEST(OpaqueSpans, APartIsDrawnLikeARectangleOfItsOwn) {
  SeededRandom random(2);
  for (int round = 0; round < 300; ++round) {
    const auto picture = RandomPicture(round % 5 / 4.0, random);
    const Rect area = RandomRect(random, kPictureWidth, kPictureHeight);
    const Rect part = RandomRect(random, area.Width(), area.Height());
    std::vector<std::uint32_t> drawn(kTargetWidth * kTargetHeight, 7), expected = drawn;
    const OpaqueSpans spans(picture.data(), kPictureWidth, area, kKey);
    spans.CopyPart(part, &picture[area.top * kPictureWidth + area.left], kPictureWidth,
                   &drawn[5 * kTargetWidth + 3], kTargetWidth);
    DrawPixelByPixel(picture,
                     {area.left + part.left, area.top + part.top, area.left + part.right,
                      area.top + part.bottom},
                     expected, {3, 5});
    ASSERT_EQ(drawn, expected) << round;
  }
}

TEST(RasterBitmap, SpansAreForgottenWhenPixelsOrTheKeyChange) {
  RasterBitmap bitmap(2, 1, PixelFormat::kColor32);
  std::vector<std::uint32_t> target(2, 9);
  const auto draw = [&](std::uint32_t key) {
    target = {9, 9};
    bitmap.Spans(bitmap.Bounds(), key).Copy(bitmap.Pixels(), 2, target.data(), 2);
    return target;
  };
  EXPECT_EQ(draw(5), (std::vector<std::uint32_t>{0, 0}));
  *bitmap.WritableAt(1, 0) = 5;
  EXPECT_EQ(draw(5), (std::vector<std::uint32_t>{0, 9}));
  EXPECT_EQ(draw(0), (std::vector<std::uint32_t>{9, 5}));
}

TEST(RasterBitmap, ManyRectanglesOfOnePictureAreStillDrawnRight) {
  RasterBitmap bitmap(64, 64, PixelFormat::kColor32);
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) *bitmap.WritableAt(x, y) = 100 * y + x;
  }
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) {
      std::uint32_t pixel = 0;
      bitmap.Spans({x, y, x + 1, y + 1}, kKey).Copy(bitmap.At(x, y), 64, &pixel, 1);
      ASSERT_EQ(pixel, static_cast<std::uint32_t>(100 * y + x));
    }
  }
}

TEST(RasterBitmap, SizesAreLawfulFrom1To4096) {
  EXPECT_TRUE(RasterBitmap::SizeIsLawful(1, 1));
  EXPECT_TRUE(RasterBitmap::SizeIsLawful(4096, 4096));
  EXPECT_FALSE(RasterBitmap::SizeIsLawful(0, 1));
  EXPECT_FALSE(RasterBitmap::SizeIsLawful(1, -1));
  EXPECT_FALSE(RasterBitmap::SizeIsLawful(4097, 1));
}

TEST(RasterBitmap, A565PixelKeepsFiveSixAndFiveBits) {
  EXPECT_EQ(ReduceTo565(0xC8C8C8), WordOf565(25 << 11 | 50 << 5 | 25));
  EXPECT_EQ(ReduceTo565(0xFFFFFF), 0xFFFFFFU);
  EXPECT_EQ(ReduceTo565(0x070307), 0U);
  for (std::uint32_t value = 0; value < 0x10000; ++value) {
    ASSERT_EQ(ReduceTo565(WordOf565(value)), WordOf565(value));
  }
}

TEST(RasterBitmap, PackedColoursHaveRedInTheLowByte) {
  EXPECT_EQ(WordOf(PackColor(1, 2, 3)), 0x010203U);
  EXPECT_EQ(ColorOf(0x010203), PackColor(1, 2, 3));
}

}  // namespace
}  // namespace quendle
