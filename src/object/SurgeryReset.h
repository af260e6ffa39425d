#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace quendle {

inline constexpr std::string_view kSurgeryMachineName = "surgerymachine";

// The patient with whom the surgery machine starts over, and the state that it is put into.
struct SurgeryReset {
  std::int16_t edition;  // of the game
  std::string_view patient;
  std::string_view machine_state;
};

inline constexpr std::array kSurgeryResets = {
    SurgeryReset{1, "scarecrow", "tonsilsStage1"},
    SurgeryReset{2, "kangaroo", "tumorStage1"},
};

// Any edition but 1 plays the second.
constexpr const SurgeryReset& SurgeryResetOf(std::int16_t edition) {
  return edition == kSurgeryResets[0].edition ? kSurgeryResets[0] : kSurgeryResets[1];
}

}  // namespace quendle
