#include "shell/Application.h"

#include <new>
#include <utility>

#include "base/ProcessEnds.h"
#include "base/Watch.h"
#include "diagnostics/TestingObject.h"
#include "dialogs/FormServices.h"
#include "logic/GameLogicLayer.h"
#include "platform/Boxes.h"
#include "platform/GameWindow.h"
#include "platform/TimerService.h"
#include "shell/GameRun.h"
#include "shell/Quendle_Game_Screen.h"
#include "shell/TandrelPrompt.h"

namespace quendle {
namespace {

constexpr int kFaultLevel = 1;

// What the player or the author reads: the fault, and where it happened as far as that is known.
std::string ComposeBox(const FatalError& error, const FaultReport& fault) {
  if (error.BoxText() != error.what()) return error.BoxText();
  std::string text = FatalError(fault.text, fault.place).what();
  if (!fault.object.empty()) text += "\nObject: " + fault.object;
  if (!fault.message.empty()) text += "\nIn work: " + fault.message;
  return text;
}

}  // namespace

Application::Application(Ports& ports, std::int16_t edition, std::string base_directory)
    : ports_(ports), content_(ports.files, settings_) {
  settings_.BaseDirectory = std::move(base_directory);
  GameStarter& starter = *this;
  prompt_ = std::make_unique<TandrelPrompt>(
      FormServices{ports.forms, ports.system, content_, settings_}, ports, starter, edition);
}

Application::~Application() = default;

Application::Status Application::Start() {
  return Deliver([this] { prompt_->Load(); });
}

Application::Status Application::Deliver(const std::function<void()>& work) {
  if (status_ != Status::kRunning) return status_;
  if (delivering_) {
    // From the message loop of a box: what it throws is for the frame that showed the box.
    work();
    return status_;
  }
  delivering_ = true;
  try {
    try {
      work();
    } catch (const ProcessEnds& end) {
      status_ = Status::kEnded;
      if (end.shut_down_game && globals_ != nullptr)
        EndGameInOrder();
      else if (globals_ != nullptr)
        GiveDisplayBack();
    }
  } catch (const FatalError& error) {
    ReportFault(error);
  } catch (const std::bad_alloc&) {
    ReportFault(FatalError("there is not enough memory"));
  } catch (const std::exception& error) {
    ReportFault(FatalError(std::string("an unexpected fault: ") + error.what()));
  }
  delivering_ = false;
  return status_;
}

void Application::OpenGameWindow() {
  globals_ = std::make_unique<Globals>(settings_, ports_, content_);
  if (tester_) globals_->Tester = std::make_unique<TesterRun>(globals_->objects, *tester_);
  globals_->forgiving = forgiving_;
  globals_->media.UseDirectX = true;
  globals_->media.FullScreen = true;
  globals_->debug_window = debug_window_;
  SetTracer(tracer_);
  SetBlitWatcher(blit_watcher_);
  screen_ = std::make_unique<Quendle_Game_Screen>(*globals_, prompt_->Files());
  ports_.window.Show(*screen_);
}

void Application::EndGameInOrder() {
  ShutDownGame(*globals_, prompt_->Files());
  ports_.window.Close();
}

void Application::ReportFault(const FatalError& error) {
  status_ = Status::kFailed;
  fault_.text = error.Text();
  fault_.place = error.Place();
  if (globals_ != nullptr) {
    WorkDepth& depth = globals_->watch.depth;
    if (fault_.place.file.empty()) fault_.place = depth.FailedPlace();
    fault_.object = depth.FailedObject();
    fault_.message = depth.FailedText();
    globals_->objects.GameActive = false;
  }
  // The run is over: nothing of it may act while the box stands, also not a game's own timer, which
  // doesn't ask for the focus.
  for (const TimerInfo& timer : ports_.timers.Running()) ports_.timers.KillTimer(timer.id);
  fault_.box_text = ComposeBox(error, fault_);
  if (globals_ != nullptr) {
    NoteFailedStart(*globals_, error.what());
    if (globals_->EventLog != nullptr) {
      globals_->EventLog->LogEvent("Fatal: " + fault_.box_text, kFaultLevel, "General");
    }
    GiveDisplayBack();
  }
  ports_.boxes.MessageBox(settings_.ProductName, fault_.box_text);
}

void Application::GiveDisplayBack() {
  ReleaseDisplay(*globals_);
  ports_.window.ShowPointer(true);
}

void Application::SetTracer(Tracer* tracer) {
  tracer_ = tracer;
  if (globals_ != nullptr) globals_->watch.tracer = tracer;
}

void Application::SetDebugWindow(Debomb_Window* window) {
  debug_window_ = window;
  if (globals_ == nullptr) return;
  globals_->debug_window = window;
  if (globals_->EventLog != nullptr) globals_->EventLog->SetMirror(window);
}

void Application::SetBlitWatcher(BlitWatcher* watcher) {
  blit_watcher_ = watcher;
  if (globals_ != nullptr) globals_->objects.blit_watcher = watcher;
}

}  // namespace quendle
