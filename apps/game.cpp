// The game itself. One source serves both editions; QUENDLE_EDITION tells them apart.

#include "backends/desktop/DesktopBackend.h"
#include "backends/desktop/RunOnDesktop.h"
#include "backends/files/ContentHash.h"
#include "shell/Application.h"

namespace {

using quendle::Application;
using quendle::DesktopBackend;

constexpr std::int16_t kEdition = QUENDLE_EDITION;

// What shows something of the running game lets go of it before the game goes.
class Onlookers {
 public:
  Onlookers(DesktopBackend& backend, Application& application) : backend_(backend) {
    backend_.SetCaptionSource(&application.Captions());
  }
  ~Onlookers() { backend_.SetCaptionSource(nullptr); }
  Onlookers(const Onlookers&) = delete;
  Onlookers& operator=(const Onlookers&) = delete;

 private:
  DesktopBackend& backend_;
};

int Play(DesktopBackend& backend) {
  Application application(backend.GetPorts(), kEdition, backend.BaseDirectory());
  const Onlookers onlookers(backend, application);
  if (backend.Tester()) {
    application.SetTester({*backend.Tester(), backend.Seed(),
                           [&backend] { return quendle::HashOfContent(backend.BaseDirectory()); }});
  }
  application.Start();
  application.Deliver([&backend] { backend.Run(); });
  return application.GetStatus() == Application::Status::kFailed ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  const bool sibling = kEdition == 1;
  const quendle::ProgramInfo info{sibling ? "tandrel" : "wumbly", sibling ? "Tandrel" : "Wumbly",
                                  QUENDLE_VERSION " (" QUENDLE_BUILD ")"};
  return quendle::RunOnDesktop(info, argc, argv, Play);
}
