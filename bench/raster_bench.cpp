// Composes the scene under $PEERS_TMP/data (bg.bmp, sheet.bmp, cursor.bmp, scene.txt: image name,
// source, size and place of each sprite) over both drawing paths, and prints one line of JSON for
// each: CPU time a frame, and the CRC-32 of the frame's RGB bytes as proof of the same work.
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "backends/raster/RasterDirectDraw.h"
#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"
#include "platform/FileSystem.h"

namespace quendle {
namespace {

constexpr Color kKey = PackColor(255, 0, 255);
constexpr std::int32_t kSurfaceKey = 0xFF00FF;
constexpr int kFrames = 10000;
constexpr int kBatches = 5;

// The input folder, read only.
class InputFiles : public FileSystem {
 public:
  explicit InputFiles(std::string folder) : folder_(std::move(folder)) {}
  bool Exists(std::string_view) override { return true; }
  FileAnswer Read(std::string_view path) override {
    std::ifstream file(folder_ + std::string(path), std::ios::binary);
    if (!file) return FileAnswer();
    return std::string(std::istreambuf_iterator<char>(file), {});
  }
  FileChange Write(std::string_view, std::string_view) override {
    return FileChange::Failed("read only");
  }
  FileChange Remove(std::string_view) override { return FileChange::Failed("read only"); }
  std::unique_ptr<LineWriter> CreateLineFile(std::string_view) override { return nullptr; }

 private:
  std::string folder_;
};

struct Sprite {
  std::string image;
  Point from;
  Size size;
  Point to;
};

std::vector<Sprite> ReadScene(const std::string& path) {
  std::ifstream file(path);
  std::vector<Sprite> scene{{"bg", {0, 0}, {kFrameWidth, kFrameHeight}, {0, 0}}};
  Sprite s;
  while (file >> s.image >> s.from.x >> s.from.y >> s.size.width >> s.size.height >> s.to.x >>
         s.to.y) {
    scene.push_back(s);
  }
  return scene;
}

double CpuSeconds() {
  rusage usage;
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + 1e-6 * static_cast<double>(t.tv_usec);
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

std::uint32_t Crc(const std::uint32_t* words, std::size_t count) {
  std::uint32_t crc = ~0U;
  for (std::size_t i = 0; i < count; ++i) {
    for (int shift = 16; shift >= 0; shift -= 8) {
      crc ^= words[i] >> shift & 255;
      for (int bit = 0; bit < 8; ++bit) crc = (crc & 1) != 0 ? 0xEDB88320 ^ crc >> 1 : crc >> 1;
    }
  }
  return ~crc;
}

void Measure(const char* name, const std::function<void()>& frame,
             const std::function<const std::uint32_t*()>& result) {
  for (int i = 0; i < kFrames / 20; ++i) frame();
  std::array<double, kBatches> batches;
  for (double& batch : batches) {
    const double start = CpuSeconds();
    for (int i = 0; i < kFrames / kBatches; ++i) frame();
    batch = (CpuSeconds() - start) / (kFrames / kBatches);
  }
  std::ranges::sort(batches);
  std::printf(
      "{\"peer\":\"%s\",\"workload\":\"W1\",\"unit\":\"us/frame\",\"value\":%.3f,"
      "\"check\":\"%u\"}\n",
      name, batches[kBatches / 2] * 1e6, Crc(result(), std::size_t{kFrameWidth} * kFrameHeight));
}

class Bench {
 public:
  explicit Bench(const std::string& folder)
      : files_(folder), scene_(ReadScene(folder + "scene.txt")) {}

  // The composed frame is not presented: the scene's work ends with the composed pixels.
  void Window() {
    const ContextHandle back = gdi_.CreateCompatibleDC(gdi_.WindowContext());
    gdi_.SelectObject(back,
                      gdi_.CreateCompatibleBitmap(gdi_.WindowContext(), kFrameWidth, kFrameHeight));
    std::vector<ContextHandle> pictures;
    for (const Sprite& sprite : scene_) pictures.push_back(Picture(sprite.image));
    Measure(
        "quendle raster, window path",
        [&] {
          for (std::size_t i = 0; i < scene_.size(); ++i) {
            gdi_.TransparentBlt(back, scene_[i].to, scene_[i].size, pictures[i], scene_[i].from,
                                kKey);
          }
        },
        [&] { return gdi_.BitmapOf(back)->Pixels(); });
  }

  void Surfaces() {
    if (direct_draw_.Create() != DrawStatus::kOk) std::exit(1);
    const SurfaceRef off_screen = direct_draw_.CreateSurface(kFrameWidth, kFrameHeight);
    std::vector<SurfaceRef> pictures;
    for (const Sprite& sprite : scene_) pictures.push_back(PictureSurface(sprite.image));
    const auto frame = [&] {
      for (std::size_t i = 0; i < scene_.size(); ++i) {
        const Sprite& s = scene_[i];
        const Rect to{s.to.x, s.to.y, s.to.x + s.size.width, s.to.y + s.size.height};
        const Rect from{s.from.x, s.from.y, s.from.x + s.size.width, s.from.y + s.size.height};
        if (off_screen->Blt(to, *pictures[i], from, kBltWaitKeySource) != DrawStatus::kOk) {
          std::exit(1);
        }
      }
    };
    const ContextHandle context = off_screen->GetDC();
    const auto bitmap = gdi_.BitmapOf(context);
    std::ignore = off_screen->ReleaseDC(context);
    Measure("quendle raster, surfaces", frame, [&] { return bitmap->Pixels(); });
  }

 private:
  ContextHandle Picture(const std::string& name) {
    ContextHandle& context = contexts_[name];
    if (context == 0) {
      context = gdi_.CreateCompatibleDC(0);
      gdi_.SelectObject(context, gdi_.LoadImageA(name + ".bmp"));
    }
    return context;
  }

  SurfaceRef PictureSurface(const std::string& name) {
    SurfaceRef& surface = surfaces_[name];
    if (surface) return surface;
    const auto bitmap = gdi_.BitmapOf(Picture(name));
    if (!bitmap) std::exit(1);
    surface = direct_draw_.CreateSurface(bitmap->Width(), bitmap->Height());
    const ContextHandle context = surface->GetDC();
    gdi_.BitBlt(context, {0, 0}, bitmap->GetSize(), Picture(name), {0, 0}, RasterOp::kCopy);
    std::ignore = surface->ReleaseDC(context);
    std::ignore = surface->SetColorKey(kColorKeySourceBlt, kSurfaceKey, kSurfaceKey);
    return surface;
  }

  InputFiles files_;
  std::vector<Sprite> scene_;
  Faults faults_;
  RasterScreen screen_;
  RasterGdi gdi_{files_, screen_, faults_};
  RasterDirectDraw direct_draw_{gdi_, screen_, faults_};
  std::map<std::string, ContextHandle> contexts_;
  std::map<std::string, SurfaceRef> surfaces_;
};

}  // namespace
}  // namespace quendle

int main() {
  const char* scratch = std::getenv("PEERS_TMP");
  quendle::Bench bench((scratch != nullptr ? std::string(scratch) : "/tmp/perf") + "/data/");
  bench.Surfaces();
  bench.Window();
  return 0;
}
