#include "backends/files/ContentPath.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

using namespace std::string_literals;

const ContentPath kDoor = {"Info", "door.txt"};

TEST(ContentPath, IsTheComponentsBehindTheBaseDirectory) {
  EXPECT_EQ(SplitContentPath("/games/clinic\\Info\\door.txt", "/games/clinic"), kDoor);
}

TEST(ContentPath, TakesSlashesLikeBackslashesAndDoubledOnesAsOne) {
  EXPECT_EQ(SplitContentPath("/g\\Info/door.txt", "/g"), kDoor);
  EXPECT_EQ(SplitContentPath("/g\\\\Info\\\\\\door.txt", "/g"), kDoor);
  EXPECT_EQ(SplitContentPath("/g\\.\\Info\\.\\door.txt", "/g"), kDoor);
}

TEST(ContentPath, IgnoresCaseAndAClosingSeparatorInTheBaseDirectory) {
  EXPECT_EQ(SplitContentPath("/GAMES\\Info\\door.txt", "/games/"), kDoor);
  EXPECT_EQ(SplitContentPath("C:\\Clinic\\Info\\door.txt", "c:\\clinic"), kDoor);
}

TEST(ContentPath, AnEmptyBaseTakesThePathFromItsFirstSeparator) {
  EXPECT_EQ(SplitContentPath("\\Info\\door.txt", ""), kDoor);
}

TEST(ContentPath, RefusesAPathThatIsNotBelowTheBase) {
  EXPECT_FALSE(SplitContentPath("/etc/passwd", "/games"));
  EXPECT_FALSE(SplitContentPath("/gamesInfo\\door.txt", "/games"));
  EXPECT_FALSE(SplitContentPath("Info\\door.txt", "/games"));
  EXPECT_FALSE(SplitContentPath("Info\\door.txt", ""));
  EXPECT_FALSE(SplitContentPath("/games", "/games"));
  EXPECT_FALSE(SplitContentPath("", ""));
}

TEST(ContentPath, RefusesTheFolderAboveWhereverItStands) {
  EXPECT_FALSE(SplitContentPath("/g\\..\\x.txt", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\Info\\..\\x.txt", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\Info/../x.txt", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\Info\\..", "/g"));
  EXPECT_TRUE(SplitContentPath("/g\\Info\\..x.txt", "/g"));
}

TEST(ContentPath, RefusesDriveLettersAndNulBytes) {
  EXPECT_FALSE(SplitContentPath("/g\\C:\\x.txt", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\Info\\C:x.txt", "/g"));
  EXPECT_FALSE(SplitContentPath("C:\\x.txt", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\door.txt\0.bmp"s, "/g"));
}

TEST(ContentPath, RefusesAPathThatEndsAsAFolder) {
  EXPECT_FALSE(SplitContentPath("/g\\Info\\", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\Info\\.", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\", "/g"));
  EXPECT_FALSE(SplitContentPath("/g\\.", "/g"));
}

TEST(ContentPath, RefusesAPathOfMoreThan4096Bytes) {
  EXPECT_TRUE(SplitContentPath("\\" + std::string(4095, 'x'), ""));
  EXPECT_FALSE(SplitContentPath("\\" + std::string(4096, 'x'), ""));
}

}  // namespace
}  // namespace quendle
