#include "toolbelt/making/SmallestContent.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Text.h"
#include "toolbelt/TreeBench.h"
#include "toolbelt/making/NewContentReadme.h"

namespace quendle {
namespace {

using testing::HasSubstr;

TEST(NewContent, ItsReadmeTellsEveryKindOfFile) {
  const std::string readme(NewContentReadme());
  for (const ContentPiece& piece : SmallestContent()) {
    const std::vector<std::string> names = SplitTokens(piece.path, '\\');
    const std::string& file = names.back();
    const std::string& folder = names[names.size() - 2];
    if (folder == "Info") {
      EXPECT_THAT(readme, HasSubstr("`" + file + "`"));
      continue;
    }
    EXPECT_THAT(readme, HasSubstr(folder)) << piece.path;
    if (folder == "scripts") continue;
    const bool named_after_folder = file.starts_with(folder);
    EXPECT_THAT(readme, HasSubstr(named_after_folder ? "`NAME" + file.substr(folder.size()) + "`"
                                                     : folder + "/" + file))
        << piece.path;
  }
}

TEST(NewContent, TheReadmeStandsInTheTree) {
  const TreeBench tree;
  EXPECT_EQ(TreeBench::Read(tree.Path() + "/README.md"), NewContentReadme());
}

}  // namespace
}  // namespace quendle
