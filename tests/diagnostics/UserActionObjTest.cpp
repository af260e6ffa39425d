#include "diagnostics/UserActionObj.h"

#include <gtest/gtest.h>

#include "base/TextStream.h"

namespace quendle {
namespace {

UserActionObj Action(const std::string& word, std::int16_t ticks, std::int16_t x, std::int16_t y) {
  UserActionObj action;
  action.SetActionType(word);
  action.SetActionName(word);
  action.SetTicks(ticks);
  action.SetX(x);
  action.SetY(y);
  return action;
}

std::string Saved(const UserActionObj& action) {
  std::string bytes;
  TextComposer stream(bytes);
  action.Save(stream);
  return bytes;
}

UserActionObj Loaded(const std::string& bytes) {
  TextReader stream(bytes, "session.txt");
  UserActionObj action;
  action.Load(stream);
  return action;
}

std::string Fault(const std::string& bytes) {
  try {
    Loaded(bytes);
  } catch (const FatalError& error) {
    return error.what();
  }
  return "(none)";
}

TEST(UserActionObj, AClickIsARecordOfSevenLines) {
  EXPECT_EQ(Saved(Action("mouseclick", 37, 412, 300)),
            "B\r\nmc\r\nmc\r\n37\r\n412\r\n300\r\nE\r\n");
}

TEST(UserActionObj, AMoveIsAbbreviatedToo) {
  EXPECT_EQ(Saved(Action("mousemove", 0, -5, 0)), "B\r\nmm\r\nmm\r\n0\r\n-5\r\n0\r\nE\r\n");
}

TEST(UserActionObj, OtherWordsAreWrittenAndReadAsTheyStand) {
  EXPECT_EQ(Saved(Action("keypress", 1, 2, 3)),
            "B\r\nkeypress\r\nkeypress\r\n1\r\n2\r\n3\r\nE\r\n");
  const UserActionObj action = Loaded("B\nkeypress\nmousedown\n1\n2\n3\nE\n");
  EXPECT_EQ(action.ActionType(), "keypress");
  EXPECT_EQ(action.ActionName(), "mousedown");
}

TEST(UserActionObj, WhatIsSavedIsLoaded) {
  const UserActionObj action = Loaded(Saved(Action("mouseclick", 32767, -32768, 599)));
  EXPECT_EQ(action.ActionType(), "mouseclick");
  EXPECT_EQ(action.ActionName(), "mouseclick");
  EXPECT_EQ(action.Ticks(), 32767);
  EXPECT_EQ(action.X(), -32768);
  EXPECT_EQ(action.Y(), 599);
}

TEST(UserActionObj, TypeAndNameAreAbbreviatedEachByItself) {
  const UserActionObj action = Loaded("B\nmc\nmm\n1\n2\n3\nE\n");
  EXPECT_EQ(action.ActionType(), "mouseclick");
  EXPECT_EQ(action.ActionName(), "mousemove");
}

TEST(UserActionObj, WholeWordsAreReadAsWell) {
  EXPECT_EQ(Loaded("B\nmouseclick\nmousemove\n1\n2\n3\nE\n").ActionName(), "mousemove");
}

TEST(UserActionObj, TheFirstAndTheLastLineMayHoldAnything) {
  const UserActionObj action = Loaded("whatever\nmc\nmc\n4\n5\n6\n\n");
  EXPECT_EQ(action.Ticks(), 4);
  EXPECT_EQ(action.Y(), 6);
}

TEST(UserActionObj, ALineThatIsNoNumberIsFatalAndNamesItsPlace) {
  EXPECT_NE(Fault("B\nmc\nmc\nsoon\n5\n6\nE\n").find("session.txt:4"), std::string::npos);
  EXPECT_NE(Fault("B\nmc\nmc\n4\nleft\n6\nE\n").find("session.txt:5"), std::string::npos);
  EXPECT_NE(Fault("B\nmc\nmc\n4\n5\n\nE\n").find("session.txt:6"), std::string::npos);
}

TEST(UserActionObj, ANumberPastSixteenBitsIsFatal) {
  EXPECT_NE(Fault("B\nmc\nmc\n32768\n5\n6\nE\n"), "(none)");
}

TEST(UserActionObj, TheEndOfTheFileInTheMiddleIsFatal) {
  const std::string whole = "B\nmc\nmc\n4\n5\n6\nE\n";
  EXPECT_EQ(Fault(whole), "(none)");
  for (std::size_t lines = 0; lines < 7; ++lines) {
    std::size_t end = 0;
    for (std::size_t i = 0; i < lines; ++i) end = whole.find('\n', end) + 1;
    EXPECT_NE(Fault(whole.substr(0, end)), "(none)") << lines << " lines";
  }
}

}  // namespace
}  // namespace quendle
