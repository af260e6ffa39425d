#include "backends/headless/HeadlessFormHost.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quendle {
namespace {

class Listener : public FormEvents {
 public:
  void PointerOverForm() override { heard.push_back("over form"); }
  void PointerOver(Control& control) override { heard.push_back("over " + control.name); }
  void Press(Control& control, Point at) override {
    if (throws) throw std::runtime_error("press");
    heard.push_back("press " + control.name + " " + std::to_string(at.x) + "," +
                    std::to_string(at.y));
  }
  void Set(Control& control, int value) override {
    heard.push_back("set " + control.name + " " + std::to_string(value));
  }
  void Key(FormKey key) override {
    heard.push_back("key " + std::to_string(static_cast<int>(key)));
  }
  void QueryClose() override { heard.push_back("close"); }

  bool throws = false;
  std::vector<std::string> heard;
};

Control Make(ControlKind kind, const std::string& name, int index = 0) {
  Control control;
  control.kind = kind;
  control.name = name;
  control.index = index;
  control.maximum = 50;
  return control;
}

struct HeadlessFormHostTest : testing::Test {
  HeadlessFormHostTest() {
    first.name = "first";
    second.name = "second";
    first.controls = {
        Make(ControlKind::kPicture, "Picture1", 1), Make(ControlKind::kPicture, "Picture1", 2),
        Make(ControlKind::kLabel, "Label1"),        Make(ControlKind::kRadio, "optOn"),
        Make(ControlKind::kCheck, "chk"),           Make(ControlKind::kScroll, "HScroll1"),
        Make(ControlKind::kImage, "Image1")};
    host.Add(first, listener);
    host.Add(second, other);
  }
  void Show(Form& form, bool shown = true) {
    form.visible = form.enabled = shown;
    host.Update(form);
  }

  Listener listener, other;
  Form first, second;
  HeadlessFormHost host;
};

TEST_F(HeadlessFormHostTest, TheFormInViewIsTheOneShownLast) {
  EXPECT_EQ(host.InView(), nullptr);
  Show(second);
  Show(first);
  EXPECT_EQ(host.InView(), &first);
  Show(first, false);
  EXPECT_EQ(host.InView(), &second);
  Show(first);
  EXPECT_EQ(host.InView(), &first);
  host.Update(second);
  EXPECT_EQ(host.InView(), &first) << "a change of a form that is shown already is no showing";
}

TEST_F(HeadlessFormHostTest, AFormMustBeVisibleAndEnabled) {
  first.visible = true;
  host.Update(first);
  EXPECT_EQ(host.InView(), nullptr);
  first.visible = false;
  first.enabled = true;
  host.Update(first);
  EXPECT_EQ(host.InView(), nullptr);
}

TEST_F(HeadlessFormHostTest, AFormShownBeforeItIsKnownCounts) {
  Form third;
  third.visible = third.enabled = true;
  host.Add(third, other);
  EXPECT_EQ(host.InView(), &third);
  host.Remove(third);
  EXPECT_EQ(host.InView(), nullptr);
  EXPECT_EQ(host.Forms(), (std::vector<Form*>{&first, &second}));
}

TEST_F(HeadlessFormHostTest, EventsReachTheFormInView) {
  Show(first);
  EXPECT_TRUE(host.OverForm());
  EXPECT_TRUE(host.Over("picture1", 1));
  EXPECT_TRUE(host.Press("LABEL1"));
  EXPECT_TRUE(host.Press("Image1", 0, {7, 9}));
  EXPECT_TRUE(host.Key(FormKey::kTab));
  EXPECT_TRUE(host.Close());
  EXPECT_EQ(listener.heard,
            (std::vector<std::string>{"over form", "over Picture1", "press Label1 0,0",
                                      "press Image1 7,9", "key 0", "close"}));
  EXPECT_TRUE(other.heard.empty());
}

TEST_F(HeadlessFormHostTest, WithoutAFormInViewNothingIsReached) {
  EXPECT_FALSE(host.OverForm());
  EXPECT_FALSE(host.Over("Label1"));
  EXPECT_FALSE(host.Press("Label1"));
  EXPECT_FALSE(host.Set("optOn", 0, 1));
  EXPECT_FALSE(host.Key(FormKey::kTab));
  EXPECT_FALSE(host.Close());
  EXPECT_TRUE(listener.heard.empty());
}

TEST_F(HeadlessFormHostTest, UnknownHiddenAndDisabledControlsAreOutOfReach) {
  Show(first);
  first.Find("Label1")->visible = false;
  first.Find("chk")->enabled = false;
  first.Find("Picture1", 2)->visible = false;
  EXPECT_FALSE(host.Press("Label9"));
  EXPECT_FALSE(host.Press("Picture1", 3));
  EXPECT_FALSE(host.Press("Label1"));
  EXPECT_FALSE(host.Over("Label1"));
  EXPECT_FALSE(host.Set("chk", 0, 1));
  EXPECT_TRUE(listener.heard.empty());
  EXPECT_TRUE(host.Press("Picture1", 2)) << "the hidden twin of a picture stands in its place";
}

TEST_F(HeadlessFormHostTest, OnlyValuesThatAControlCanTakeAreSet) {
  Show(first);
  EXPECT_TRUE(host.Set("optOn", 0, 1));
  EXPECT_FALSE(host.Set("optOn", 0, 0)) << "a radio goes off when another is set";
  EXPECT_TRUE(host.Set("chk", 0, 0));
  EXPECT_FALSE(host.Set("chk", 0, 2));
  EXPECT_TRUE(host.Set("HScroll1", 0, 50));
  EXPECT_FALSE(host.Set("HScroll1", 0, 51));
  EXPECT_FALSE(host.Set("HScroll1", 0, -1));
  EXPECT_FALSE(host.Set("Label1", 0, 1));
  EXPECT_EQ(listener.heard,
            (std::vector<std::string>{"set optOn 1", "set chk 0", "set HScroll1 50"}));
}

TEST_F(HeadlessFormHostTest, AMinimisedFormComesBackWhenItIsReachedFor) {
  Show(first);
  first.window_state = WindowState::kMinimised;
  host.Close();
  EXPECT_EQ(first.window_state, WindowState::kMinimised) << "an icon can be closed";
  host.Over("Label1");
  EXPECT_EQ(first.window_state, WindowState::kNormal);
}

TEST_F(HeadlessFormHostTest, WhatTheFormThrowsPassesThrough) {
  Show(first);
  listener.throws = true;
  EXPECT_THROW(host.Press("Label1"), std::runtime_error);
  listener.throws = false;
  EXPECT_TRUE(host.Press("Label1"));
}

}  // namespace
}  // namespace quendle
