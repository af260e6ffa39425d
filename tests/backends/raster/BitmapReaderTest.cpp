#include "backends/raster/BitmapReader.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "backends/raster/PictureFiles.h"

namespace quendle {
namespace {

void Set32(std::string& bytes, std::size_t at, std::uint32_t value) {
  for (int i = 0; i < 4; ++i) bytes[at + i] = static_cast<char>(value >> 8 * i);
}

// A file of 2 by 2 pixels, of any depth, with the given pixel bytes.
std::string File2x2(int bits, const std::string& palette, const std::string& pixels) {
  std::string bytes(54, '\0');
  bytes[0] = 'B';
  bytes[1] = 'M';
  Set32(bytes, 2, static_cast<std::uint32_t>(54 + palette.size() + pixels.size()));
  Set32(bytes, 10, static_cast<std::uint32_t>(54 + palette.size()));
  Set32(bytes, 14, 40);
  Set32(bytes, 18, 2);
  Set32(bytes, 22, 2);
  bytes[26] = 1;
  bytes[28] = static_cast<char>(bits);
  Set32(bytes, 46, static_cast<std::uint32_t>(palette.size() / 4));
  return bytes + palette + pixels;
}

std::string Good24() {
  // Bottom row first: blue, green; then red, white. Two bytes of padding a row.
  return File2x2(24, "",
                 std::string("\xFF\x00\x00\x00\xFF\x00\x00\x00"
                             "\x00\x00\xFF\xFF\xFF\xFF\x00\x00",
                             16));
}

std::vector<std::uint32_t> Pixels(const BitmapFile& file) {
  if (!file.pixels) return {};
  return {file.pixels.get(),
          file.pixels.get() + static_cast<std::size_t>(file.width) * file.height};
}

const std::vector<std::uint32_t> kFour{0xFF0000, 0xFFFFFF, 0x0000FF, 0x00FF00};

TEST(BitmapReader, ReadsTwentyFourBitsFromTheBottomRowUp) {
  BitmapFile file = ReadBitmapFile(Good24());
  EXPECT_EQ(file.problem, "");
  EXPECT_EQ(file.width, 2);
  EXPECT_EQ(file.height, 2);
  EXPECT_EQ(Pixels(file), kFour);
}

TEST(BitmapReader, ANegativeHeightMeansThatTheTopRowStandsFirst) {
  std::string bytes = Good24();
  Set32(bytes, 22, static_cast<std::uint32_t>(-2));
  EXPECT_EQ(Pixels(ReadBitmapFile(bytes)),
            (std::vector<std::uint32_t>{0x0000FF, 0x00FF00, 0xFF0000, 0xFFFFFF}));
}

TEST(BitmapReader, ReadsThirtyTwoBitsAndIgnoresTheFourthByte) {
  const std::string pixels(
      "\xFF\x00\x00\x77\x00\xFF\x00\x00"
      "\x00\x00\xFF\xFF\xFF\xFF\xFF\x01",
      16);
  EXPECT_EQ(Pixels(ReadBitmapFile(File2x2(32, "", pixels))), kFour);
}

TEST(BitmapReader, ReadsEightBitsThroughThePalette) {
  const std::string palette(
      "\xFF\x00\x00\x00"
      "\x00\xFF\x00\x00"
      "\x00\x00\xFF\x00"
      "\xFF\xFF\xFF\x00",
      16);
  const std::string pixels("\x00\x01\x00\x00\x02\x03\x00\x00", 8);
  EXPECT_EQ(Pixels(ReadBitmapFile(File2x2(8, palette, pixels))), kFour);
}

TEST(BitmapReader, AnIndexBeyondThePaletteIsBlack) {
  const std::string pixels("\x00\x09\x00\x00\xFF\x00\x00\x00", 8);
  EXPECT_EQ(Pixels(ReadBitmapFile(File2x2(8, std::string("\x00\x00\xFF\x00", 4), pixels))),
            (std::vector<std::uint32_t>{0, 0xFF0000, 0xFF0000, 0}));
}

TEST(BitmapReader, TheLastRowNeedsNoPadding) {
  const std::string bytes = Good24();
  EXPECT_EQ(Pixels(ReadBitmapFile(std::string_view(bytes).substr(0, bytes.size() - 2))), kFour);
}

TEST(BitmapReader, AFileThatEndsWithinItsPixelsIsDamaged) {
  const std::string bytes = Good24();
  EXPECT_EQ(ReadBitmapFile(std::string_view(bytes).substr(0, bytes.size() - 3)).problem,
            "the file ends within its pixel data");
}

TEST(BitmapReader, EveryShorterFileIsDamagedAndNeverRead) {
  const std::string bytes = Good24();
  for (std::size_t size = 0; size + 3 <= bytes.size(); ++size) {
    const std::string cut = bytes.substr(0, size);
    BitmapFile file = ReadBitmapFile(cut);
    EXPECT_NE(file.problem, "") << size;
    EXPECT_FALSE(file.pixels) << size;
  }
}

TEST(BitmapReader, SizesBeyond4096AreRefusedWithoutAskingForMemory) {
  for (std::uint32_t width : {4097U, 0U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    std::string bytes = Good24();
    Set32(bytes, 18, width);
    EXPECT_TRUE(ReadBitmapFile(bytes).problem.starts_with("its size is ")) << width;
  }
  for (std::uint32_t height : {4097U, 0U, 0x7FFFFFFFU, 0x80000000U}) {
    std::string bytes = Good24();
    Set32(bytes, 22, height);
    EXPECT_TRUE(ReadBitmapFile(bytes).problem.starts_with("its size is ")) << height;
  }
}

TEST(BitmapReader, ALawfulSizeStillNeedsItsPixelsInTheFile) {
  std::string bytes = Good24();
  Set32(bytes, 18, 4096);
  Set32(bytes, 22, 4096);
  EXPECT_EQ(ReadBitmapFile(bytes).problem, "the file ends within its pixel data");
}

TEST(BitmapReader, PixelDataMustBeginBehindTheHeadersAndInsideTheFile) {
  for (std::uint32_t at : {0U, 53U, 1000U, 0xFFFFFFFFU}) {
    std::string bytes = Good24();
    Set32(bytes, 10, at);
    EXPECT_EQ(ReadBitmapFile(bytes).problem, "its pixel data begin outside the file") << at;
  }
}

TEST(BitmapReader, OtherDepthsAreRefusedWithTheirNumber) {
  for (int bits : {0, 1, 4, 16, 64}) {
    std::string bytes = Good24();
    bytes[28] = static_cast<char>(bits);
    EXPECT_EQ(ReadBitmapFile(bytes).problem,
              "it has " + std::to_string(bits) + " bits a pixel, not 8, 24 or 32");
  }
}

TEST(BitmapReader, CompressedPixelsAreRefused) {
  for (std::uint32_t compression : {1U, 2U, 3U, 4U, 99U}) {
    std::string bytes = Good24();
    Set32(bytes, 30, compression);
    EXPECT_EQ(ReadBitmapFile(bytes).problem, "its pixels are compressed or in an unusual order");
  }
}

TEST(BitmapReader, ThirtyTwoBitsMayStateTheUsualMasks) {
  const std::string masks(
      "\x00\x00\xFF\x00"
      "\x00\xFF\x00\x00"
      "\xFF\x00\x00\x00",
      12);
  std::string bytes = File2x2(32, masks, std::string(16, '\x10'));
  Set32(bytes, 30, 3);
  EXPECT_EQ(Pixels(ReadBitmapFile(bytes)), (std::vector<std::uint32_t>(4, 0x101010)));
  bytes[54] = 1;
  EXPECT_EQ(ReadBitmapFile(bytes).problem, "its pixels are compressed or in an unusual order");
}

TEST(BitmapReader, APaletteMustLieInTheFileAndHoldAtMost256Colours) {
  std::string bytes = File2x2(8, std::string(4, '\0'), std::string(8, '\0'));
  Set32(bytes, 46, 0);  // means 256 colours
  EXPECT_EQ(ReadBitmapFile(bytes).problem, "the file ends within its palette");
  Set32(bytes, 46, 257);
  EXPECT_EQ(ReadBitmapFile(bytes).problem, "its palette has more than 256 colours");
}

TEST(BitmapReader, AnotherKindOfFileIsNoBitmap) {
  EXPECT_EQ(ReadBitmapFile("").problem, "it is not a bitmap file");
  EXPECT_EQ(ReadBitmapFile(std::string(100, 'x')).problem, "it is not a bitmap file");
  std::string bytes = Good24();
  Set32(bytes, 14, 12);
  EXPECT_EQ(ReadBitmapFile(bytes).problem, "its header is not known");
}

// Whatever one byte says, the answer is a picture of a lawful size or a problem.
TEST(BitmapReader, AnyValueOfAnyByteIsReadSafely) {
  const std::vector<std::string> files{Good24(),
                                       File2x2(8, std::string(16, '\x40'), std::string(8, '\1')),
                                       File2x2(32, "", std::string(16, '\x20'))};
  for (const std::string& good : files) {
    for (std::size_t at = 0; at < good.size(); ++at) {
      for (int value = 0; value < 256; ++value) {
        // Exactly as large as the bytes, so that a sanitizer sees a read past the end.
        std::vector<char> bytes(good.begin(), good.end());
        bytes[at] = static_cast<char>(value);
        BitmapFile file = ReadBitmapFile({bytes.data(), bytes.size()});
        ASSERT_EQ(file.problem.empty(), file.pixels != nullptr);
        if (!file.pixels) continue;
        ASSERT_TRUE(RasterBitmap::SizeIsLawful(file.width, file.height));
        ASSERT_LE(file.width * file.height, static_cast<int>(good.size()));
      }
    }
  }
}

TEST(BitmapWriter, WhatIsWrittenIsReadBackAtEveryWidth) {
  for (int width = 1; width <= 9; ++width) {
    std::vector<std::uint32_t> words;
    for (int i = 0; i < width * 3; ++i) words.push_back(0x010203U * static_cast<unsigned>(i + 1));
    BitmapFile file = ReadBitmapFile(WriteBitmapFile(width, 3, words.data()));
    EXPECT_EQ(file.problem, "");
    EXPECT_EQ(Pixels(file), words) << width;
  }
}

TEST(BitmapWriter, WritesTwentyFourBitsWithTheBottomRowFirst) {
  EXPECT_EQ(WriteBitmapFile(2, 2, kFour.data()).substr(54), Good24().substr(54));
}

}  // namespace
}  // namespace quendle
