// A saved game. What could be read is written and read again, and must be the same.

#include <memory>
#include <string>
#include <vector>

#include "Fuzz.h"
#include "base/Text.h"
#include "base/TextStream.h"
#include "base/WorkDepth.h"
#include "logic/LogicBench.h"
#include "screens/GameObjectMemento.h"

using namespace quendle;

namespace {

std::string Written(const GameObjectMemento& memento, WorkDepth& depth) {
  std::string text;
  TextComposer composer(text);
  memento.SaveToFile(composer, depth);
  return text;
}

void ReadWriteRead(std::string_view bytes) {
  WorkDepth depth;
  TextReader stream(std::string(bytes), "userdata.txt");
  GameObjectMemento memento;
  if (!EndsWell([&] {
        stream.ReadLine("begin");
        stream.ReadLine("begin");
        memento.LoadFromFile(stream, depth);
      })) {
    return;
  }
  const std::string first = Written(memento, depth);
  GameObjectMemento again;
  TextReader written(first, "userdata.txt");
  written.ReadLine("begin");
  again.LoadFromFile(written, depth);
  Require(Written(again, depth) == first, "a saved object is read as it was written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = BytesOf(data, size);
  ReadWriteRead(bytes);
  LogicBench bench;
  bench.files.Put("\\userdata.txt", std::string(bytes));
  if (!EndsWell([&] { bench.Start(); })) return 0;
  EndsWell([&] {
    for (const char* screen : {"cs_floor1hall1", "cs_dogroom", "cs_emptyroom1"}) bench.Send(screen);
    bench.logic->TurnOff();
  });
  return 0;
}
