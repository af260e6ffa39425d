// Sound graphs that only note what was asked of them.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/FilterGraph.h"

namespace quendle {

// What became of one graph; lives on when the graph is gone.
struct GraphRecord {
  std::string path;
  std::vector<std::string> calls;
  double position = 0;
  double rate = 0;
  std::int32_t volume = -1;
  std::int32_t balance = -1;
  bool completed = false;
  bool alive = true;
};

// What the next graphs can do.
struct GraphAbilities {
  bool create = true, render = true, audio = true, event = true, position = true, set_rate = true;
  double duration = 10;
};

class FakeGraph : public FilterGraph {
 public:
  FakeGraph(std::shared_ptr<GraphRecord> record, const GraphAbilities& can)
      : record_(std::move(record)), can_(can) {}
  ~FakeGraph() override { record_->alive = false; }

  bool RenderFile(const std::string& path) override {
    record_->path = path;
    return can_.render;
  }
  bool QueryAudio() override { return can_.audio; }
  bool QueryEvent() override { return can_.event; }
  bool QueryPosition() override { return can_.position; }
  void Run() override { record_->calls.emplace_back("Run"); }
  void Pause() override { record_->calls.emplace_back("Pause"); }
  void Stop() override { record_->calls.emplace_back("Stop"); }
  double Duration() override { return can_.duration; }
  double Position() override { return record_->position; }
  void SetPosition(double seconds) override { record_->position = seconds; }
  double Rate() override { return record_->rate; }
  bool SetRate(double rate) override {
    if (can_.set_rate) record_->rate = rate;
    return can_.set_rate;
  }
  std::int32_t Volume() override { return record_->volume; }
  void SetVolume(std::int32_t volume) override { record_->volume = volume; }
  std::int32_t Balance() override { return record_->balance; }
  void SetBalance(std::int32_t balance) override { record_->balance = balance; }
  long WaitForCompletion(long) override { return record_->completed ? 1 : 0; }

 private:
  std::shared_ptr<GraphRecord> record_;
  const GraphAbilities& can_;
};

class FakeGraphs : public FilterGraphs {
 public:
  GraphAbilities can;
  std::vector<std::shared_ptr<GraphRecord>> made;

  std::unique_ptr<FilterGraph> Create() override {
    if (!can.create) return nullptr;
    made.push_back(std::make_shared<GraphRecord>());
    return std::make_unique<FakeGraph>(made.back(), can);
  }
  GraphRecord& Last() { return *made.back(); }
};

}  // namespace quendle
