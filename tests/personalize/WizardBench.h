// What the tests of the wizard stand on: a photograph in memory, boxes that are answered.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "backends/headless/HeadlessBackend.h"
#include "backends/raster/BitmapReader.h"
#include "backends/raster/BitmapWriter.h"
#include "dialogs/FormBench.h"
#include "personalize/frmSelectPicture.h"
#include "platform/PictureLoader.h"

namespace quendle {

// Photographs by path; any other path is refused.
class KnownPictures : public PictureLoader {
 public:
  LoadedPicture LoadPicture(const std::string& native_path, PictureLimit limit) override {
    asked.push_back(native_path);
    limits.push_back(limit);
    auto found = pictures.find(native_path);
    if (found == pictures.end()) return {nullptr, "It can't be used."};
    return {found->second, {}};
  }
  std::map<std::string, SharedPicture> pictures;
  std::vector<std::string> asked;
  std::vector<PictureLimit> limits;
};

// Colours that differ from pixel to pixel, in every channel its own way.
inline std::uint32_t ColorAt(int x, int y) {
  const auto byte = [](int value) { return static_cast<std::uint32_t>(value) & 255; };
  return byte(x * 7 + y * 3) << 16 | byte(x * x + 5 * y) << 8 | byte(11 * y + x / 3);
}

inline SharedPicture ColorfulPicture(Size size) {
  Picture picture{size, {}};
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) picture.words.push_back(ColorAt(x, y));
  }
  return std::make_shared<const Picture>(std::move(picture));
}

struct WizardBench : FormBench {
  static constexpr const char* kFolder = "\\Info\\GlobalReferences\\images\\person\\";

  WizardBench() {
    PutPicture("doctorsuit.bmp", *ColorfulPicture({64, 96}));
    loader.pictures["/photos/child.jpg"] = ColorfulPicture({600, 300});
    select.Open();
  }

  void PutPicture(const std::string& name, const Picture& picture) {
    files.Put(kFolder + name,
              WriteBitmapFile(picture.size.width, picture.size.height, picture.words.data()));
  }
  // A picture that the wizard has written; empty without it.
  Picture Written(const std::string& name) {
    const std::string bytes = files.Get(kFolder + name).value_or("");
    const BitmapFile file = ReadBitmapFile(bytes);
    if (!file.problem.empty()) return {};
    const std::size_t count = static_cast<std::size_t>(file.width) * file.height;
    return {{file.width, file.height}, {file.pixels.get(), file.pixels.get() + count}};
  }

  std::string InView() { return host.InView() == nullptr ? "(none)" : host.InView()->name; }
  Control& At(const std::string& name, int index = 0) { return *host.InView()->Find(name, index); }
  bool PressPicture(int index) { return host.Press("Picture1", index); }
  // Chooses a photograph in stage 1.
  void Choose(const std::string& path) {
    boxes.QueueAnswer(path);
    PressPicture(5);
  }
  // Up to stage 2 with a photograph.
  void ToPartition(const std::string& path = "/photos/child.jpg") {
    Choose(path);
    PressPicture(3);
  }
  void Click(const std::vector<Point>& points) {
    for (const Point& point : points) host.Press("Image1", 0, point);
  }
  // Up to stage 3 with an outline.
  void ToEditor(const std::vector<Point>& points) {
    ToPartition();
    Click(points);
    PressPicture(3);
  }
  // How many lines are shown.
  int Lines() {
    int lines = 0;
    for (const Control& control : host.InView()->controls) lines += control.name == "Line1";
    return lines;
  }

  RecordingPrompt prompt;
  ScriptedBoxes boxes;
  KnownPictures loader;
  HeadlessBackend backend{files, faults};
  BitmapPictureSaver saver{files};
  frmSelectPicture select{
      PersonalizeServices{Services(), prompt, boxes, backend.gdi, loader, saver}};
};

}  // namespace quendle
