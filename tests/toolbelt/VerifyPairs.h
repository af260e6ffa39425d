// For each check of `quendle verify` a planted fault and a clean twin that looks much like it.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "toolbelt/VerifyClinic.h"

namespace quendle {

using Plant = std::function<void(VerifyClinic&)>;

struct CheckPair {
  std::string code;
  std::string place;  // "FILE:LINE" of the finding
  Plant fault;
  Plant twin;

  friend void PrintTo(const CheckPair& pair, std::ostream* out) {
    *out << pair.code << " at " << pair.place;
  }
};

std::vector<CheckPair> FilePairs();     // V0, V1, V2
std::vector<CheckPair> PartPairs();     // V3, V4, V5
std::vector<CheckPair> ScriptPairs();   // V6, V7
std::vector<CheckPair> MeaningPairs();  // V8, V9

// Plants, by path below "\Info\".
inline Plant Edit(const std::string& path, const std::string& from, const std::string& to) {
  return [=](VerifyClinic& clinic) { clinic.Edit("\\Info\\" + path, from, to); };
}
inline Plant Append(const std::string& path, const std::string& text) {
  return [=](VerifyClinic& clinic) { clinic.Append("\\Info\\" + path, text); };
}
inline Plant Put(const std::string& path, const std::string& text) {
  return [=](VerifyClinic& clinic) { clinic.Put("\\Info\\" + path, text); };
}
inline Plant Remove(const std::string& path) {
  return [=](VerifyClinic& clinic) { clinic.Remove("\\Info\\" + path); };
}
inline Plant All(const std::vector<Plant>& plants) {
  return [=](VerifyClinic& clinic) {
    for (const Plant& plant : plants) plant(clinic);
  };
}
inline Plant Nothing() {
  return [](VerifyClinic&) {};
}

}  // namespace quendle
