// A saved game. What could be read is written and read again, and must be the same.

#include <memory>
#include <string>
#include <vector>

#include "Fuzz.h"
#include "FuzzClinic.h"
#include "MessageGrammar.h"
#include "base/Text.h"
#include "base/TextStream.h"
#include "base/WorkDepth.h"
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

// A whole record, or a line that stands in one.
std::string AnyPiece(FuzzRandom& random) {
  const std::string name = Below(random, 2) == 0 ? AnyScreen(random) : AnyObject(random);
  switch (Below(random, 8)) {
    case 0:
      return name + "\n";
    case 1:
      return AnyState(random) + "\n";
    case 2:
      return AnyNumber(random) + "\n";
    case 3:
      return Below(random, 2) == 0 ? "end\n" : "begin\n";
    default:
      return "begin\n" + name + "\n" + AnyState(random) + "\n" + AnyNumber(random) + "\n" +
             AnyNumber(random) + "\n" + (Below(random, 2) == 0 ? "True\n" : "False\n") +
             (Below(random, 3) == 0 ? AnyPiece(random) : "") + "end\n";
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static FuzzPlatform platform;
  const std::string_view bytes = BytesOf(data, size);
  ReadWriteRead(bytes);
  platform.Renew();
  platform.files.Put("\\userdata.txt", bytes);
  FuzzClinic clinic(platform);
  EndsWell([&] {
    clinic.Start();
    for (const char* screen : {"cs_floor1hall1", "cs_dogroom", "cs_emptyroom1"}) {
      clinic.Logic().Send(screen);
    }
    clinic.Logic().TurnOff();
  });
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  return MutateLines(data, size, most, seed, AnyPiece);
}
