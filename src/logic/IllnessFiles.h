#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace quendle {

class ContentFiles;

// Names of the script sets of an edition, in their order: 1 is the sibling edition, any other value
// this one.
std::span<const std::string_view> IllnessNames(std::int16_t edition);

// Copies the variants of the chosen difficulty over the active scripts of an edition: the
// "NormalMode" set for full illness scripts, else the "SafeMode" set. A missing variant is fatal.
void SelectIllnessFiles(const ContentFiles& files, std::int16_t edition, bool full_illness_scripts);

}  // namespace quendle
