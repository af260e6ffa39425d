#include "base/PathTokens.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

constexpr const char* kHall = "\\Info\\Rooms\\Hall\\";

TEST(PathTokens, CurrentDirectoryIsTheGivenDirectory) {
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "<CurrentDirectory>\\x.txt"),
            "\\Info\\Rooms\\Hall\\x.txt");
}

TEST(PathTokens, PreviousDirectoryIsTheFolderAbove) {
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "<PreviousDirectory>\\x.txt"), "\\Info\\Rooms\\x.txt");
  EXPECT_EQ(ResolveDirectoryTokens("\\Info\\", "<PreviousDirectory>\\x.txt"), "\\x.txt");
}

TEST(PathTokens, GlobalDirectoryIsTheSharedFolderWhereverOneStands) {
  const char* wanted = "\\Info\\GlobalReferences\\tool.txt";
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "<GlobalDirectory>\\tool.txt"), wanted);
  EXPECT_EQ(ResolveDirectoryTokens("", "<GlobalDirectory>\\tool.txt"), wanted);
}

TEST(PathTokens, TokensAreFoundInAnyCase) {
  EXPECT_EQ(ResolveDirectoryTokens("\\Info\\", "<currentdirectory>\\x.txt"), "\\Info\\x.txt");
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "<PREVIOUSDIRECTORY>\\x.txt"), "\\Info\\Rooms\\x.txt");
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "<globaldirectory>\\x.txt"),
            "\\Info\\GlobalReferences\\x.txt");
}

TEST(PathTokens, ATokenIsFoundAnywhereAndTheDirectoryGoesInFront) {
  EXPECT_EQ(ResolveDirectoryTokens("\\Info\\", "a\\<CurrentDirectory>\\x.txt"), "\\Info\\a\\x.txt");
}

TEST(PathTokens, OnlyTheFirstKindThatOccursIsResolved) {
  EXPECT_EQ(ResolveDirectoryTokens("\\I\\", "<PreviousDirectory>\\<CurrentDirectory>\\x.txt"),
            "\\I\\<PreviousDirectory>\\x.txt");
  EXPECT_EQ(ResolveDirectoryTokens("\\I\\J\\", "<GlobalDirectory>\\<PreviousDirectory>\\x.txt"),
            "\\I\\<GlobalDirectory>\\x.txt");
}

TEST(PathTokens, ATokenThatOccursTwiceIsResolvedOnce) {
  EXPECT_EQ(ResolveDirectoryTokens("\\I\\", "<CurrentDirectory>\\<CurrentDirectory>\\x.txt"),
            "\\I\\<CurrentDirectory>\\x.txt");
}

TEST(PathTokens, OtherTextStaysAsItIs) {
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "\\Info\\X.txt"), "\\Info\\X.txt");
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "<CurrentDirectory>x.txt"), "<CurrentDirectory>x.txt");
  EXPECT_EQ(ResolveDirectoryTokens(kHall, "<RootObjectName>\\<ObjectName>.txt"),
            "<RootObjectName>\\<ObjectName>.txt");
  EXPECT_EQ(ResolveDirectoryTokens(kHall, ""), "");
}

TEST(RelativeDirectoryOf, CutsTheBaseDirectoryAndTheName) {
  EXPECT_EQ(RelativeDirectoryOf("C:\\Clinic\\Info\\Hall\\door.txt", "C:\\Clinic"),
            "\\Info\\Hall\\");
  EXPECT_EQ(RelativeDirectoryOf("c:\\CLINIC\\Info\\door.txt", "C:\\Clinic"), "\\Info\\");
  EXPECT_EQ(RelativeDirectoryOf("\\Info\\door.txt", "C:\\Clinic"), "\\Info\\");
  EXPECT_EQ(RelativeDirectoryOf("/home/child/clinic\\door.txt", "/home/child/clinic"), "\\");
}

TEST(RelativeDirectoryOf, APathWithoutABackslashGivesAnEmptyText) {
  EXPECT_EQ(RelativeDirectoryOf("door.txt", "C:\\Clinic"), "");
  EXPECT_EQ(RelativeDirectoryOf("", "C:\\Clinic"), "");
}

TEST(IsNothing, IsTheWholeWordInAnyCase) {
  EXPECT_TRUE(IsNothing("nothing"));
  EXPECT_TRUE(IsNothing("NoThing"));
  EXPECT_FALSE(IsNothing("nothing "));
  EXPECT_FALSE(IsNothing("nothing.txt"));
  EXPECT_FALSE(IsNothing(""));
}

}  // namespace
}  // namespace quendle
