#include "backends/files/DiskNames.h"

#include "base/Text.h"

namespace quendle {

std::string ContentName(std::string_view disk_name) {
  return FromUtf8(disk_name).value_or(std::string(disk_name));
}

}  // namespace quendle
