// The game itself. One source serves both editions; QUENDLE_EDITION tells them apart.

#include "backends/desktop/DesktopBackend.h"
#include "backends/desktop/RunOnDesktop.h"
#include "backends/files/ContentHash.h"
#include "diagnostics/Debomb_Window.h"
#include "shell/Application.h"
#include "shell/AuthorMode.h"

namespace {

using quendle::Application;
using quendle::AuthorMode;
using quendle::Debomb_Window;
using quendle::DesktopBackend;

constexpr std::int16_t kEdition = QUENDLE_EDITION;

// What shows something of the running game lets go of it before the game goes.
class Onlookers {
 public:
  Onlookers(DesktopBackend& backend, Application& application)
      : backend_(backend), application_(application), author_(application) {
    backend_.SetCaptionSource(&application_.Captions());
    if (!backend_.WantsDebug()) return;
    application_.SetDebugWindow(&debug_window_);
    backend_.ShowBeside(&debug_window_);
    backend_.SetAuthorSource(&author_);
  }
  ~Onlookers() {
    backend_.SetAuthorSource(nullptr);
    backend_.ShowBeside(nullptr);
    application_.SetDebugWindow(nullptr);
    backend_.SetCaptionSource(nullptr);
  }
  Onlookers(const Onlookers&) = delete;
  Onlookers& operator=(const Onlookers&) = delete;

 private:
  DesktopBackend& backend_;
  Application& application_;
  AuthorMode author_;
  Debomb_Window debug_window_;
};

int Play(DesktopBackend& backend) {
  Application application(backend.GetPorts(), kEdition, backend.BaseDirectory());
  application.SetForgiving(true);
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
