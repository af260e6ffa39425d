#include "diagnostics/Debomb_Window.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

TEST(DebombWindow, TheNewestLineStandsOnTop) {
  Debomb_Window window;
  window.PutOnTop("one");
  window.PutOnTop("two");
  EXPECT_EQ(window.txt_diffuse, "two\r\none\r\n");
  EXPECT_EQ(window.changes, 2u);
  EXPECT_EQ(window.caption, "Quendle -- Debomber");
}

TEST(DebombWindow, OfATextTooLongTheOldestLinesGoWhole) {
  Debomb_Window window;
  for (int i = 0; i < 20000; ++i) window.PutOnTop("line " + std::to_string(i));
  EXPECT_LE(window.txt_diffuse.size(), Debomb_Window::kMostCharacters);
  EXPECT_GT(window.txt_diffuse.size(), Debomb_Window::kMostCharacters - 20);
  EXPECT_TRUE(window.txt_diffuse.starts_with("line 19999\r\nline 19998\r\n"));
  EXPECT_TRUE(window.txt_diffuse.ends_with("\r\n"));
  const std::size_t last = window.txt_diffuse.rfind("\r\n", window.txt_diffuse.size() - 3);
  EXPECT_EQ(window.txt_diffuse.compare(last + 2, 5, "line "), 0);
}

TEST(DebombWindow, OfALineTooLongTheBeginningStays) {
  Debomb_Window window;
  window.PutOnTop("old");
  window.PutOnTop("new" + std::string(2 * Debomb_Window::kMostCharacters, '.'));
  EXPECT_EQ(window.txt_diffuse.size(), Debomb_Window::kMostCharacters);
  EXPECT_TRUE(window.txt_diffuse.starts_with("new..."));
  EXPECT_TRUE(window.txt_diffuse.ends_with(".\r\n"));
}

}  // namespace
}  // namespace quendle
