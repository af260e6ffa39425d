// The text of a sidecar: one word and its value on each line, told in docs/recorder.md.

#include <algorithm>
#include <charconv>
#include <functional>
#include <utility>

#include "base/FatalError.h"
#include "base/Text.h"
#include "base/TextStream.h"
#include "diagnostics/Sidecar.h"

namespace quendle {
namespace {

constexpr std::string_view kFirstLine = "quendle sidecar 1";
constexpr std::string_view kStart = "start";
constexpr char kFileLine = '|';

constexpr std::string_view kMomentWords[] = {"action", "key", "focus", "close"};

std::string Line(std::string_view word, std::string_view value) {
  return std::string(word).append(" ").append(value);
}

std::string OnOff(bool on) { return on ? "on" : "off"; }

// The first word, which is taken off.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

[[noreturn]] void Refuse(const TextStream& stream, std::string_view line) {
  throw FatalError("\"" + std::string(line) + "\" is no line of a sidecar", stream.Place());
}

template <class Number>
Number NumberIn(const TextStream& stream, std::string_view text) {
  Number number{};
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size()) Refuse(stream, text);
  return number;
}

bool FlagIn(const TextStream& stream, std::string_view text, std::string_view on,
            std::string_view off) {
  if (text != on && text != off) Refuse(stream, text);
  return text == on;
}

// Reads the lines up to "start".
class ConditionsReader {
 public:
  explicit ConditionsReader(TextStream& stream) : stream_(stream) {}

  SidecarConditions Read() {
    const std::string first = stream_.ReadLine("the first line of a sidecar");
    if (first != kFirstLine) Refuse(stream_, first);
    for (;;) {
      const std::string line = stream_.ReadLine("a condition, or \"start\"");
      if (line == kStart) return std::move(conditions_);
      Take(line);
    }
  }

 private:
  void Take(std::string_view line) {
    if (line.starts_with(kFileLine)) {
      if (conditions_.files.empty()) Refuse(stream_, line);
      conditions_.files.back().lines.emplace_back(line.substr(1));
      return;
    }
    std::string_view value = line;
    const std::string_view word = TakeWord(value);
    SidecarConditions& to = conditions_;
    if (word == "version") {
      to.version = value;
    } else if (word == "edition") {
      to.edition = NumberIn<int>(stream_, value);
    } else if (word == "seed") {
      to.seed = NumberIn<std::uint64_t>(stream_, value);
    } else if (word == "difficulty") {
      to.difficulty = value;
    } else if (word == "safemode") {
      to.safe_mode = FlagIn(stream_, value, "on", "off");
    } else if (word == "personalize") {
      to.personalize = FlagIn(stream_, value, "on", "off");
    } else if (word == "depth") {
      to.depth = NumberIn<int>(stream_, value);
    } else if (word == "path") {
      to.direct_draw = FlagIn(stream_, value, "directdraw", "window");
    } else if (word == "sound") {
      to.sound = FlagIn(stream_, value, "on", "off");
    } else if (word == "interval") {
      to.interval = NumberIn<int>(stream_, value);
    } else if (word == "clock") {
      to.clock = NumberIn<long>(stream_, value);
    } else if (word == "content") {
      to.content = value;
    } else if (word == "file") {
      to.files.push_back({std::string(value), {}});
    } else {
      Refuse(stream_, line);
    }
  }

  TextStream& stream_;
  SidecarConditions conditions_;
};

// Reads what happened.
class HappeningsReader {
 public:
  HappeningsReader(TextStream& stream, Sidecar& sidecar) : stream_(stream), sidecar_(sidecar) {}

  void Read() {
    while (!stream_.AtEndOfStream()) Take(stream_.ReadLine("a line of a sidecar"));
  }

