#pragma once

#include <string_view>

namespace quendle {

// Takes the fields of an object, so that a tool sees the counters of any class without knowing it.
class Inspector {
 public:
  virtual ~Inspector() = default;
  virtual void Field(std::string_view name, std::string_view value) = 0;
  virtual void Field(std::string_view name, long value) = 0;
  virtual void Flag(std::string_view name, bool value) = 0;
};

class Inspectable {
 public:
  virtual ~Inspectable() = default;
  virtual void Describe(Inspector& inspector) const = 0;
};

}  // namespace quendle
