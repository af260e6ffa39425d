#include "backends/forms/TextView.h"

#include <gtest/gtest.h>

#include "platform/TextSource.h"
#include "support/BlockFonts.h"

namespace quendle {
namespace {

class Lines : public TextSource {
 public:
  const std::string& Caption() const override { return caption; }
  const std::string& Text() const override { return text; }
  std::uint64_t Changes() const override { return changes; }
  void PutOnTop(const std::string& line) {
    text.insert(0, line + "\r\n");
    ++changes;
  }
  std::string caption;
  std::string text;
  std::uint64_t changes = 0;
};

struct TextViewBench : testing::Test {
  std::vector<std::uint32_t> Paint(Size size = {300, 200}) { return view.Paint(size, 1).Pixels(); }
  void Fill(int lines) {
    for (int i = 0; i < lines; ++i) text.PutOnTop("line " + std::to_string(i));
    Paint();
  }
  std::string Top() const { return view.Rows().at(static_cast<std::size_t>(view.FirstRow())); }

  BlockFonts fonts;
  TextPainter painter{fonts};
  Lines text;
  TextView view{painter, text};
};

using TextViewTest = TextViewBench;

TEST_F(TextViewTest, LongLinesAreWrappedAlsoWithoutBlanks) {
  text.PutOnTop(std::string(300, 'w'));
  Paint();
  std::string whole;
  for (const std::string& row : view.Rows()) whole += row;
  EXPECT_GT(view.Rows().size(), 2u);
  EXPECT_EQ(whole, std::string(300, 'w'));
}

TEST_F(TextViewTest, ANarrowerPictureWrapsAnew) {
  text.PutOnTop("one two three four five");
  Paint({1000, 200});
  EXPECT_EQ(view.Rows().size(), 1u);
  Paint({120, 200});
  EXPECT_GT(view.Rows().size(), 1u);
}

TEST_F(TextViewTest, ScrollsWithinTheText) {
  Fill(50);
  view.ScrollBy(-1);
  EXPECT_EQ(Top(), "line 49");
  view.ScrollBy(3);
  EXPECT_EQ(Top(), "line 46");
  view.ScrollPages(1);
  EXPECT_EQ(view.FirstRow(), 3 + view.RowsInView() - 1);
  view.ScrollToEnd();
  EXPECT_EQ(view.FirstRow(), 50 - view.RowsInView());
  view.ScrollBy(1);
  EXPECT_EQ(view.FirstRow(), 50 - view.RowsInView());
  view.ScrollToStart();
  EXPECT_EQ(Top(), "line 49");
}

TEST_F(TextViewTest, WhoHasScrolledGoesOnSeeingTheSameLines) {
  Fill(50);
  view.ScrollBy(3);
  text.PutOnTop("a new one");
  Paint();
  EXPECT_EQ(Top(), "line 46");
}

TEST_F(TextViewTest, IsStaleFromAChangeOrAScrollToTheNextPicture) {
  Fill(50);
  EXPECT_FALSE(view.IsStale());
  text.PutOnTop("more");
  EXPECT_TRUE(view.IsStale());
  const auto before = Paint();
  EXPECT_FALSE(view.IsStale());
  view.ScrollBy(1);
  EXPECT_TRUE(view.IsStale());
  EXPECT_NE(Paint(), before);
  EXPECT_FALSE(view.IsStale());
}

}  // namespace
}  // namespace quendle