 private:
  void Take(const std::string& line) {
    std::string_view value = line;
    const std::string_view word = TakeWord(value);
    if (word.empty() || word == "object" || word == "gone") {
      if (sidecar_.states.empty()) Refuse(stream_, line);
      sidecar_.states.back().changes.push_back(line);
      return;
    }
    const long time = NumberIn<long>(stream_, TakeWord(value));
    sidecar_.last_time = std::max(sidecar_.last_time, time);
    if (word == "state") {
      sidecar_.states.push_back({time, std::string(value), {}});
    } else if (word == "end") {
      sidecar_.ended = true;
    } else {
      TakeMoment(line, word, time, value);
    }
  }

  void TakeMoment(const std::string& line, std::string_view word, long time,
                  std::string_view value) {
    const auto found = std::find(std::begin(kMomentWords), std::end(kMomentWords), word);
    if (found == std::end(kMomentWords)) Refuse(stream_, line);
    const auto kind = static_cast<SidecarMoment::Kind>(found - std::begin(kMomentWords));
    SidecarMoment moment{time, kind, 0};
    if (kind == SidecarMoment::Kind::kKey) moment.value = NumberIn<int>(stream_, value);
    if (kind == SidecarMoment::Kind::kFocus) {
      moment.value = FlagIn(stream_, value, "on", "off") ? 1 : 0;
    }
    sidecar_.moments.push_back(moment);
  }

  TextStream& stream_;
  Sidecar& sidecar_;
};

}  // namespace

std::string SidecarNameOf(std::string_view session_name) {
  constexpr std::string_view kExtension = ".txt";
  if (session_name.size() > kExtension.size() &&
      EqualsNoCase(session_name.substr(session_name.size() - kExtension.size()), kExtension)) {
    session_name.remove_suffix(kExtension.size());
  }
  return std::string(session_name) + ".sidecar.txt";
}

void WriteConditions(TextStream& stream, const SidecarConditions& conditions) {
  stream.WriteLine(kFirstLine);
  stream.WriteLine(Line("version", conditions.version));
  stream.WriteLine(Line("edition", std::to_string(conditions.edition)));
  stream.WriteLine(Line("seed", std::to_string(conditions.seed)));
  stream.WriteLine(Line("difficulty", conditions.difficulty));
  stream.WriteLine(Line("safemode", OnOff(conditions.safe_mode)));
  stream.WriteLine(Line("personalize", OnOff(conditions.personalize)));
  stream.WriteLine(Line("depth", std::to_string(conditions.depth)));
  stream.WriteLine(Line("path", conditions.direct_draw ? "directdraw" : "window"));
  stream.WriteLine(Line("sound", OnOff(conditions.sound)));
  stream.WriteLine(Line("interval", std::to_string(conditions.interval)));
  stream.WriteLine(Line("clock", std::to_string(conditions.clock)));
  stream.WriteLine(Line("content", conditions.content));
  for (const SidecarFile& file : conditions.files) {
    stream.WriteLine(Line("file", file.name));
    for (const std::string& line : file.lines) stream.WriteLine(kFileLine + line);
  }
  stream.WriteLine(kStart);
}

void WriteMoment(TextStream& stream, const SidecarMoment& moment) {
  std::string line =
      Line(kMomentWords[static_cast<std::size_t>(moment.kind)], std::to_string(moment.time));
  if (moment.kind == SidecarMoment::Kind::kKey) line += " " + std::to_string(moment.value);
  if (moment.kind == SidecarMoment::Kind::kFocus) line += " " + OnOff(moment.value != 0);
  stream.WriteLine(line);
}

void WriteState(TextStream& stream, const SidecarState& state) {
  stream.WriteLine("state " + std::to_string(state.time) + " " + state.hash);
  for (const std::string& change : state.changes) stream.WriteLine(change);
}

void WriteEnd(TextStream& stream, long time) { stream.WriteLine("end " + std::to_string(time)); }

Sidecar ReadSidecar(TextStream& stream) {
  Sidecar sidecar;
  sidecar.conditions = ConditionsReader(stream).Read();
  HappeningsReader(stream, sidecar).Read();
  return sidecar;
}

}  // namespace quendle
