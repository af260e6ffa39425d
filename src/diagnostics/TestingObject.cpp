#include "diagnostics/TestingObject.h"

#include <utility>

#include "base/Watch.h"
#include "diagnostics/Debomb_Window.h"

namespace quendle {

TestingObject::TestingObject(FileSystem& files, std::string base_directory, Watch* watch)
    : files_(files), base_directory_(std::move(base_directory)), watch_(watch) {}

void TestingObject::Initialize(const std::string& category, const std::string& file_name,
                               ObjectRef object, std::int16_t level) {
  if (!TryInitialize(category, file_name, level)) {
    throw FatalError("the event log can't be created", {file_name, 0});
  }
  if (object != nullptr) attached_.Add(std::move(object), category);
}

bool TestingObject::TryInitialize(const std::string& category, const std::string& file_name,
                                  std::int16_t level) {
  std::unique_ptr<LineWriter> stream = files_.CreateLineFile(base_directory_ + "\\" + file_name);
  if (stream == nullptr) return false;
  streams_.Add(std::move(stream), category);
  thresholds_.Add(level, category);
  return true;
}

void TestingObject::InitializeWithoutFile(const std::string& category, std::int16_t level) {
  streams_.Add(nullptr, category);
  thresholds_.Add(level, category);
}

void TestingObject::RegisterNewEventFile(const std::string& category, const std::string& file_name,
                                         std::int16_t level) {
  Initialize(category, file_name, nullptr, level);
  streams_.Item(category)->WriteLine("Initializing the Event Log");
}

void TestingObject::LogEvent(std::string_view message, int level, std::string_view category) {
  if (thresholds_.Item(category) < level) return;
  if (watch_ != nullptr) watch_->Trace(TraceKind::kLog, category, "", message);
  if (mirror_ != nullptr) mirror_->PutOnTop(message);
  if (write_to_file_) {
    if (LineWriter* stream = streams_.Item(category).get()) stream->WriteLine(message);
  } else if (window_ != nullptr) {
    window_->PutOnTop(message);
  }
}

}  // namespace quendle
