#include "backends/desktop/DesktopBackend.h"

#include <iostream>
#include <random>
#include <utility>

#include "base/FatalError.h"

namespace quendle {
namespace {

std::uint64_t FreshSeed() {
  std::random_device device;
  return std::uint64_t{device()} << 32 | device();
}

// Without content a box is still shown; nothing is read then.
DiskFolders DiskFoldersOf(const GameFolders& folders) {
  return {folders.content.empty() ? "/nonexistent" : folders.content, folders.user,
          folders.fallback};
}

}  // namespace

DesktopBackend::DesktopBackend(const std::string& program, const GameOptions& options,
                               GameFolders folders, Clock* clock)
    : folders_(std::move(folders)),
      wants_debug_(options.debug),
      tester_(options.tester),
      clock_(tester_            ? static_cast<Clock&>(step_clock_)
             : clock != nullptr ? *clock
                                : real_clock_),
      loop_(tester_ ? DesktopEventLoop(step_clock_) : DesktopEventLoop(clock_)),
      seed_(FreshSeed()),
      random_(seed_),
      files_(DiskFoldersOf(folders_), faults_),
      gdi_(files_, screen_, faults_),
      direct_draw_(gdi_, screen_, faults_),
      display_modes_(faults_),
      filter_graphs_(files_, clock_),
      font_files_(FontFinder::SystemFolders()),
      fonts_(font_files_),
      text_(fonts_),
      painter_(text_),
      forms_(loop_, painter_),
      caption_setting_(files_, folders_.content),
      captions_(text_, clock_, caption_setting_),
      window_(
          std::make_shared<DesktopWindow>(options.window, screen_, gdi_.WindowContext(), painter_)),
      picture_saver_(files_),
      boxes_(loop_, *window_, painter_, text_, picture_loader_),
      system_(LockFileOf(program, folders_.fallback), [this] { Beep(); }),
      ports_{files_, clock_,       loop_.Timers(),  random_,        boxes_,
             gdi_,   direct_draw_, display_modes_,  filter_graphs_, *window_,
             forms_, system_,      picture_loader_, picture_saver_} {
  if (!library_.HasVideo()) {
    throw FatalError("no display can be opened: " + library_.Problem());
  }
  // What is heard drifts from any clock: a recording must not depend on it.
  if (tester_ || clock != nullptr) filter_graphs_.GoByClockAlone();
  loop_.Add(window_);
  captions_.SetOn(options.captions.value_or(caption_setting_.Read()));
  window_->AddLayer(captions_);
  window_->AddLayer(author_);
  window_->BeforeShow([this] { forms_.ShowFormInView(); });
}

bool DesktopBackend::TellWhatIsMissing(const std::string& product) {
  if (!text_.HasFont()) {
    std::string text = "No font was found. Please install Arial or Liberation Sans.\n";
    for (const auto& folder : font_files_.Folders()) text += "\n" + folder.string();
    ShowSystemBox(product, text, {"OK"});
    return false;
  }
  if (folders_.content.empty()) {
    std::cerr << ContentMissingText(folders_) << "\n";
    boxes_.MessageBox(product, ContentMissingText(folders_));
    return false;
  }
  return true;
}

void DesktopBackend::ShowBeside(const TextSource* text) {
  beside_.reset();
  if (text == nullptr) return;
  beside_ = std::make_shared<DebugWindow>(text_, *text);
  loop_.Add(beside_);
}

void DesktopBackend::Run() {
  loop_.Run([] { return false; });
}

void DesktopBackend::ShowFatal(const std::string& product, const std::string& text) {
  boxes_.MessageBox(product, text);
}

void DesktopBackend::Beep() {
  window_->Beep();
  forms_.Flash();
}

}  // namespace quendle
