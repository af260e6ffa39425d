#include "backends/headless/HeadlessBackend.h"

namespace quendle {

HeadlessBackend::HeadlessBackend(FileSystem& files, Faults& platform_faults, std::uint64_t seed)
    : faults(platform_faults),
      random(seed),
      gdi(files, screen, faults),
      direct_draw(gdi, screen, faults),
      display_modes(faults),
      filter_graphs(files, clock, faults),
      window(gdi, screen, faults),
      picture_saver(files),
      ports{files, clock,       timers,         random,        boxes,
            gdi,   direct_draw, display_modes,  filter_graphs, window,
            forms, system,      picture_loader, picture_saver} {}

void HeadlessBackend::Tick(Milliseconds time, const Deliver& deliver, const Fired& fired) {
  const Milliseconds end = clock.Monotonic() + time;
  Milliseconds due{0};
  bool running = true;
  while (running && timers.NextDue(due) && due <= end) {
    clock.AdvanceTo(due);
    std::string callback;
    running = deliver([&] { timers.FireNext(clock.Monotonic(), callback); });
    if (fired && !callback.empty()) fired(callback);
  }
  if (running) clock.AdvanceTo(end);
}

}  // namespace quendle
