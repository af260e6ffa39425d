// What an author sees of a whole running game, and the debug window beside it.

#include "shell/AuthorMode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "diagnostics/Debomb_Window.h"
#include "shell/GameBench.h"

namespace quendle {
namespace {

using testing::IsEmpty;

struct AuthorBench : testing::Test, GameBench {
  bool Traced() { return application.Game()->watch.tracer != nullptr; }
  static bool Tells(const std::vector<AuthorLine>& lines, const std::string& text) {
    for (const AuthorLine& line : lines) {
      if (line.text.find(text) != std::string::npos) return true;
    }
    return false;
  }
  AuthorMode author{application};
};

using AuthorModeTest = AuthorBench;

TEST_F(AuthorModeTest, TheGameIsTracedOnlyWhileItIsOn) {
  Play();
  EXPECT_FALSE(Traced());
  author.SwitchOn(true);
  EXPECT_TRUE(Traced());
  author.SwitchOn(false);
  EXPECT_FALSE(Traced());
}

TEST_F(AuthorModeTest, BeforeTheGameThereIsNothingToSee) {
  author.SwitchOn(true);
  EXPECT_THAT(author.PageAt(Point{120, 120}).under, IsEmpty());
  Play();
  EXPECT_TRUE(Traced());
  EXPECT_TRUE(Tells(author.PageAt(Point{120, 120}).under, "introscreen/start"));
}

TEST_F(AuthorModeTest, ThePageHoldsWhatIsUnderThePointerAndTheLastClick) {
  Play();
  author.SwitchOn(true);
  AuthorPage page = author.PageAt(Point{120, 120});
  EXPECT_TRUE(Tells(page.under, "introscreen/start (button), hit"));
  EXPECT_EQ(page.outlines.size(), 1u);
  Click(120, 120);
  page = author.PageAt(std::nullopt);
  EXPECT_THAT(page.under, IsEmpty());
  EXPECT_TRUE(Tells(page.trail, "start does: mtp cs_floor1hall1"));
}

TEST_F(AuthorModeTest, AfterTheEndThereIsNothingToSee) {
  Play();
  author.SwitchOn(true);
  Close();
  EXPECT_THAT(author.PageAt(Point{120, 120}).under, IsEmpty());
}

TEST_F(AuthorModeTest, TheDebugWindowShowsTheLogOfTheRunAndTheFileHasItToo) {
  Debomb_Window window;
  application.SetDebugWindow(&window);
  Play();
  Do([&] {
    bool result = true;
    Logic()->CurrentScreen()->HandleMessage("showobj_nobody", nullptr, true, result);
    Logic()->CurrentScreen()->HandleMessage("totype_nothing_x", nullptr, true, result);
  });
  EXPECT_EQ(window.txt_diffuse,
            "introscreen Warning: Did not Find the type requested by the message totype_nothing_x"
            "\r\n");
  EXPECT_EQ(File("\\general.txt"), window.txt_diffuse);
}

TEST_F(AuthorModeTest, TheDebugWindowShowsTheFaultThatEndsARun) {
  Debomb_Window window;
  application.SetDebugWindow(&window);
  Play();
  Send("cs_nosuchscreen");
  EXPECT_THAT(window.txt_diffuse, testing::StartsWith("Fatal: "));
}

}  // namespace
}  // namespace quendle
