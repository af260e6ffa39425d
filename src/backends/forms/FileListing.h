// What a file chooser lists.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Boxes.h"

namespace quendle {

struct ListedFile {
  std::filesystem::path path;
  bool folder = false;
};

// True if the name fits one of the patterns parted by semicolons; * stands for any text, case is
// ignored.
bool FitsPattern(const std::string& name, const std::string& patterns);

// The folders and the files that fit `patterns`, folders first, by name; hidden ones are left out.
// The folder above comes first where there is one. An unreadable folder lists that alone.
std::vector<ListedFile> ListFolder(const std::filesystem::path& folder,
                                   const std::string& patterns);

// Where the player keeps pictures: as the desktop's user-dirs.dirs says, else ~/Pictures, else the
// home folder, else "/".
std::filesystem::path PicturesFolder();

}  // namespace quendle
