#include "backends/desktop/GameFolders.h"

#include <filesystem>
#include <system_error>

#include "backends/desktop/GameOptions.h"
#include "backends/files/DiskFileSystem.h"
#include "platform/Faults.h"

namespace quendle {
namespace {

namespace fs = std::filesystem;

constexpr const char* kMarker = "\\Info\\screens.txt";

bool HoldsContent(const std::string& folder) {
  Faults none;
  DiskFileSystem files({folder, "", ""}, none);
  return files.Read(folder + kMarker).has_value();
}

std::string Absolute(const std::string& folder) {
  std::error_code error;
  fs::path path = fs::weakly_canonical(fs::absolute(folder, error), error);
  std::string text = error ? folder : path.string();
  while (text.size() > 1 && text.back() == '/') text.pop_back();
  return text;
}

}  // namespace

GameFolders GameFolders::Find(const GameOptions& options, const std::string& program,
                              const std::string& executable_folder) {
  GameFolders folders;
  if (!options.content.empty()) {
    folders.searched = {Absolute(options.content)};
  } else {
    if (!executable_folder.empty()) {
      folders.searched.push_back(Absolute(executable_folder));
      folders.searched.push_back(Absolute(executable_folder + "/content/" + program));
      folders.searched.push_back(Absolute(executable_folder + "/content"));
    }
    folders.searched.push_back("/usr/share/" + program);
    folders.searched.push_back("/usr/share/games/" + program);
  }
  for (const std::string& folder : folders.searched) {
    if (folders.content.empty() && HoldsContent(folder)) folders.content = folder;
  }
  if (!options.user.empty()) folders.user = Absolute(options.user);
  folders.fallback = PlayerFolder(program);
  return folders;
}

std::string ExecutableFolder() {
  std::error_code error;
  fs::path executable = fs::read_symlink("/proc/self/exe", error);
  return error ? "" : executable.parent_path().string();
}

std::string ContentMissingText(const GameFolders& folders) {
  std::string text =
      "The game's pictures and stories were not found. These folders were searched:\n";
  for (const std::string& folder : folders.searched) text += "\n" + folder;
  return text + "\n\nStart the game with --content and the folder's name if it lies elsewhere.";
}

}  // namespace quendle
