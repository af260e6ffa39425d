#pragma once

#include <string>

namespace quendle {

// `quendle bench`: measures one workload on the inputs in a folder and prints a line of JSON for
// each result. W1: a whole frame, still and moving, through screens and objects. W3: a move of the
// pointer over 60 scripted objects. A workload that isn't measured prints nothing.
// Throws std::runtime_error when an input is missing or the game fails.
void RunBench(const std::string& workload, const std::string& folder);

// Where the inputs stand unless told otherwise: "data" in the folder that PEERS_TMP names.
std::string DefaultBenchFolder();

}  // namespace quendle
