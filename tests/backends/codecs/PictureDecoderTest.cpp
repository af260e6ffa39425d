#include "backends/codecs/PictureDecoder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>

#include "backends/codecs/PictureDecoderLoader.h"
#include "backends/codecs/PictureFrame.h"
#include "backends/raster/BitmapWriter.h"
#include "support/TestData.h"

namespace quendle {
namespace {

constexpr std::uint32_t kRed = 0xFF0000;
constexpr std::uint32_t kGreen = 0x00FF00;
constexpr std::uint32_t kBlue = 0x0000FF;
constexpr std::uint32_t kWhite = 0xFFFFFF;

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (int value : values) bytes += static_cast<char>(value);
  return bytes;
}

// A JPEG as a camera writes it that was held some way: the note stands in front of everything.
std::string Held(std::string jpeg, int orientation) {
  const std::string note =
      Bytes({0xFF, 0xE1, 0, 34}) + "Exif" + Bytes({0, 0}) + "II" +
      Bytes({42, 0, 8, 0, 0, 0, 1, 0, 0x12, 1, 3, 0, 1, 0, 0, 0, orientation, 0, 0, 0, 0, 0, 0, 0});
  return jpeg.insert(2, note);
}

// How far two colours are apart in the channel that differs most.
int Distance(std::uint32_t a, std::uint32_t b) {
  int most = 0;
  for (int shift : {0, 8, 16}) {
    const int step = static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255);
    most = std::max(most, std::abs(step));
  }
  return most;
}

void ExpectNear(const Picture& picture, int x, int y, std::uint32_t color) {
  EXPECT_LE(Distance(picture.At(x, y), color), 8)
      << x << "," << y << ": " << std::hex << picture.At(x, y) << " and not " << color;
}

TEST(PictureDecoder, AJpegIsDecodedInItsColours) {
  const DecodedPicture decoded = DecodePicture(TestData("photograph.jpg"));
  ASSERT_EQ(decoded.problem, "");
  EXPECT_EQ(decoded.picture.size, (Size{900, 700}));
  ExpectNear(decoded.picture, 760, 110, 0xFFE27A);  // the sun
  ExpectNear(decoded.picture, 160, 420, 0xC9825A);  // the house
  ExpectNear(decoded.picture, 460, 330, 0xF6CDA8);  // the nose
  ExpectNear(decoded.picture, 890, 690, 0x7FB25C);  // the meadow
}

TEST(PictureDecoder, AJpegStandsAsTheCameraWasHeld) {
  const std::string jpeg = TestData("photograph.jpg");
  ASSERT_FALSE(jpeg.empty());
  const Picture plain = DecodePicture(jpeg).picture;
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const DecodedPicture held = DecodePicture(Held(jpeg, orientation));
    ASSERT_EQ(held.problem, "") << orientation;
    EXPECT_TRUE(held.picture == Upright(plain, orientation)) << orientation;
  }
}

