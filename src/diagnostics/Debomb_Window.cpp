#include "diagnostics/Debomb_Window.h"

namespace quendle {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

void Debomb_Window::PutOnTop(std::string_view line) {
  txt_diffuse.insert(0, kLineEnd).insert(0, line);
  ++changes;
  if (txt_diffuse.size() <= kMostCharacters) return;
  // Whole lines go; of a line that is too long by itself the beginning stays.
  const std::size_t end = txt_diffuse.rfind(kLineEnd, kMostCharacters - kLineEnd.size());
  if (end == std::string::npos) {
    txt_diffuse.resize(kMostCharacters - kLineEnd.size());
    txt_diffuse += kLineEnd;
  } else {
    txt_diffuse.resize(end + kLineEnd.size());
  }
}

}  // namespace quendle
