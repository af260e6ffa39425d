#include "backends/raster/BlitQueue.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

namespace quendle {
namespace {

constexpr int kSide = 64;
constexpr std::uint32_t kKey = 0xC8C8C8;
constexpr Rect kAll{0, 0, kSide, kSide};

using Picture = std::shared_ptr<RasterBitmap>;

Picture Plain(int width, int height, std::uint32_t color) {
  auto picture = std::make_shared<RasterBitmap>(width, height, PixelFormat::kColor32);
  std::fill_n(picture->WritableAt(0, 0), width * height, color);
  return picture;
}

// A picture with holes where the key stands.
Picture Holed(int width, int height, std::uint32_t color) {
  Picture picture = Plain(width, height, color);
  for (int i = 0; i < width * height; i += 3) picture->WritableAt(0, 0)[i] = kKey;
  return picture;
}

QueuedBlit Put(const Picture& picture, Point at) {
  return {picture,
          picture->Version(),
          picture->Bounds(),
          {at.x, at.y, at.x + picture->Width(), at.y + picture->Height()},
          kKey};
}

std::vector<Rect> Draw(BlitQueue& queue, RasterBitmap& target,
                       const std::vector<QueuedBlit>& list) {
  for (const QueuedBlit& blit : list) queue.Add(blit);
  return queue.Flush(target);
}

// One pixel after another, as the rule says.
std::vector<std::uint32_t> Reference(std::vector<std::uint32_t> pixels,
                                     const std::vector<QueuedBlit>& list) {
  for (const QueuedBlit& blit : list) {
    for (int y = 0; y < blit.to.Height(); ++y) {
      for (int x = 0; x < blit.to.Width(); ++x) {
        const std::uint32_t word = *blit.source->At(blit.from.left + x, blit.from.top + y);
        if (blit.key && word == *blit.key) continue;
        pixels[(blit.to.top + y) * kSide + blit.to.left + x] = word;
      }
    }
  }
  return pixels;
}

std::vector<std::uint32_t> PixelsOf(const RasterBitmap& bitmap) {
  return {bitmap.Pixels(), bitmap.Pixels() + kSide * kSide};
}

TEST(BlitQueue, TheFirstFrameIsDrawnWhole) {
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  const Picture ground = Plain(kSide, kSide, 1);
  EXPECT_EQ(Draw(queue, target, {Put(ground, {0, 0})}), std::vector<Rect>{kAll});
  EXPECT_EQ(*target.At(63, 63), 1U);
}

TEST(BlitQueue, TheSameFrameAgainDrawsNothing) {
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  const Picture ground = Plain(kSide, kSide, 1), sprite = Holed(8, 8, 2);
  const std::vector<QueuedBlit> frame{Put(ground, {0, 0}), Put(sprite, {5, 5})};
  Draw(queue, target, frame);
  const std::uint64_t version = target.Version();
  EXPECT_TRUE(Draw(queue, target, frame).empty());
  EXPECT_EQ(target.Version(), version);
}

TEST(BlitQueue, AMovedPictureDrawsWhereItWasAndWhereItIs) {
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  const Picture ground = Plain(kSide, kSide, 1), sprite = Plain(4, 4, 2);
  Draw(queue, target, {Put(ground, {0, 0}), Put(sprite, {0, 0})});
  EXPECT_EQ(Draw(queue, target, {Put(ground, {0, 0}), Put(sprite, {40, 50})}),
            (std::vector<Rect>{{0, 0, 4, 4}, {40, 50, 44, 54}}));
  EXPECT_EQ(*target.At(0, 0), 1U);
  EXPECT_EQ(*target.At(43, 53), 2U);
}

TEST(BlitQueue, APictureThatComesOrGoesLeavesTheOthersAlone) {
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  const Picture ground = Plain(kSide, kSide, 1), a = Plain(4, 4, 2), b = Plain(4, 4, 3),
                c = Plain(4, 4, 4);
  const std::vector<QueuedBlit> all{Put(ground, {0, 0}), Put(a, {0, 0}), Put(b, {20, 0}),
                                    Put(c, {40, 0})};
  Draw(queue, target, all);
  EXPECT_EQ(Draw(queue, target, {all[0], all[1], all[3]}), (std::vector<Rect>{{20, 0, 24, 4}}));
  EXPECT_EQ(Draw(queue, target, all), (std::vector<Rect>{{20, 0, 24, 4}}));
  EXPECT_EQ(Draw(queue, target, {all[0], all[1], all[2]}), (std::vector<Rect>{{40, 0, 44, 4}}));
}

TEST(BlitQueue, APictureWhosePixelsChangedIsDrawnAgain) {
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  const Picture ground = Plain(kSide, kSide, 1), sprite = Plain(4, 4, 2);
  Draw(queue, target, {Put(ground, {0, 0}), Put(sprite, {8, 8})});
  *sprite->WritableAt(0, 0) = 7;
  EXPECT_EQ(Draw(queue, target, {Put(ground, {0, 0}), Put(sprite, {8, 8})}),
            (std::vector<Rect>{{8, 8, 12, 12}}));
  EXPECT_EQ(*target.At(8, 8), 7U);
}

TEST(BlitQueue, ATargetThatSomebodyElseWroteIsDrawnWhole) {
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  const Picture ground = Plain(kSide, kSide, 1);
  Draw(queue, target, {Put(ground, {0, 0})});
  *target.WritableAt(9, 9) = 5;
  EXPECT_EQ(Draw(queue, target, {Put(ground, {0, 0})}), std::vector<Rect>{kAll});
  EXPECT_EQ(*target.At(9, 9), 1U);
}

TEST(BlitQueue, WithoutAGroundThatCoversAllOldPixelsStay) {
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  const Picture ground = Holed(kSide, kSide, 1), sprite = Plain(4, 4, 2);
  Draw(queue, target, {Put(ground, {0, 0}), Put(sprite, {0, 0})});
  Draw(queue, target, {Put(ground, {0, 0}), Put(sprite, {8, 0})});
  EXPECT_EQ(*target.At(0, 0), 2U);  // a hole of the ground
  EXPECT_EQ(*target.At(1, 0), 1U);
  EXPECT_EQ(*target.At(8, 0), 2U);
}

// Scenes that change at random, drawn by the queue and by the rule.
TEST(BlitQueue, DrawsWhatAWholeFrameDraws) {
  std::mt19937 random(7);
  const auto up_to = [&random](int end) { return static_cast<int>(random() % end); };
  BlitQueue queue;
  RasterBitmap target(kSide, kSide, PixelFormat::kColor32);
  std::vector<Picture> pictures{Plain(kSide, kSide, 1), Holed(kSide, kSide, 2)};
  for (int i = 0; i < 12; ++i) {
    pictures.push_back(Holed(1 + up_to(30), 1 + up_to(30), 10 + i));
  }
  std::vector<QueuedBlit> frame{Put(pictures[0], {0, 0})};
  for (int round = 0; round < 2000; ++round) {
    const int picture = 2 + up_to(12);
    const Point at{up_to(kSide - pictures[picture]->Width() + 1),
                   up_to(kSide - pictures[picture]->Height() + 1)};
    const auto place = frame.begin() + 1 + up_to(static_cast<int>(frame.size()));
    switch (up_to(frame.size() > 30 ? 2 : 6)) {
      case 0:
        if (frame.size() > 1) frame.erase(frame.begin() + 1 + up_to(frame.size() - 1));
        break;
      case 1:
        frame[0] = Put(pictures[up_to(2)], {0, 0});
        break;
      case 2:
        *pictures[picture]->WritableAt(0, 0) = up_to(1000);
        for (QueuedBlit& blit : frame) blit.version = blit.source->Version();
        break;
      default:
        frame.insert(place, Put(pictures[picture], at));
    }
    const auto expected = Reference(PixelsOf(target), frame);
    Draw(queue, target, frame);
    ASSERT_EQ(PixelsOf(target), expected) << "round " << round;
  }
}

}  // namespace
}  // namespace quendle
