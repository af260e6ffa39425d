#pragma once

#include <nlohmann/json_fwd.hpp>

namespace quendle {

// Answers keep the order in which their fields were made.
using Json = nlohmann::ordered_json;

}  // namespace quendle
