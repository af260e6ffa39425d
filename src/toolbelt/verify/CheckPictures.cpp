#include <cstdlib>
#include <map>

#include "backends/raster/BitmapReader.h"
#include "base/Text.h"
#include "toolbelt/Progress.h"
#include "toolbelt/verify/Checks.h"

namespace quendle {
namespace {

constexpr std::uint32_t kKey = 0xC8C8C8;  // 200,200,200
constexpr int kNear = 8;                  // a channel this far from the key was meant for it
// Grounds that other engines leave out.
constexpr std::uint32_t kForeignKeys[] = {0xFF00FF, 0x00FF00};
constexpr const char* kKeyPicture = "\\Info\\Tools\\tool.bmp";

std::string ColorText(std::uint32_t color) {
  return std::to_string(color >> 16 & 255) + "," + std::to_string(color >> 8 & 255) + "," +
         std::to_string(color & 255);
}

bool IsNearKey(std::uint32_t color) {
  if (color == kKey) return false;
  for (const int shift : {0, 8, 16}) {
    const int channel = static_cast<int>(color >> shift & 255);
    if (std::abs(channel - static_cast<int>(kKey >> shift & 255)) > kNear) return false;
  }
  return true;
}

bool IsForeignKey(std::uint32_t color) {
  for (const std::uint32_t foreign : kForeignKeys) {
    if (color == foreign) return true;
  }
  return false;
}

// The colour that all four corners share, or the key when they don't.
std::uint32_t Ground(const BitmapFile& picture) {
  const std::size_t width = static_cast<std::size_t>(picture.width);
  const std::size_t last_row = width * static_cast<std::size_t>(picture.height - 1);
  const std::uint32_t first = picture.pixels[0];
  for (const std::size_t at : {width - 1, last_row, last_row + width - 1}) {
    if (picture.pixels[at] != first) return kKey;
  }
  return first;
}

class PictureChecker {
 public:
  explicit PictureChecker(const CheckContext& context) : context_(context) {}

  void CheckKeyPicture() {
    const std::string path = context_.gate.Listing().OnDisk(kKeyPicture);
    if (context_.gate.Listing().NamesOf(path).empty()) return;  // told as a missing file
    const BitmapFile picture = Read(path);
    const FilePlace place{context_.gate.DisplayName(path), 0};
    if (!picture.problem.empty()) {
      context_.findings.Add(Check::kPictureDamaged, "", place,
                            "the picture can't be read: " + picture.problem);
    } else if (picture.pixels[0] != kKey) {
      context_.findings.Add(Check::kKeyColour, "", place,
                            "its top left pixel is " + ColorText(picture.pixels[0]) +
                                " and the key colour of the game is 200,200,200");
    }
  }

  void CheckObject(const ModelObject& object) {
    if (object.picture.empty()) return;
    const Size* size = Known(object);
    if (size == nullptr) return;
    for (const ModelFrame& frame : object.frames) {
      const AnimationFrame& f = frame.frame;
      const long right = static_cast<long>(f.SourceX) + f.SourceWidth;
      const long bottom = static_cast<long>(f.SourceY) + f.SourceHeight;
      const bool inside =
          f.SourceX >= 0 && f.SourceY >= 0 && right <= size->width && bottom <= size->height;
      if (inside) continue;
      context_.Tell(Check::kFrameOutside, object, frame.place,
                    "frame \"" + f.FrameName + "\" reaches from " + std::to_string(f.SourceX) +
                        "," + std::to_string(f.SourceY) + " to " + std::to_string(right) + "," +
                        std::to_string(bottom) + ", and " + object.picture + " is " +
                        std::to_string(size->width) + " by " + std::to_string(size->height));
    }
  }

 private:
  BitmapFile Read(const std::string& path) {
    context_.progress.Step("looking at pictures", sizes_.size());
    return ReadBitmapFile(context_.gate.Bytes(path));
  }

  // The size of the object's picture; null for one that can't be read.
  const Size* Known(const ModelObject& object) {
    const auto [slot, fresh] = sizes_.try_emplace(FoldCase(object.picture));
    if (fresh) {
      const BitmapFile picture = Read(object.picture);
      const FilePlace place{context_.gate.DisplayName(object.picture), 0};
      if (!picture.problem.empty()) {
        context_.Tell(Check::kPictureDamaged, object, place,
                      "the picture can't be read: " + picture.problem);
      } else {
        slot->second = {picture.width, picture.height};
        const std::uint32_t ground = Ground(picture);
        if (IsNearKey(ground) || IsForeignKey(ground)) {
          context_.Tell(
              Check::kKeyColour, object, place,
              "its corners are " + ColorText(ground) + " and the key colour is 200,200,200");
        }
      }
    }
    return slot->second.width > 0 ? &slot->second : nullptr;
  }

  const CheckContext& context_;
  std::map<std::string, Size> sizes_;  // by folded path; 0 by 0 for a damaged one
};

}  // namespace

void CheckPictures(const CheckContext& context) {
  PictureChecker checker(context);
  checker.CheckKeyPicture();
  for (const ModelObjectRef& object : context.model.objects) checker.CheckObject(*object);
}

}  // namespace quendle
