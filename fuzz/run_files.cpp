// Runs a fuzz target over files: each argument is a file, or a folder whose files are all run. So
// a corpus is a test with any compiler. With `--mutate SECONDS` in front, mutations of them are run
// for that long, without libFuzzer's feedback; an input that breaks something is left behind in
// "broken-input".

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "Fuzz.h"
#include "LineMutator.h"

// Only some targets have one.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed)
    __attribute__((weak));

namespace {

constexpr std::size_t kMostBytes = 20'000;
constexpr int kMostMutations = 8;

quendle::FuzzRandom random_bytes;
std::string last_input;

std::uint8_t* BytesOf(std::string& text) { return reinterpret_cast<std::uint8_t*>(text.data()); }

void Run(std::string& bytes) { LLVMFuzzerTestOneInput(BytesOf(bytes), bytes.size()); }

std::vector<std::string> ReadFiles(const std::filesystem::path& path) {
  std::vector<std::string> files;
  const auto read = [&](const std::filesystem::path& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file) return static_cast<void>(std::fprintf(stderr, "can't be read: %s\n", name.c_str()));
    files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>{});
    std::fprintf(stderr, "%s\n", name.c_str());  // told first: it may be the last
    Run(files.back());
  };
  if (!std::filesystem::is_directory(path)) {
    read(path);
    return files;
  }
  for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) read(entry.path());
  }
  return files;
}

extern "C" void KeepLastInput(int signal) {
  const int file = open("broken-input", O_CREAT | O_TRUNC | O_WRONLY, 0644);
  if (file >= 0) {
    [[maybe_unused]] const auto written = write(file, last_input.data(), last_input.size());
    close(file);
  }
  std::signal(signal, SIG_DFL);
  raise(signal);
}

void Mutate(std::string& bytes) {
  const std::size_t size = bytes.size();
  bytes.resize(kMostBytes);
  auto* mutate = LLVMFuzzerCustomMutator;
  bytes.resize(mutate != nullptr ? mutate(BytesOf(bytes), size, kMostBytes, random_bytes())
                                 : LLVMFuzzerMutate(BytesOf(bytes), size, kMostBytes));
}

void RunMutations(const std::vector<std::string>& files, int seconds) {
  for (int signal : {SIGABRT, SIGSEGV, SIGFPE, SIGILL}) std::signal(signal, KeepLastInput);
  using Time = std::chrono::steady_clock;
  const auto start = Time::now();
  long runs = 0;
  while (Time::now() - start < std::chrono::seconds(seconds)) {
    last_input = files[quendle::Below(random_bytes, files.size())];
    last_input.resize(std::min(last_input.size(), kMostBytes));
    const int times = 1 + static_cast<int>(quendle::Below(random_bytes, kMostMutations));
    for (int i = 0; i < times; ++i) Mutate(last_input);
    Run(last_input);
    ++runs;
  }
  std::printf("%ld mutations, %ld a second\n", runs, runs / std::max(seconds, 1));
}

}  // namespace

// One byte changed, put in or taken out: as much as is needed without libFuzzer.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most) {
  std::string text(reinterpret_cast<const char*>(data), size);
  const std::size_t at = quendle::Below(random_bytes, size + 1);
  const char byte = static_cast<char>(random_bytes());
  const std::size_t change = quendle::Below(random_bytes, 3);
  if (at == size || change == 0) {
    text.insert(at, 1, byte);
  } else if (change == 1) {
    text[at] = byte;
  } else {
    text.erase(at, 1);
  }
  text.resize(std::min(text.size(), most));
  std::memcpy(data, text.data(), text.size());
  return text.size();
}

int main(int argc, char** argv) {
  int first = 1;
  int seconds = 0;
  if (argc > 2 && std::strcmp(argv[1], "--mutate") == 0) {
    seconds = std::atoi(argv[2]);
    first = 3;
  }
  std::vector<std::string> files;
  for (int i = first; i < argc; ++i) {
    for (std::string& bytes : ReadFiles(argv[i])) files.push_back(std::move(bytes));
  }
  std::printf("%zu files\n", files.size());
  if (!files.empty() && seconds > 0) RunMutations(files, seconds);
  return files.empty() ? 1 : 0;
}
