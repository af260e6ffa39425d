// Which sentence is shown while which sound plays.

#include <stdexcept>

#include "shell/SpokenCaptions.h"

#include <gtest/gtest.h>

#include "shell/GameBench.h"

namespace quendle {
namespace {

struct CaptionBench : testing::Test, GameBench {
  CaptionBench() {
    files.Put("\\Info\\captions.txt",
              "welcome Come in!\nmeow The cat is purring.\nhurry Hurry up!\nding A bell.\n");
    files.Put("\\Info\\globalsoundstates.txt", "ding\n\\Info\\sounds\\ding.wma\nnoloop\n-\n");
    files.Put("\\Info\\sounds\\ding.wma", "sound");
    PutObject(files, {.type = "doctor",
                      .name = "doctor",
                      .states = {{.name = "default"},
                                 {.name = "helptoolitem"},
                                 {.name = "hurry", .sound = "hurry"},
                                 {.name = "hum", .sound = "hum"}},
                      .sounds = {"hurry", "hum"}});
    PutObject(files, {.type = "button",
                      .name = "start",
                      .width = 50,
                      .height = 50,
                      .states = {{.name = "default", .sound = "welcome"},
                                 {.name = "other", .sound = "meow"},
                                 {.name = "lost", .sound = "hurry"}},
                      .sounds = {"welcome", "meow", "hurry"}});
  }

  CaptionSource& Source() { return application.Captions(); }
  std::string Shown() { return Source().SpokenNow().text; }
  GraphRecord& Graph(const std::string& file) {
    for (auto record = graphs.made.rbegin(); record != graphs.made.rend(); ++record) {
      if (FoldCase((*record)->path).ends_with(file)) return **record;
    }
    throw std::runtime_error(file + " was never played");
  }
  std::string Log() { return File("\\general.txt"); }
};

using SpokenCaptionsTest = CaptionBench;

TEST_F(SpokenCaptionsTest, NothingIsSaidBeforeTheGameIsOn) {
  EXPECT_FALSE(Source().HasCaptions());
  EXPECT_EQ(Shown(), "");
  application.Start();
  EXPECT_EQ(Shown(), "");
  Press(1);
  EXPECT_TRUE(Source().HasCaptions());
}

TEST_F(SpokenCaptionsTest, ASentenceIsShownAsLongAsItsSoundPlays) {
  Play();
  EXPECT_EQ(Shown(), "Come in!");
  Graph("welcome.wma").over = true;
  EXPECT_EQ(Shown(), "");
}

TEST_F(SpokenCaptionsTest, WhatAnObjectSaysNextTakesThePlaceOfWhatItSaid) {
  Play();
  Send("toobj_start_changestate_other");
  EXPECT_EQ(Shown(), "The cat is purring.");
}

TEST_F(SpokenCaptionsTest, OfTwoThatSoundAtOnceTheOneThatBeganLastIsShown) {
  Play();
  Graph("welcome.wma").position = 2;
  Send("toobj_doctor_changestate_hurry");
  EXPECT_EQ(Shown(), "Hurry up!") << "the doctor speaks also where no screen holds it";
  Graph("hurry.wma").over = true;
  EXPECT_EQ(Shown(), "Come in!") << "it goes on";
}

TEST_F(SpokenCaptionsTest, ASoundWithoutASentenceShowsNone) {
  Play();
  Graph("welcome.wma").over = true;
  Send("toobj_doctor_changestate_hum");
  EXPECT_EQ(Shown(), "");
}

TEST_F(SpokenCaptionsTest, AGlobalSoundIsKnownByItsNameInTheGlobalList) {
  Play();
  Graph("welcome.wma").over = true;
  application.Game()->media.FindGlobalSound("ding")->PlaySound();
  EXPECT_EQ(Shown(), "A bell.");
}

TEST_F(SpokenCaptionsTest, ASoundWhoseFileIsMissingSaysNothing) {
  files.Remove(std::string(kBase) + "\\Info\\sounds\\welcome.wma");
  Play();
  EXPECT_EQ(Shown(), "");
}

TEST_F(SpokenCaptionsTest, CaptionsStandAboveTheToolBar) {
  Play();
  EXPECT_EQ(Source().SpokenNow().bottom, kFrameHeight);
  Send("cs_dogroom");
  ASSERT_EQ(Logic()->ToolsState(), "on");
  EXPECT_EQ(Source().SpokenNow().bottom, 500);
}

TEST_F(SpokenCaptionsTest, WithoutTheFileThereAreNoCaptions) {
  files.Remove(std::string(kBase) + "\\Info\\captions.txt");
  Play();
  EXPECT_FALSE(Source().HasCaptions());
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(Log(), "");
}

TEST_F(SpokenCaptionsTest, BadLinesAreLoggedOnceAndTheGameGoesOn) {
  files.Put("\\Info\\captions.txt", "welcome\nmeow The cat is purring.\n");
  Play();
  EXPECT_EQ(Log(), "") << "the file is read when captions are wanted";
  Shown();
  Send("toobj_start_changestate_other");
  EXPECT_EQ(Shown(), "The cat is purring.");
  EXPECT_EQ(Log(),
            "Info\\captions.txt:1: a blank and a sentence are expected behind the sound "
            "\"welcome\"\r\n");
}

TEST_F(SpokenCaptionsTest, AFileThatCannotBeReadMeansNoCaptions) {
  Play();
  faults.Plan("read", 0, 1, false);
  EXPECT_FALSE(Source().HasCaptions());
  EXPECT_EQ(Log(), "Info\\captions.txt can't be read: there are no captions\r\n");
}

TEST_F(SpokenCaptionsTest, NothingIsSaidAfterTheEnd) {
  Play();
  Close();
  EXPECT_EQ(Shown(), "");
}

}  // namespace
}  // namespace quendle
