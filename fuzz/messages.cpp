// Messages, one a line, to a small clinic with the four arcade games. A line ">X Y" is a click, a
// line "^X Y" a movement, "~N" lets N milliseconds pass, and "?" asks instead of telling.

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

#include "ArcadeClinic.h"
#include "Fuzz.h"
#include "base/TextStream.h"
#include "logic/LogicBench.h"
#include "subgames/PointSystemObject.h"
#include "subgames/SubgameClasses.h"
#include "subgames/SubgameObject.h"

using namespace quendle;

namespace {

constexpr int kMostLines = 60;
constexpr int kLongestTick = 400;

// The numbers of a line, 0 where there is none.
std::pair<int, int> NumbersOf(std::string_view text) {
  int numbers[2] = {0, 0};
  for (int& number : numbers) {
    const char* end = text.data() + text.size();
    const char* rest = std::from_chars(text.data(), end, number).ptr;
    if (rest != end) ++rest;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
  }
  return {std::clamp(numbers[0], -2000, 2000), std::clamp(numbers[1], -2000, 2000)};
}

void Do(LogicBench& bench, const std::string& line) {
  const char first = line.empty() ? '\0' : line.front();
  const auto [x, y] = NumbersOf(std::string_view(line).substr(line.empty() ? 0 : 1));
  switch (first) {
    case '>':
      return bench.Click(x, y);
    case '^':
      return bench.Move(x, y);
    case '~':
      return bench.Tick(std::clamp(x, 0, kLongestTick));
    case '?':
      return static_cast<void>(bench.Ask(line.substr(1)));
    default:
      return bench.Send(line);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TextReader lines(std::string(BytesOf(data, size)), "messages.txt");
  LogicBench bench;
  bench.Register<SubgameObject>("subgame");
  bench.Register<PointSystemObject>("pointsystem");
  RegisterPlayAreas(bench.factory);
  PutArcadeScreens(bench.files);
  bench.Start();
  EndsWell([&] {
    for (int i = 0; i < kMostLines && !lines.AtEndOfStream(); ++i) {
      Do(bench, lines.ReadLine("a message"));
    }
    bench.logic->draw();
    bench.logic->TurnOff();
  });
  return 0;
}
