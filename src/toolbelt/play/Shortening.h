#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quendle {

// Leaves out as many lines as it can so that `fails` still holds of the rest, in ever smaller
// pieces (delta debugging). `lines` must fail. Asks at most `most_runs` times; what it gives fails
// in any case.
std::vector<std::string> ShortenLines(
    std::vector<std::string> lines,
    const std::function<bool(const std::vector<std::string>&)>& fails, std::size_t most_runs);

}  // namespace quendle
