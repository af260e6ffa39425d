#include "toolbelt/making/TreeTool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "toolbelt/Json.h"
#include "toolbelt/PngFile.h"
#include "toolbelt/TreeBench.h"
#include "toolbelt/drive/Arguments.h"
#include "toolbelt/making/Render.h"

namespace quendle {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

struct TreeToolTest : testing::Test, TreeBench {
  int Print(const std::string& screen, bool json = false) {
    out.str("");
    return PrintTree({Path(), screen, json, {}}, out, errors);
  }
  std::ostringstream out, errors;
};

TEST_F(TreeToolTest, AScreenIsPrintedWithItsObjectsBelowIt) {
  const auto before = Files();
  EXPECT_EQ(Print("hall"), 0);
  EXPECT_THAT(out.str(), MatchesRegex("hall +hall +default +at 0,0 +[0-9]+x[0-9]+\n"
                                      "  backdoor +button +default +at 40,300 +[0-9]+x[0-9]+\n"));
  EXPECT_EQ(Files(), before);
}

TEST_F(TreeToolTest, WhatIsHiddenIsMarked) {
  Put("hall/hallchildren.txt", "\\Info\\backdoor\\backdoor.txt visible_off\n");
  EXPECT_EQ(Print("hall"), 0);
  EXPECT_THAT(out.str(), HasSubstr("  hidden\n"));
}

TEST_F(TreeToolTest, WithoutAScreenAllAreThereAndTheGlobalObjects) {
  EXPECT_EQ(Print(""), 0);
  const auto line = [&](const char* text) { return out.str().find(text) != std::string::npos; };
  EXPECT_TRUE(line("introscreen ") && line("\nhall ") && line("\ntools ") && line("\ncursors "));
  EXPECT_THAT(out.str(), HasSubstr("\nglobal objects\n  handcursor "));
}

TEST_F(TreeToolTest, AsJsonItIsWhatDriveTells) {
  EXPECT_EQ(Print("tools", true), 0);
  const Json tools = Json::parse(out.str());
  EXPECT_EQ(tools["screens"][0]["name"], "tools");
  EXPECT_FALSE(tools.contains("global"));
  EXPECT_EQ(Print("", true), 0);
  const Json all = Json::parse(out.str());
  EXPECT_EQ(all["screens"].size(), 4u);
  EXPECT_EQ(all["screens"][1]["children"][0]["state"], "default");
  EXPECT_EQ(all["global"][0]["name"], "handcursor");
}

TEST_F(TreeToolTest, AnUnknownScreenIsRefusedAndABrokenOneIsFatal) {
  EXPECT_THROW(Print("hell"), CommandRefused);
  Replace("hall/hallstates.txt", "room", "rom");
  EXPECT_EQ(Print("hall"), 3);
  EXPECT_THAT(errors.str(), HasSubstr("hallstates.txt:1: "));
}

struct RenderTest : testing::Test, TreeBench {
  RenderTest() {
    settings.content = Path();
    settings.screen = "hall";
    settings.picture = Beside("hall.png");
  }
  int Draw() { return RenderScreens(settings, errors); }
  std::uint32_t Pixel(int x, int y) const {
    return ReadPng(settings.picture).pixels[static_cast<std::size_t>(y * 800 + x)] & 0xFFFFFF;
  }
  RenderSettings settings;
  std::ostringstream errors;
};

TEST_F(RenderTest, AnObjectIsShownInTheStateThatIsAskedFor) {
  EXPECT_EQ(Draw(), 0);
  EXPECT_EQ(Pixel(100, 360), 0xA3643Fu);
  settings.states = {"backdoor=default-highlight"};
  EXPECT_EQ(Draw(), 0);
  EXPECT_EQ(Pixel(100, 360), 0xD3946Fu);
}

TEST_F(RenderTest, AStateOrObjectThatIsNotThereIsRefused) {
  settings.states = {"backdoor=defalt"};
  EXPECT_THROW(Draw(), CommandRefused);
  settings.states = {"backdor=default"};
  EXPECT_THROW(Draw(), CommandRefused);
  settings.states = {"backdoor"};
  EXPECT_THROW(Draw(), CommandRefused);
}

TEST_F(RenderTest, ThePointerCanBeLeftOut) {
  settings.states = {};
  EXPECT_EQ(Draw(), 0);
  EXPECT_EQ(Pixel(16, 16), 0x5A3E2Bu);
  settings.pointer = false;
  EXPECT_EQ(Draw(), 0);
  EXPECT_EQ(Pixel(16, 16), 0xF2E2BFu);
}

TEST_F(RenderTest, BothDrawingPathsGiveTheSamePicture) {
  EXPECT_EQ(Draw(), 0);
  const auto first = Read(settings.picture);
  settings.options.window_path = true;
  EXPECT_EQ(Draw(), 0);
  EXPECT_EQ(Read(settings.picture), first);
}

TEST_F(RenderTest, AllScreensAreDrawnAlsoBesideABrokenOne) {
  settings.folder = Beside("pictures");
  EXPECT_EQ(Draw(), 0);
  EXPECT_TRUE(std::filesystem::exists(settings.folder + "/introscreen.png"));
  EXPECT_TRUE(std::filesystem::exists(settings.folder + "/hall.png"));
  EXPECT_FALSE(std::filesystem::exists(settings.folder + "/tools.png"));
  Replace("hall/hallstates.txt", "room", "rom");
  settings.folder = Beside("again");
  EXPECT_EQ(Draw(), 3);
  EXPECT_TRUE(std::filesystem::exists(settings.folder + "/introscreen.png"));
  EXPECT_THAT(errors.str(), HasSubstr("hallstates.txt"));
}

}  // namespace
}  // namespace quendle
