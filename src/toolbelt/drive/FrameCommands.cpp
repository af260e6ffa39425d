// The picture. Each command composes the frame anew, without counting it as a draw.

#include <cstdint>
#include <nlohmann/json.hpp>

#include "backends/raster/RasterBitmap.h"
#include "base/Text.h"
#include "media/PlacedFrame.h"
#include "toolbelt/FrameHash.h"
#include "toolbelt/PngFile.h"
#include "toolbelt/drive/DriveCommand.h"
#include "toolbelt/drive/Views.h"

namespace quendle {
namespace {

Json SaveFrame(DriveSession& session, Arguments& arguments) {
  const std::string file = arguments.Rest();
  const auto frame = session.ComposeFrame();
  if (frame == nullptr) return Json::object();
  try {
    WritePng(ToUtf8(file), frame->Width(), frame->Height(), frame->Pixels());
  } catch (const PictureError& error) {
    throw CommandRefused(error.what());
  }
  return {{"file", TextJson(file)}};
}

Json Pixel(DriveSession& session, Arguments& arguments) {
  const int x = static_cast<int>(arguments.Whole(0, kFrameWidth - 1));
  const int y = static_cast<int>(arguments.Whole(0, kFrameHeight - 1));
  arguments.End();
  const auto frame = session.ComposeFrame();
  if (frame == nullptr) return Json::object();
  const std::uint32_t word = *frame->At(x, y);
  return {{"color", {word >> 16 & 0xFF, word >> 8 & 0xFF, word & 0xFF}}};
}

Json Hash(DriveSession& session, Arguments& arguments) {
  arguments.End();
  const auto frame = session.ComposeFrame();
  if (frame == nullptr) return Json::object();
  return {{"hash", HashOfFrame(frame->Width(), frame->Height(), frame->Pixels())}};
}

const char* StatusName(DrawStatus status) {
  switch (status) {
    case DrawStatus::kOk:
      return "ok";
    case DrawStatus::kSurfaceLost:
      return "lost";
    case DrawStatus::kFailed:
      return "failed";
  }
  return "";
}

// Lists the frames of one composition.
class BlitList : public BlitWatcher {
 public:
  void Blitted(const std::string& object, const std::string& frame, const PlacedFrame& placed,
               DrawStatus status) override {
    list_.push_back(
        {{"object", TextJson(object)},
         {"frame", TextJson(frame)},
         {"source", Area(placed.source_x, placed.source_y, placed.width, placed.height)},
         {"destination", Area(placed.left, placed.top, placed.width, placed.height)},
         {"status", StatusName(status)}});
  }
  Json Take() { return std::move(list_); }

 private:
  static Json Area(int x, int y, int width, int height) {
    return {{"x", x}, {"y", y}, {"width", width}, {"height", height}};
  }

  Json list_ = Json::array();
};

Json Blits(DriveSession& session, Arguments& arguments) {
  arguments.End();
  BlitList list;
  session.Game().SetBlitWatcher(&list);
  try {
    session.ComposeFrame();
  } catch (const CommandRefused&) {
    session.Game().SetBlitWatcher(nullptr);
    throw;
  }
  session.Game().SetBlitWatcher(nullptr);
  return {{"blits", list.Take()}};
}

}  // namespace

const CommandTable& FrameCommands() {
  static const CommandTable kTable = {
      {"frame FILE", "the frame as a PNG file", SaveFrame},
      {"pixel X Y", "one pixel of the frame, as [red, green, blue]", Pixel},
      {"hash", "a number for the frame's pixels, the same on every machine", Hash},
      {"blits", "what is drawn, in order", Blits},
  };
  return kTable;
}

}  // namespace quendle