TEST(PictureDecoder, EachWayToHoldACameraIsTurnedBack) {
  // 1 2 3
  // 4 5 6
  const Picture stored{{3, 2}, {1, 2, 3, 4, 5, 6}};
  const auto words = [&](int orientation) { return Upright(stored, orientation).words; };
  using Words = std::vector<std::uint32_t>;
  EXPECT_EQ(words(1), (Words{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(words(2), (Words{3, 2, 1, 6, 5, 4}));
  EXPECT_EQ(words(3), (Words{6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(words(4), (Words{4, 5, 6, 1, 2, 3}));
  EXPECT_EQ(words(5), (Words{1, 4, 2, 5, 3, 6}));
  EXPECT_EQ(words(6), (Words{4, 1, 5, 2, 6, 3}));
  EXPECT_EQ(words(7), (Words{6, 3, 5, 2, 4, 1}));
  EXPECT_EQ(words(8), (Words{3, 6, 2, 5, 1, 4}));
  EXPECT_EQ(Upright(stored, 6).size, (Size{2, 3}));
  for (int unknown : {0, 9, -1}) EXPECT_TRUE(Upright(stored, unknown) == stored) << unknown;
}

TEST(PictureDecoder, AGifIsDecodedOnWhite) {
  const std::string gif =
      Bytes({71,  73, 70, 56, 57,  97, 3, 0, 2,  0,   241, 0,  0,   255, 0, 0, 0,
             255, 0,  0,  0,  255, 0,  0, 0, 33, 249, 4,   1,  0,   0,   3, 0, 44,
             0,   0,  0,  0,  3,   0,  2, 0, 0,  2,   3,   68, 134, 82,  0, 59});
  const DecodedPicture decoded = DecodePicture(gif);
  ASSERT_EQ(decoded.problem, "");
  EXPECT_TRUE(decoded.picture == (Picture{{3, 2}, {kRed, kGreen, kWhite, kWhite, kWhite, kBlue}}));
}

TEST(PictureDecoder, ABitmapOf24BitsIsDecoded) {
  const std::vector<std::uint32_t> words = {kRed, kGreen, kBlue, kWhite, 0, 0x123456};
  const DecodedPicture decoded = DecodePicture(WriteBitmapFile(3, 2, words.data()));
  ASSERT_EQ(decoded.problem, "");
  EXPECT_TRUE(decoded.picture == (Picture{{3, 2}, words}));
}

TEST(PictureDecoder, ABitmapOfTwoColoursIsDecoded) {
  std::string bitmap =
      "BM" + Bytes({70, 0, 0, 0, 0, 0, 0, 0, 62, 0, 0, 0, 40, 0, 0,   0, 3,   0, 0, 0,
                    2,  0, 0, 0, 1, 0, 1, 0, 0,  0, 0, 0, 8,  0, 0,   0, 0,   0, 0, 0,
                    0,  0, 0, 0, 2, 0, 0, 0, 0,  0, 0, 0, 0,  0, 255, 0, 255, 0, 0, 0});
  bitmap += Bytes({0x40, 0, 0, 0, 0xA0, 0, 0, 0});  // from below: red blue red, blue red blue
  const DecodedPicture decoded = DecodePicture(bitmap);
  ASSERT_EQ(decoded.problem, "");
  EXPECT_TRUE(decoded.picture == (Picture{{3, 2}, {kBlue, kRed, kBlue, kRed, kBlue, kRed}}));
}

TEST(PictureDecoder, AnythingElseIsNoPhotograph) {
  for (const std::string& bytes : {std::string(), std::string("B"), std::string("text"),
                                   std::string("\x89PNG\r\n\x1A\n"), std::string(5000, 'x')}) {
    const DecodedPicture decoded = DecodePicture(bytes);
    EXPECT_NE(decoded.problem.find("JPEG, GIF or bitmap"), std::string::npos) << bytes.size();
    EXPECT_TRUE(decoded.picture.Empty());
  }
}

TEST(PictureDecoder, AJpegThatEndsTooEarlyIsDamaged) {
  const std::string jpeg = TestData("photograph.jpg");
  ASSERT_FALSE(jpeg.empty());
  for (std::size_t size = 4; size < jpeg.size(); size += 499) {
    const DecodedPicture decoded = DecodePicture(std::string_view(jpeg).substr(0, size));
    EXPECT_NE(decoded.problem.find("damaged"), std::string::npos) << size;
  }
}

TEST(PictureDecoder, BrokenBytesGiveAPictureOrAProblemAndNothingWorse) {
  const std::string jpeg = TestData("photograph.jpg");
  ASSERT_FALSE(jpeg.empty());
  unsigned random = 1;
  for (int round = 0; round < 60; ++round) {
    std::string broken = jpeg;
    for (int i = 0; i < 20; ++i) {
      random = random * 1103515245 + 12345;
      broken[2 + random / 7 % (broken.size() - 2)] = static_cast<char>(random >> 16);
    }
    const DecodedPicture decoded = DecodePicture(broken);
    EXPECT_NE(decoded.picture.Empty(), decoded.problem.empty()) << round;
  }
}

TEST(PictureDecoder, APictureBeyondTheLimitIsMadeSmallerByAWholeNumber) {
  std::vector<std::uint32_t> words;
  for (std::uint32_t i = 0; i < 11 * 7; ++i) words.push_back(i << 16 | i * 2 << 8 | (255 - i));
  const std::string bitmap = WriteBitmapFile(11, 7, words.data());
  // The side of 11 makes 3 the smallest whole number; a column and a row are left over.
  const Picture small = DecodePicture(bitmap, {10, 4}).picture;
  ASSERT_EQ(small.size, (Size{3, 2}));
  std::uint32_t red = 0, blue = 0;
  for (std::size_t y = 3; y < 6; ++y) {
    for (std::size_t x = 6; x < 9; ++x) {
      red += words[y * 11 + x] >> 16;
      blue += words[y * 11 + x] & 255;
    }
  }
  const std::uint32_t mean = (red + 4) / 9;
  EXPECT_EQ(small.At(2, 1), mean << 16 | mean * 2 << 8 | (blue + 4) / 9);
  EXPECT_EQ(DecodePicture(bitmap, {11, 4}).picture.size, (Size{11, 7})) << "within the limit";
  EXPECT_EQ(DecodePicture(bitmap, {10, 11}).picture.size, (Size{11, 7})) << "small enough as it is";
  EXPECT_EQ(DecodePicture(bitmap, {10, 10}).picture.size, (Size{5, 3}));
}

TEST(PictureDecoder, AStripNarrowerThanABlockKeepsOnePixel) {
  const std::vector<std::uint32_t> words(3 * 100, 0x102030);
  const std::string strip = WriteBitmapFile(3, 100, words.data());
  EXPECT_TRUE(DecodePicture(strip, {50, 10}).picture ==
              (Picture{{1, 10}, std::vector<std::uint32_t>(10, 0x102030)}));
}

TEST(PictureDecoder, AJpegIsMadeSmallerAndThenTurned) {
  const std::string jpeg = TestData("photograph.jpg");
  const Picture whole = DecodePicture(jpeg).picture;
  const Picture small = DecodePicture(jpeg, {500, 450}).picture;
  ASSERT_EQ(small.size, (Size{450, 350}));
  ExpectNear(small, 230, 165, whole.At(460, 330));
  EXPECT_TRUE(DecodePicture(Held(jpeg, 6), {500, 450}).picture == Upright(small, 6));
}

// A grey JPEG as large as asked for: each block takes two bits.
std::string LargeGreyJpeg(int width, int height) {
  std::string jpeg = Bytes({0xFF, 0xD8, 0xFF, 0xDB, 0, 67, 0}) + std::string(64, '\1');
  jpeg += Bytes(
      {0xFF, 0xC0, 0, 11, 8, height >> 8, height & 255, width >> 8, width & 255, 1, 1, 0x11, 0});
  // One code each: "no change" of the brightness, "end of block" for the rest.
  for (int table : {0x00, 0x10}) {
    jpeg += Bytes({0xFF, 0xC4, 0, 20, table, 1}) + std::string(15, '\0') + Bytes({0});
  }
  jpeg += Bytes({0xFF, 0xDA, 0, 8, 1, 1, 0, 0, 63, 0});
  const int blocks = ((width + 7) / 8) * ((height + 7) / 8);
  return jpeg + std::string(static_cast<std::size_t>(blocks / 4 + 1), '\0') + Bytes({0xFF, 0xD9});
}

TEST(PictureDecoder, APhotographJustBelowFiftyMillionPointsIsDecoded) {
  const DecodedPicture decoded = DecodePicture(LargeGreyJpeg(8600, 5800), {2184, 1200});
  ASSERT_EQ(decoded.problem, "");
  EXPECT_EQ(decoded.picture.size, (Size{1075, 725}));
  EXPECT_EQ(decoded.picture.At(1074, 724), 0x808080u);
}

TEST(PictureDecoder, AJpegOfMoreThanSixtyMillionBytesIsRefused) {
  std::string bytes = TestData("photograph.jpg");
  bytes.resize(60'000'000, '\0');
  EXPECT_EQ(DecodePicture(bytes).problem, "");
  bytes += '\0';
  EXPECT_EQ(DecodePicture(bytes).problem,
            "This file is too large for a photograph. Please choose another one.");
}

TEST(PictureDecoder, MoreThanFiftyMillionPointsAreRefusedBeforeAnythingIsDecoded) {
  const std::string jpeg =
      Bytes({0xFF, 0xD8, 0xFF, 0xC0, 0, 17,   8, 0x27, 0x10, 0x27, 0x10, 3,    1,   0x22,
             0,    2,    0x11, 1,    3, 0x11, 1, 0xFF, 0xDA, 0,    2,    0xFF, 0xD9});
  EXPECT_NE(DecodePicture(jpeg).problem.find("too large: it has 100 million points"),
            std::string::npos);
  const std::string gif = "GIF89a" + Bytes({0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0});
  EXPECT_NE(DecodePicture(gif).problem.find("too large"), std::string::npos);
  std::string bitmap(100, '\0');
  bitmap.replace(0, 2, "BM");
  bitmap.replace(18, 8, Bytes({0xFF, 0xFF, 0xFF, 0x7F, 0, 0, 0, 0x80}));
  EXPECT_NE(DecodePicture(bitmap).problem.find("too large"), std::string::npos);
}

TEST(PictureDecoderLoader, GoesByTheBytesAndNotByTheName) {
  const std::string path = testing::TempDir() + "really-a-jpeg.gif";
  std::ofstream(path, std::ios::binary) << TestData("photograph.jpg");
  const LoadedPicture loaded = PictureDecoderLoader().LoadPicture(path, {});
  ASSERT_NE(loaded.picture, nullptr) << loaded.problem;
  EXPECT_EQ(loaded.picture->size, (Size{900, 700}));
  std::filesystem::remove(path);
}

TEST(PictureDecoderLoader, WhatIsNoRegularFileCantBeOpened) {
  const std::string pipe = testing::TempDir() + "a-pipe.jpg";
  mkfifo(pipe.c_str(), 0600);
  for (const std::string& path : {std::string(), std::string("/nowhere/photo.jpg"), pipe,
                                  std::string("/tmp"), std::string("/dev/zero")}) {
    const LoadedPicture loaded = PictureDecoderLoader().LoadPicture(path, {});
    EXPECT_EQ(loaded.picture, nullptr) << path;
    EXPECT_EQ(loaded.problem, "This file can't be opened. Please choose another one.") << path;
  }
  std::filesystem::remove(pipe);
}

}  // namespace
}  // namespace quendle
