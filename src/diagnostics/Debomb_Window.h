#pragma once

#include <string>
#include <string_view>

namespace quendle {

// The debug window: a caption and one text of many lines, the newest on top.
struct Debomb_Window {
  std::string caption = "Quendle -- Debomber";
  std::string txt_diffuse;

  void PutOnTop(std::string_view line) { txt_diffuse.insert(0, "\r\n").insert(0, line); }
};

}  // namespace quendle
