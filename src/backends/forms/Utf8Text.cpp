#include "backends/forms/Utf8Text.h"

namespace quendle {

std::string FromUtf8(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto lead = static_cast<unsigned char>(text[i]);
    if (lead < 0x80) {
      bytes += text[i];
    } else if ((lead == 0xC2 || lead == 0xC3) && i + 1 < text.size()) {
      auto next = static_cast<unsigned char>(text[++i]);
      bytes += static_cast<char>((lead & 3) << 6 | (next & 0x3F));
    }
  }
  return bytes;
}

}  // namespace quendle
