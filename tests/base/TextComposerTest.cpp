#include <gtest/gtest.h>

#include "base/TextStream.h"

namespace quendle {
namespace {

TEST(TextComposer, AppendsLinesThatAReaderReadsBack) {
  std::string bytes = "first\r\n";
  TextComposer composer(bytes);
  composer.WriteLine("second");
  composer.WriteLine("");
  composer.Close();
  EXPECT_EQ(bytes, "first\r\nsecond\r\n\r\n");
  TextReader reader(bytes, "x.txt");
  std::vector<std::string> lines;
  while (!reader.AtEndOfStream()) lines.push_back(reader.ReadLine("a line"));
  EXPECT_EQ(lines, (std::vector<std::string>{"first", "second", ""}));
}

TEST(TextComposer, CannotBeRead) {
  std::string bytes = "first\r\n";
  TextComposer composer(bytes);
  EXPECT_TRUE(composer.AtEndOfStream());
  EXPECT_THROW(composer.ReadLine("a name"), FatalError);
}

}  // namespace
}  // namespace quendle
