#pragma once

#include <string>
#include <utility>

namespace quendle {

// Owns a file descriptor of the system; -1 is none. Its end leaves errno alone.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor();

  explicit operator bool() const { return number_ >= 0; }
  int Number() const { return number_; }
  // Hands the number over to the caller, who closes it.
  int Release() { return std::exchange(number_, -1); }

 private:
  int number_ = -1;
};

// The errors of the system that say that a file isn't there; any other leaves that open.
bool MeansMissing(int error);

// The words of the system for an error.
std::string ReasonOf(int error);

// Opens `relative` ("" for the root itself, components parted by slashes) below the folder `root`,
// component by component, following no link on the way: what is opened is below the root.
// `flags` are those of open() for the last component.
Descriptor OpenBelow(const std::string& root, const std::string& relative, int flags);

}  // namespace quendle
