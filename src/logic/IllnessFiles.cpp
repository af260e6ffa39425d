#include "logic/IllnessFiles.h"

#include <array>
#include <string>

#include "base/ContentFiles.h"

namespace quendle {
namespace {

constexpr const char* kFolder = "\\Info\\GlobalReferences\\scripts\\";

constexpr std::array<std::string_view, 7> kSiblingNames = {
    "antiseptantPatientIllnessState", "ColdPatientSecondToLastIllnessState",
    "bandaidPatientIllnessState",     "bandaidPatientSecondToLastIllnessState",
    "calaminePatientIllnessState",    "soapPatientIllnessState",
    "waterPatientIllnessState",
};

constexpr std::array<std::string_view, 8> kNames = {
    "antiseptantPatientIllnessState",
    "fleapowderPatientIllnessState",
    "FootAndMouthVaccinePatientIllnessState",
    "GrapesPatientIllnessState",
    "FleaCollarPatientSecondToLastIllnessState",
    "CalciumShotPatientSecondToLastIllnessState",
    "RabiesVaccinePatientSecondToLastIllnessState",
    "AntibioticPatientSecondToLastIllnessState",
};

}  // namespace

std::span<const std::string_view> IllnessNames(std::int16_t edition) {
  if (edition == 1) return kSiblingNames;
  return kNames;
}

void SelectIllnessFiles(const ContentFiles& files, std::int16_t edition,
                        bool full_illness_scripts) {
  const std::string folder = files.BaseDirectory() + kFolder;
  const std::string variant = full_illness_scripts ? "NormalMode.txt" : "SafeMode.txt";
  for (std::string_view name : IllnessNames(edition)) {
    const std::string stem = folder + std::string(name);
    files.KeepCopy(stem + variant, stem + ".txt");
  }
}

}  // namespace quendle
