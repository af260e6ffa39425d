// Sound graphs without sound: they note what is asked of them, and each file lasts until a test
// says that it is over.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "platform/FilterGraph.h"

namespace quendle {

// What became of one graph; lives on when the graph is gone.
struct GraphRecord {
  std::string path;
  std::vector<std::string> calls;  // "Run", "Pause", "Stop"
  double position = 0;
  double rate = 0;
  std::int32_t volume = -1;
  std::int32_t balance = -1;
  bool running = false;
  bool over = false;  // played to its end
  bool alive = true;
};

// What the next graphs can do.
struct GraphAbilities {
  bool create = true, render = true, audio = true, event = true, position = true, set_rate = true;
  double duration = 10;
};

class FakeSoundGraph : public FilterGraph {
 public:
  FakeSoundGraph(std::shared_ptr<GraphRecord> record, const GraphAbilities& can)
      : record_(std::move(record)), can_(can) {}
  ~FakeSoundGraph() override { record_->alive = record_->running = false; }

  bool RenderFile(const std::string& path) override {
    record_->path = path;
    return can_.render;
  }
  bool QueryAudio() override { return can_.audio; }
  bool QueryEvent() override { return can_.event; }
  bool QueryPosition() override { return can_.position; }
  void Run() override {
    record_->calls.emplace_back("Run");
    record_->running = true;
    record_->over = false;
  }
  void Pause() override { record_->calls.emplace_back("Pause"); }
  void Stop() override {
    record_->calls.emplace_back("Stop");
    record_->running = false;
  }
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
  long WaitForCompletion(long) override { return record_->running && !record_->over ? 0 : 1; }

 private:
  std::shared_ptr<GraphRecord> record_;
  const GraphAbilities& can_;
};

class FakeSounds : public FilterGraphs {
 public:
  GraphAbilities can;
  std::vector<std::shared_ptr<GraphRecord>> made;

  std::unique_ptr<FilterGraph> Create() override {
    if (!can.create) return nullptr;
    made.push_back(std::make_shared<GraphRecord>());
    return std::make_unique<FakeSoundGraph>(made.back(), can);
  }
  GraphRecord& Last() { return *made.back(); }

  // Files are named by how their path ends, such as "click.wma".
  bool Playing(const std::string& file) const {
    return std::ranges::any_of(made, [&](const auto& record) {
      return IsOf(*record, file) && record->running && !record->over;
    });
  }
  // How often the file was started.
  long Runs(const std::string& file) const {
    long runs = 0;
    for (const auto& record : made) {
      if (IsOf(*record, file)) runs += std::ranges::count(record->calls, "Run");
    }
    return runs;
  }
  // The file plays to its end now.
  void Finish(const std::string& file) {
    for (const auto& record : made) {
      if (IsOf(*record, file)) record->over = true;
    }
  }

 private:
  static bool IsOf(const GraphRecord& record, const std::string& file) {
    return FoldCase(record.path).ends_with(FoldCase(file));
  }
};

}  // namespace quendle
