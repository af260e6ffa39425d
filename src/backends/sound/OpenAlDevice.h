#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace quendle {

// An open sound device with its mixer, or one that mixes into memory. Everything is called on the
// game's thread; only the mixer has one of its own.
class OpenAlDevice {
 public:
  // The system's default device; null when there is none.
  static std::shared_ptr<OpenAlDevice> Open();
  // A device that nobody hears, which mixes `rate` frames a second when told to; null on failure.
  static std::shared_ptr<OpenAlDevice> OpenLoopback(int rate);
  // Name and version of the mixing library.
  static std::string Library();

  ~OpenAlDevice();
  OpenAlDevice(const OpenAlDevice&) = delete;
  OpenAlDevice& operator=(const OpenAlDevice&) = delete;

  // To be called before operations on sources and buffers: several devices can be open.
  void MakeCurrent();
  // False once the device has gone away (unplugged).
  bool Connected();
  // The next `frames` frames of a loopback device, left and right beside each other, 1.0 as full.
  std::vector<float> Render(std::size_t frames);

 private:
  struct Handles;
  explicit OpenAlDevice(std::unique_ptr<Handles> handles);

  std::unique_ptr<Handles> handles_;
};

}  // namespace quendle
