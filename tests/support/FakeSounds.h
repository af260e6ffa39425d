// Sound graphs without sound: each file lasts until a test says that it is over.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "platform/FilterGraph.h"

namespace quendle {

// What became of one graph; lives on when the graph is gone.
struct SoundRun {
  std::string path;
  bool running = false;
  bool over = false;  // played to its end
  int runs = 0;
  int stops = 0;
  double position = 0;
  std::int32_t volume = 0;
};

class FakeSoundGraph : public FilterGraph {
 public:
  explicit FakeSoundGraph(std::shared_ptr<SoundRun> run) : run_(std::move(run)) {}
  ~FakeSoundGraph() override { run_->running = false; }

  bool RenderFile(const std::string& path) override {
    run_->path = path;
    return true;
  }
  bool QueryAudio() override { return true; }
  bool QueryEvent() override { return true; }
  bool QueryPosition() override { return true; }
  void Run() override {
    run_->running = true;
    run_->over = false;
    ++run_->runs;
  }
  void Pause() override {}
  void Stop() override {
    run_->running = false;
    ++run_->stops;
  }
  double Duration() override { return 10; }
  double Position() override { return run_->position; }
  void SetPosition(double seconds) override { run_->position = seconds; }
  double Rate() override { return 1; }
  bool SetRate(double) override { return true; }
  std::int32_t Volume() override { return run_->volume; }
  void SetVolume(std::int32_t volume) override { run_->volume = volume; }
  std::int32_t Balance() override { return 0; }
  void SetBalance(std::int32_t) override {}
  long WaitForCompletion(long) override { return run_->running && !run_->over ? 0 : 1; }

 private:
  std::shared_ptr<SoundRun> run_;
};

class FakeSounds : public FilterGraphs {
 public:
  std::vector<std::shared_ptr<SoundRun>> made;

  std::unique_ptr<FilterGraph> Create() override {
    made.push_back(std::make_shared<SoundRun>());
    return std::make_unique<FakeSoundGraph>(made.back());
  }

  // Files are named by how their path ends, such as "click.wma".
  bool Playing(const std::string& file) const {
    for (const auto& run : made) {
      if (IsOf(*run, file) && run->running && !run->over) return true;
    }
    return false;
  }
  // How often the file was started.
  int Runs(const std::string& file) const {
    int runs = 0;
    for (const auto& run : made) runs += IsOf(*run, file) ? run->runs : 0;
    return runs;
  }
  // The file plays to its end now.
  void Finish(const std::string& file) {
    for (const auto& run : made) {
      if (IsOf(*run, file)) run->over = true;
    }
  }

 private:
  static bool IsOf(const SoundRun& run, const std::string& file) {
    return FoldCase(run.path).ends_with(FoldCase(file));
  }
};

}  // namespace quendle
