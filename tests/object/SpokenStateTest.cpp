// States that last as long as what the object says: real durations in virtual time.
#include <gtest/gtest.h>

#include "support/ObjectBench.h"
#include "support/WaveFiles.h"

namespace quendle {
namespace {

struct SpeechBench {
  SpeechBench() {
    factory.Register("patient",
                     [](ObjectWorld& world) { return std::make_shared<ForwardingObject>(world); });
    InitializeDirectDraw(media, platform.backend.window.Handle());
    tree.Object("cat", "patient")
        .State("default", "nothing", "breathe")
        .State("talk", "hello", "speak")
        .State("blink", "hello", "one")
        .State("short", "hello", "once")
        .State("torn", "rubbish", "speak")
        .State("gone", "missing", "speak")
        .Frame("a")
        .Frame("b")
        .Animation("breathe", 100, "loop", {"a b"})
        .Animation("speak", 100, "loop", {"a b"})
        .Animation("one", 100, "loop", {"b"})
        .Animation("once", 100, "nonloop", {"a b"})
        .Sound("hello")
        .Sound("rubbish")
        .MissingSound("missing");
    tree.Write();
    platform.files.Put("\\Info\\cat\\hello.wma", ToneFile(1.25));
    cat = std::static_pointer_cast<ForwardingObject>(
        CreateGameObject(objects, platform.settings.BaseDirectory + tree.Object("cat").Path(),
                         platform.backend.gdi.WindowContext(), top));
    cat->TurnOn();
  }
  bool Playing() { return cat->QuerySoundState("hello")->IsPlaying(); }
  std::size_t Timers() const { return platform.backend.timers.Running().size(); }

  TestPlatform platform;
  Watch watch;
  MediaWorld media{platform.settings, platform.backend.ports, platform.content};
  ScriptWorld scripts{watch};
  ObjectFactory factory;
  ObjectWorld objects{media, scripts, watch, factory};
  TestTree tree{platform.files};
  std::shared_ptr<NotedMessages> top = std::make_shared<NotedMessages>();
  TestedObject cat;
};

// When the object is back in "default", in milliseconds; 0 for never.
int BackAfter(SpeechBench& bench) {
  for (int time = 10; time <= 3000; time += 10) {
    bench.platform.Tick(10);
    if (bench.cat->CurrentState() == "default") return time;
  }
  return 0;
}

TEST(SpokenState, EndsAtTheFirstStepAfterTheSoundTheSameEveryTime) {
  for (int run = 0; run < 2; ++run) {
    SpeechBench bench;
    bench.platform.Tick(30);
    bench.cat->Inner().RunState("talk");
    EXPECT_TRUE(bench.Playing());
    EXPECT_EQ(BackAfter(bench), 1300) << "steps of 100 ms, 1.25 seconds of sound";
  }
}

TEST(SpokenState, OneFrameNeverTicksAndNeverComesBack) {
  SpeechBench bench;
  bench.cat->Inner().RunState("blink");
  EXPECT_EQ(BackAfter(bench), 0);
  EXPECT_FALSE(bench.Playing());
}

TEST(SpokenState, AnimationThatEndsCutsTheSpeechOff) {
  SpeechBench bench;
  bench.cat->Inner().RunState("short");
  EXPECT_EQ(BackAfter(bench), 100);
  EXPECT_FALSE(bench.Playing());
}

TEST(SpokenState, SoundThatIsMissingOrDamagedEndsTheStateAtOnce) {
  for (const char* state : {"torn", "gone"}) {
    SpeechBench bench;
    bench.cat->Inner().RunState(state);
    EXPECT_EQ(bench.cat->CurrentState(), "default") << state;
  }
}

TEST(SpokenState, AfterItsFirstSoundAnObjectStopsMovingOnceItIsSilent) {
  SpeechBench bench;
  EXPECT_EQ(bench.Timers(), 1U);
  bench.platform.Tick(1000);
  EXPECT_EQ(bench.Timers(), 1U) << "an object that was never heard moves on and on";
  bench.cat->Inner().RunState("talk");
  BackAfter(bench);
  EXPECT_EQ(bench.Timers(), 0U);
  EXPECT_EQ(ObjectBench::FramesOf(*bench.cat), Lines{"a"});
}

}  // namespace
}  // namespace quendle
