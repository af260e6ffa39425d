#include "base/KeyedList.h"

#include <gtest/gtest.h>

#include <memory>

namespace quendle {
namespace {

template <class Work>
std::string FaultOf(Work work) {
  try {
    work();
  } catch (const FatalError& error) {
    return error.what();
  }
  return "no fault";
}

KeyedList<int> ThreeStates() {
  KeyedList<int> list("state");
  list.Add(10, "default");
  list.Add(20, "Highlight");
  list.Add(30, "done");
  return list;
}

TEST(KeyedList, KeepsTheOrderAndCountsFromOne) {
  KeyedList<int> list = ThreeStates();
  EXPECT_EQ(list.Count(), 3U);
  EXPECT_EQ(list.Item(1), 10);
  EXPECT_EQ(list.Item(3), 30);
  EXPECT_EQ(list.KeyOf(2), "Highlight");
  std::vector<int> walked;
  for (const auto& entry : list) walked.push_back(entry.value);
  EXPECT_EQ(walked, (std::vector<int>{10, 20, 30}));
}

TEST(KeyedList, FindsKeysInAnyCase) {
  KeyedList<int> list = ThreeStates();
  ASSERT_NE(list.Find("HIGHLIGHT"), nullptr);
  EXPECT_EQ(*list.Find("HIGHLIGHT"), 20);
  EXPECT_EQ(list.Item("DONE"), 30);
  list.Item("done") = 31;
  EXPECT_EQ(list.Item(3), 31);
}

TEST(KeyedList, AMissingKeyIsFoundNowhere) {
  KeyedList<int> list = ThreeStates();
  EXPECT_EQ(list.Find("other"), nullptr);
  EXPECT_EQ(list.Find(""), nullptr);
  EXPECT_EQ(list.Find("defaul"), nullptr);
}

TEST(KeyedList, ASecondEntryUnderAKeyIsFatalInAnyCase) {
  KeyedList<int> list = ThreeStates();
  EXPECT_EQ(FaultOf([&] { list.Add(40, "DEFAULT"); }),
            "there are two state entries named \"DEFAULT\"");
  EXPECT_EQ(FaultOf([&] {
              list.Add(40, "done", {"Info\\x.txt", 9});
            }),
            "Info\\x.txt:9: there are two state entries named \"done\"");
  EXPECT_EQ(list.Count(), 3U);
}

TEST(KeyedList, ARepeatableKeyIsReadFromItsLastEntry) {
  KeyedList<int> list = ThreeStates();
  list.AddRepeatable(40, "Default");
  EXPECT_EQ(list.Count(), 4U);
  EXPECT_EQ(list.Item("default"), 40);
  EXPECT_EQ(list.Item(1), 10);
}

TEST(KeyedList, ABlankKeyIsOneLikeAnyOther) {
  KeyedList<int> list = ThreeStates();
  list.Add(40, "");
  ASSERT_NE(list.Find(""), nullptr);
  EXPECT_EQ(*list.Find(""), 40);
  EXPECT_EQ(FaultOf([&] { list.Add(50, ""); }), "there are two state entries named \"\"");
  list.Remove("");
  EXPECT_EQ(list.Find(""), nullptr);
  EXPECT_EQ(list.Count(), 3U);
}

TEST(KeyedList, AnIndexOutsideTheListIsFatal) {
  KeyedList<int> list = ThreeStates();
  const char* wanted = "there is no state number 4 in a list of 3";
  EXPECT_EQ(FaultOf([&] { list.Item(std::size_t{4}); }), wanted);
  EXPECT_EQ(FaultOf([&] { list.KeyOf(4); }), wanted);
  EXPECT_EQ(FaultOf([&] { list.RemoveAt(4); }), wanted);
  EXPECT_EQ(FaultOf([&] { list.Item(std::size_t{0}); }),
            "there is no state number 0 in a list of 3");
  EXPECT_EQ(FaultOf([] { KeyedList<int>().Item(std::size_t{1}); }),
            "there is no entry number 1 in a list of 0");
}

TEST(KeyedList, AMissingKeyThatMustBeThereIsFatalAndNamesTheNearest) {
  KeyedList<int> list = ThreeStates();
  EXPECT_EQ(FaultOf([&] { list.Item("higlight"); }),
            "there is no state named \"higlight\"; did you mean \"Highlight\"?");
  EXPECT_EQ(FaultOf([&] { list.Item("quite another"); }),
            "there is no state named \"quite another\"");
}

TEST(KeyedList, RemovesTheFirstEntryOfAKey) {
  KeyedList<int> list = ThreeStates();
  list.AddRepeatable(40, "default");
  list.Remove("DEFAULT");
  EXPECT_EQ(list.Count(), 3U);
  EXPECT_EQ(list.Item(1), 20);
  EXPECT_EQ(list.Item("default"), 40);
}

TEST(KeyedList, RemovingAKeyThatIsNotThereDoesNothing) {
  KeyedList<int> list = ThreeStates();
  list.Remove("other");
  EXPECT_EQ(list.Count(), 3U);
}

TEST(KeyedList, RemovesByIndexAndClears) {
  KeyedList<int> list = ThreeStates();
  list.RemoveAt(2);
  EXPECT_EQ(list.Keys(), (std::vector<std::string>{"default", "done"}));
  EXPECT_FALSE(list.Empty());
  list.Clear();
  EXPECT_TRUE(list.Empty());
  EXPECT_EQ(list.Count(), 0U);
}

TEST(KeyedList, HoldsValuesThatCannotBeCopied) {
  KeyedList<std::unique_ptr<int>> list;
  list.Add(std::make_unique<int>(5), "five");
  EXPECT_EQ(*list.Item("FIVE"), 5);
}

}  // namespace
}  // namespace quendle
