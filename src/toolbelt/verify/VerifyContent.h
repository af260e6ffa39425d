#pragma once

#include <string>

#include "toolbelt/verify/ContentListing.h"
#include "toolbelt/verify/Finding.h"

namespace quendle {

class FileSystem;
class Progress;
class SideList;

// A content tree to be checked: its files, the directory in front of all paths, and their names.
struct VerifiedTree {
  FileSystem& files;
  std::string base;
  ContentListing listing;
};

// Checks a whole tree with nothing played: findings by object, those that `side_list` (which may be
// null) silences marked. Nothing in the content makes it stop before the end.
Findings VerifyContent(VerifiedTree& tree, const SideList* side_list, Progress& progress);

}  // namespace quendle
