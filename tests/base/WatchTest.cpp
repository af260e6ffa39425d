#include "base/Watch.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

class RecordingTracer : public Tracer {
 public:
  void Trace(const TraceEvent& event) override {
    kind = event.kind;
    told = std::string(event.to) + "|" + std::string(event.from) + "|" + std::string(event.text);
    verifying = event.verifying;
    depth = event.depth;
  }
  TraceKind kind = TraceKind::kLog;
  std::string told;
  bool verifying = false;
  int depth = -1;
};

TEST(Watch, TellsTheTracerWhatHappensAndHowDeep) {
  RecordingTracer tracer;
  Watch watch;
  watch.tracer = &tracer;
  DepthGuard guard(watch.depth, Work::kMessage, "open");
  watch.Trace(TraceKind::kMessage, "door", "hall", "open", true);
  EXPECT_EQ(tracer.kind, TraceKind::kMessage);
  EXPECT_EQ(tracer.told, "door|hall|open");
  EXPECT_TRUE(tracer.verifying);
  EXPECT_EQ(tracer.depth, 1);
}

TEST(Watch, IsSilentWithoutATracer) {
  Watch watch;
  watch.Trace(TraceKind::kMessage, "door", "hall", "open");
  EXPECT_EQ(watch.tracer, nullptr);
}

}  // namespace
}  // namespace quendle
