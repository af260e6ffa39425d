// Each file format of the content as text. The first byte is the letter of the format.

#include <string>

#include "Fuzz.h"
#include "base/Text.h"
#include "base/TextStream.h"
#include "media/SplineState.h"
#include "object/AnimationFile.h"
#include "object/AnimationFrame.h"
#include "object/AnimationState.h"
#include "object/ObjState.h"
#include "object/ObjectFile.h"
#include "object/Region.h"
#include "object/SoundFile.h"
#include "script/ScriptReader.h"
#include "subgames/SubgameFiles.h"

using namespace quendle;

namespace {

constexpr int kSplineSteps = 2000;

void MoveAlongSpline(TextStream& stream) {
  SplineState spline;
  spline.ProcessDirective(stream);
  for (int i = 0; i < kSplineSteps; ++i) {
    const CoordObject point = spline.GetNextCoords();
    Require(point.X == point.X && point.Y == point.Y, "a point of a path is a number");
  }
}

void ReadAnimations(TextStream& stream) {
  const auto is_nothing = [](const std::string& path) { return EqualsNoCase(path, "nothing"); };
  for (const AnimationRecord& record : ReadAnimationFile(stream, is_nothing).animations) {
    AnimationState state;
    state.SetLoopState(record.loop);
    for (const auto& names : record.frame_sets) state.AddFrameSet(names);
    state.Reset();
    for (int i = 0; i < 10 && state.GetNumFrames() > 0; ++i) {
      state.GetCurrAnimationPos();
      state.UpdateAnimationPos();
    }
  }
}

void ReadDirectives(TextStream& stream) {
  while (!stream.AtEndOfStream()) ParseDirectives(stream.ReadLine("directives"), stream.Place());
}

void ReadPlacements(TextStream& stream) {
  while (!stream.AtEndOfStream()) ParsePlacement(stream.ReadLine("a placement"), stream.Place());
}

void Read(char format, TextStream& stream) {
  switch (format) {
    case 'o':
      return static_cast<void>(ReadObjectFile(stream));
    case 'd':
      return static_cast<void>(ReadDataFile(stream));
    case 'c':
      return static_cast<void>(ReadChildList(stream));
    case 'v':
      return ReadDirectives(stream);
    case 's':
      return static_cast<void>(ReadStateFile(stream));
    case 'a':
      return ReadAnimations(stream);
    case 'f':
      return static_cast<void>(ReadFrameFile(stream));
    case 'p':
      return ReadPlacements(stream);
    case 'r':
      return static_cast<void>(LoadRegions(stream));
    case 'n':
      for (const SoundRecord& record : ReadSoundFile(stream)) AsksToLoad(record);
      return;
    case 'l':
      return static_cast<void>(ReadScriptList(stream));
    case 'i':
      return MoveAlongSpline(stream);
    case 'h':
      return static_cast<void>(ReadGameHeader(stream));
    case 'q':
      return static_cast<void>(ReadSquareData(stream));
    case 'e':
      return static_cast<void>(ReadCellList(stream));
    case 'm':
      return static_cast<void>(ReadFormations(stream));
    case '6':
      return static_cast<void>(ReadGamePathOfObjectFile(stream));
    case '7':
      return static_cast<void>(ReadDataPathOfObjectFile(stream));
    default:
      return;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes = BytesOf(data, size);
  TextReader stream(std::string(bytes.substr(1)), "file.txt");
  EndsWell([&] { Read(bytes.front(), stream); });
  return 0;
}
