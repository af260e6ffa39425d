#include "toolbelt/making/PictureTool.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "backends/raster/BitmapReader.h"
#include "toolbelt/FrameHash.h"
#include "toolbelt/PngFile.h"
#include "toolbelt/ToolBelt.h"
#include "toolbelt/making/KeyedPicture.h"

namespace quendle {
namespace {

std::uint32_t Keyed(std::uint32_t pixel) {
  SheerPicture picture{1, 1, {pixel}};
  KeyPicture(picture);
  return picture.pixels[0];
}

TEST(KeyedPicture, EdgesAreHardAtHalfAlpha) {
  EXPECT_EQ(Keyed(0x00123456), 0xC8C8C8u);
  EXPECT_EQ(Keyed(0x7F123456), 0xC8C8C8u);
  EXPECT_EQ(Keyed(0x80123456), 0x123456u);
  EXPECT_EQ(Keyed(0xFF123456), 0x123456u);
}

TEST(KeyedPicture, AnInnerGreyLikeTheKeyIsMovedByOne) {
  EXPECT_EQ(Keyed(0xFFC8C8C8), 0xC7C7C7u);
  EXPECT_EQ(Keyed(0xFFC7C7C7), 0xC7C7C7u);
}

TEST(KeyedPicture, NoInnerColourHitsTheKeyAtSixteenBits) {
  for (std::uint32_t red = 190; red < 216; ++red) {
    for (std::uint32_t green = 190; green < 216; ++green) {
      const std::uint32_t color = Keyed(0xFF000000 | red << 16 | green << 8 | 205);
      EXPECT_NE(ReduceTo565(color), ReduceTo565(0xC8C8C8)) << red << " " << green;
    }
  }
  EXPECT_EQ(Keyed(0xFFC9C9C9), 0xC9C7C9u);
  EXPECT_EQ(Keyed(0xFFCACBCA), 0xCACCCAu);
  EXPECT_EQ(Keyed(0xFFCCCCCC), 0xCCCCCCu);
}

// A folder of its own that goes with the test.
struct Folder {
  Folder() { std::filesystem::create_directories(path); }
  ~Folder() { std::filesystem::remove_all(path); }
  std::string File(const std::string& name) const { return (path / name).string(); }
  std::filesystem::path path =
      std::filesystem::temp_directory_path() / ("picture-tool-" + std::to_string(::getpid()));
};

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(PictureTool, APngBecomesABitmap) {
  Folder folder;
  const std::uint32_t pixels[] = {0xFF0000, 0x00FF00, 0x0000FF, 0xC8C8C8, 0x010203, 0xFFFFFF};
  WritePng(folder.File("in.png"), 3, 2, pixels);
  EXPECT_EQ(RunToolBelt({"picture", folder.File("in.png"), folder.File("out.bmp")}), 0);
  const BitmapFile bitmap = ReadBitmapFile(ReadAll(folder.File("out.bmp")));
  EXPECT_EQ(bitmap.problem, "");
  ASSERT_EQ(bitmap.width, 3);
  ASSERT_EQ(bitmap.height, 2);
  EXPECT_EQ(bitmap.pixels[0], 0xFF0000u);
  EXPECT_EQ(bitmap.pixels[3], 0xC7C7C7u);
  EXPECT_EQ(bitmap.pixels[5], 0xFFFFFFu);
}

TEST(PictureTool, AMissingOrDamagedPictureFails) {
  Folder folder;
  EXPECT_EQ(RunToolBelt({"picture", folder.File("none.png"), folder.File("out.bmp")}), 1);
  const std::uint32_t pixels[] = {0xFF0000, 0x00FF00};
  WritePng(folder.File("whole.png"), 2, 1, pixels);
  const std::string whole = ReadAll(folder.File("whole.png"));
  for (std::size_t size = 0; size + 12 < whole.size(); size += 7) {
    std::ofstream(folder.File("cut.png"), std::ios::binary) << whole.substr(0, size);
    EXPECT_THROW(ReadPng(folder.File("cut.png")), PictureError) << size;
  }
  EXPECT_FALSE(std::filesystem::exists(folder.File("out.bmp")));
}

TEST(FrameHash, IsTheSameOnEveryMachine) {
  const std::uint32_t pixels[] = {0x010203, 0xFF040506};
  EXPECT_EQ(HashOfFrame(1, 1, pixels), "d0aa6218672cf5ab");
  EXPECT_NE(HashOfFrame(2, 1, pixels), HashOfFrame(1, 1, pixels));
}

}  // namespace
}  // namespace quendle
