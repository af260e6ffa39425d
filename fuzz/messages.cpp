// Messages, one a line, to a small clinic with the four arcade games. A line ">X Y" is a click, a
// line "^X Y" a movement, "~N" lets N milliseconds pass, "?" asks instead of telling, and "!"
// draws.

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

#include "Fuzz.h"
#include "FuzzClinic.h"
#include "MessageGrammar.h"
#include "base/TextStream.h"

using namespace quendle;

namespace {

constexpr int kMostLines = 60;
constexpr int kLongestTick = 400;

// The numbers of a line, 0 where there is none.
std::pair<std::int16_t, std::int16_t> NumbersOf(std::string_view text) {
  int numbers[2] = {0, 0};
  for (int& number : numbers) {
    const char* end = text.data() + text.size();
    const char* rest = std::from_chars(text.data(), end, number).ptr;
    if (rest != end) ++rest;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()));
  }
  const auto narrow = [](int number) {
    return static_cast<std::int16_t>(std::clamp(number, -2000, 2000));
  };
  return {narrow(numbers[0]), narrow(numbers[1])};
}

void Do(FuzzClinic& clinic, const std::string& line) {
  const char first = line.empty() ? '\0' : line.front();
  const auto [x, y] = NumbersOf(std::string_view(line).substr(line.empty() ? 0 : 1));
  GameLogicLayer& logic = clinic.Logic();
  bool result = true;
  switch (first) {
    case '>':
      return logic.MapMouseClick(x, y);
    case '^':
      return logic.MapMouseCoords(x, y);
    case '~':
      return clinic.Tick(std::clamp<int>(x, 0, kLongestTick));
    case '!':
      return logic.draw();
    case '?':
      return logic.HandleMessage(line.substr(1), nullptr, true, result);
    default:
      return logic.HandleMessage(line, nullptr, false, result);
  }
}

std::string AnyLine(FuzzRandom& random) {
  switch (Below(random, 8)) {
    case 0:
      return ">" + AnyNumber(random) + " " + AnyNumber(random) + "\n";
    case 1:
      return "^" + AnyNumber(random) + " " + AnyNumber(random) + "\n";
    case 2:
      return "~" + std::to_string(Below(random, kLongestTick)) + "\n";
    case 3:
      return (Below(random, 4) == 0 ? "!" : "?" + AnyMessage(random)) + "\n";
    default:
      return AnyMessage(random) + "\n";
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static FuzzPlatform platform;
  platform.Renew();
  TextReader lines(std::string(BytesOf(data, size)), "messages.txt");
  FuzzClinic clinic(platform);
  EndsWell([&] {
    clinic.Start();
    for (int i = 0; i < kMostLines && !lines.AtEndOfStream(); ++i) {
      Do(clinic, lines.ReadLine("a message"));
    }
    clinic.Logic().TurnOff();
  });
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  return MutateLines(data, size, most, seed, AnyLine);
}
