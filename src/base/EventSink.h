#pragma once

#include <string_view>

namespace quendle {

// Where the game logs. Lower levels are the more important.
class EventSink {
 public:
  virtual ~EventSink() = default;
  virtual void LogEvent(std::string_view message, int level, std::string_view category) = 0;
};

}  // namespace quendle
