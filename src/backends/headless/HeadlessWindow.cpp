#include "backends/headless/HeadlessWindow.h"

#include <utility>

#include "backends/raster/RasterGdi.h"
#include "backends/raster/RasterScreen.h"

namespace quendle {
namespace {

std::intptr_t DefaultProc(int, unsigned, std::intptr_t, std::intptr_t) { return 0; }

}  // namespace

HeadlessWindow::HeadlessWindow(RasterGdi& gdi, RasterScreen& screen, Faults& faults)
    : gdi_(gdi), screen_(screen), faults_(faults), proc_(DefaultProc) {}

void HeadlessWindow::Show(GameWindowEvents& events) {
  events_ = &events;
  events.Load();
}

ContextHandle HeadlessWindow::DrawingContext() { return gdi_.WindowContext(); }

std::optional<WindowProc> HeadlessWindow::ReplaceWindowProc(WindowProc proc) {
  if (faults_.Fails("ReplaceWindowProc")) return std::nullopt;
  return std::exchange(proc_, std::move(proc));
}

void HeadlessWindow::SendMessageA(unsigned message, std::intptr_t w, std::intptr_t l) {
  const WindowProc proc = proc_;  // the procedure may close the window, which drops it
  proc(kHandle, message, w, l);
}

Point HeadlessWindow::ClientToScreen() { return screen_.ClientOrigin(); }

void HeadlessWindow::Close() {
  events_ = nullptr;
  proc_ = DefaultProc;
}

bool HeadlessWindow::Click(double x, double y, MouseButton button) {
  if (!IsOpen()) return false;
  events_->MouseDown(static_cast<int>(button), 0, x, y);
  return true;
}

bool HeadlessWindow::Move(double x, double y) {
  if (!IsOpen()) return false;
  events_->MouseMove(0, 0, x, y);
  return true;
}

bool HeadlessWindow::Key(int code) {
  if (!IsOpen()) return false;
  events_->KeyPress(code);
  return true;
}

bool HeadlessWindow::Focus(bool on) {
  if (!IsOpen()) return false;
  SendMessageA(kActivateAppMessage, on ? 1 : 0, 0);
  return true;
}

bool HeadlessWindow::CloseByPlayer() {
  if (!IsOpen()) return false;
  events_->Unload();
  return true;
}

}  // namespace quendle
