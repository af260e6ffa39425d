#pragma once

#include "platform/DisplayModes.h"
#include "platform/Faults.h"

namespace quendle {

// Display modes that are only noted: nothing switches a monitor. 800 by 600 at 16 and 32 bits can
// be had, unless "TestMode" or "SetMode" is planned to fail.
class RasterDisplayModes : public DisplayModes {
 public:
  // `faults` must outlive this object.
  explicit RasterDisplayModes(Faults& faults) : faults_(faults) {}

  long Test(int width, int height, int depth) override;
  long Set(int width, int height, int depth) override;
  void Restore() override { depth_ = 0; }

  // The depth that was set; 0 while the registered mode is in force.
  int Depth() const { return depth_; }

 private:
  Faults& faults_;
  int depth_ = 0;
};

}  // namespace quendle
