// What `quendle verify` says of whole trees.
#include <gtest/gtest.h>

#include "toolbelt/VerifyClinic.h"

namespace quendle {
namespace {

TEST(Verify, ASmallClinicIsClean) { EXPECT_EQ(VerifyClinic().Found(), ""); }

TEST(Verify, TheSmallestContentIsClean) {
  MemoryFileSystem files;
  std::vector<std::string> paths;
  for (const ContentPiece& piece : SmallestContent()) {
    files.Put(piece.path, piece.bytes);
    paths.push_back(piece.path);
  }
  VerifiedTree tree{files, "", ContentListing(paths)};
  std::ostringstream unseen;
  Progress progress(unseen, false);
  const Findings findings = VerifyContent(tree, nullptr, progress);
  std::ostringstream out;
  PrintText(findings, tree.listing, out);
  EXPECT_EQ(out.str(), "0 errors, 0 warnings, 0 notes\n");
}

}  // namespace
}  // namespace quendle
