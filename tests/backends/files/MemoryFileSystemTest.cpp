#include "backends/files/MemoryFileSystem.h"

#include <gtest/gtest.h>

#include "platform/Faults.h"

namespace quendle {
namespace {

TEST(MemoryFileSystem, PutAndGetTakePathsWithAndWithoutTheBase) {
  MemoryFileSystem files("C:\\Clinic");
  EXPECT_TRUE(files.Put("\\Info\\a.txt", "a"));
  EXPECT_TRUE(files.Put("C:\\Clinic\\Info\\b.txt", "b"));
  EXPECT_EQ(files.Get("C:\\clinic\\info\\A.txt"), "a");
  EXPECT_EQ(files.Get("\\info\\b.txt"), "b");
  EXPECT_EQ(files.Read("C:\\Clinic\\Info\\a.txt"), "a");
  EXPECT_EQ(files.Read("\\Info\\a.txt"), std::nullopt) << "readers give full paths";
  EXPECT_EQ(files.Paths(),
            (std::vector<std::string>{"C:\\Clinic\\Info\\a.txt", "C:\\Clinic\\Info\\b.txt"}));
}

TEST(MemoryFileSystem, PutRefusesWhatNoDiskTakes) {
  MemoryFileSystem files;
  EXPECT_TRUE(files.Put("\\Info\\a.txt", "a"));
  EXPECT_FALSE(files.Put("\\Info", "a"));
  EXPECT_FALSE(files.Put("\\Info\\a.txt\\b.txt", "a"));
  EXPECT_FALSE(files.Put("\\..\\a.txt", "a"));
  EXPECT_EQ(files.Get("\\..\\a.txt"), std::nullopt);
}

TEST(MemoryFileSystem, PutAndGetPassAllFaults) {
  Faults faults;
  for (const char* operation : {"open", "write", "read"}) faults.Plan(operation, 0, 0, false);
  MemoryFileSystem files("", &faults);
  EXPECT_TRUE(files.Put("\\a.txt", "a"));
  EXPECT_EQ(files.Get("\\a.txt"), "a");
  EXPECT_EQ(files.Read("\\a.txt"), std::nullopt);
}

TEST(MemoryFileSystem, ACopyLivesItsOwnLife) {
  MemoryFileSystem files;
  files.Put("\\a.txt", "a");
  auto lines = files.CreateLineFile("\\log.txt");
  lines->WriteLine("one");
  MemoryFileSystem copy = files;
  lines->WriteLine("two");
  files.Write("\\a.txt", "changed");
  files.Put("\\b.txt", "b");
  EXPECT_EQ(copy.Get("\\a.txt"), "a");
  EXPECT_FALSE(copy.Exists("\\b.txt"));
  EXPECT_EQ(copy.Get("\\log.txt"), "one\r\n");
  EXPECT_EQ(files.Get("\\log.txt"), "one\r\ntwo\r\n");
  copy.Write("\\a.txt", "of the copy");
  EXPECT_EQ(files.Get("\\a.txt"), "changed");
}

TEST(MemoryFileSystem, OperationsAreListedOnRequest) {
  MemoryFileSystem files;
  files.Write("\\unseen.txt", "");
  files.Record(true);
  files.Exists("\\a.txt");
  files.Read("\\a.txt");
  files.Write("\\A.txt", "a");
  files.CreateLineFile("\\log.txt")->WriteLine("x");
  files.Remove("\\a.txt");
  using Operation = MemoryFileSystem::Operation;
  EXPECT_EQ(files.Operations(), (std::vector<Operation>{{"exists", "\\a.txt"},
                                                        {"read", "\\a.txt"},
                                                        {"write", "\\A.txt"},
                                                        {"create", "\\log.txt"},
                                                        {"line", "\\log.txt"},
                                                        {"remove", "\\a.txt"}}));
  files.ForgetOperations();
  EXPECT_TRUE(files.Operations().empty());
}

}  // namespace
}  // namespace quendle
