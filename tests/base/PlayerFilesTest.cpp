#include "base/PlayerFiles.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "base/ContentFiles.h"
#include "base/Settings.h"

namespace quendle {
namespace {

TEST(PlayerFiles, AResetDeletesTheSavedGameAndTheAutosaveAndNothingElse) {
  MemoryFileSystem files("/clinic");
  Settings settings;
  settings.BaseDirectory = "/clinic";
  const ContentFiles content(files, settings);
  for (const char* name : kPlayerFiles) files.Put(PlayerPath(content, name), "text");
  for (const char* name : kKeptSaves) files.Put(PlayerPath(content, name), "text");
  DeleteSavedGame(content);
  for (const char* name : kPlayerFiles) {
    const bool is_game = name == kSavedGameFile || name == kAutosaveFile;
    EXPECT_EQ(files.Exists(PlayerPath(content, name)), !is_game) << name;
  }
  for (const char* name : kKeptSaves) EXPECT_FALSE(files.Exists(PlayerPath(content, name)));
}

}  // namespace
}  // namespace quendle
