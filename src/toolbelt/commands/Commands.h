// The tool belt's commands, one source each: AddX hangs the command into the belt, and sets
// `exit_code` when it runs. A new command is declared here and listed in ToolBelt.cpp.
#pragma once

namespace CLI {
class App;
}

namespace quendle {

// The groups of the help, in its order.
inline constexpr const char* kPlaying = "Playing";
inline constexpr const char* kChecking = "Checking";
inline constexpr const char* kMaking = "Making";
inline constexpr const char* kMeasuring = "Measuring";

void AddDrive(CLI::App& belt, int& exit_code);
void AddWalk(CLI::App& belt, int& exit_code);
void AddRandom(CLI::App& belt, int& exit_code);
void AddTree(CLI::App& belt, int& exit_code);
void AddReplay(CLI::App& belt, int& exit_code);
void AddNew(CLI::App& belt, int& exit_code);
void AddPicture(CLI::App& belt, int& exit_code);
void AddRender(CLI::App& belt, int& exit_code);
void AddVerify(CLI::App& belt, int& exit_code);
void AddBench(CLI::App& belt, int& exit_code);

}  // namespace quendle
