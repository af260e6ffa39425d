#include "backends/desktop/DesktopBoxes.h"

#include <SDL.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>

#include "backends/desktop/FormWindow.h"
#include "backends/desktop/NativeChooser.h"
#include "backends/forms/FileListing.h"
#include "backends/forms/PictureChooser.h"
#include "base/Text.h"

namespace quendle {
namespace {

// What stood over the frame before comes back when a box goes, by whatever way.
class Overlay {
 public:
  Overlay(DesktopWindow& window, FormInput& input) : window_(window), before_(window.Overlay()) {
    window_.SetOverlay(&input);
  }
  ~Overlay() { window_.SetOverlay(before_); }
  Overlay(const Overlay&) = delete;
  Overlay& operator=(const Overlay&) = delete;

 private:
  DesktopWindow& window_;
  FormInput* before_;
};

// Stands for a window of another program that all input is left to.
class Deaf : public SdlEventTarget {
 public:
  std::uint32_t WindowId() const override { return 0; }
  void HandleInput(const SDL_Event&) override {}
  void HandleUpkeep(const SDL_Event&) override {}
  void Settle() override {}
  void HandleQuit() override {}
};

// Something that is looked after while a form stands.
class Ticker {
 public:
  Ticker(TimerService& timers, const std::function<void()>& work)
      : timers_(timers), id_(timers.SetTimer(kTick, "DesktopBoxes", [work](int) { work(); })) {}
  ~Ticker() { timers_.KillTimer(id_); }
  Ticker(const Ticker&) = delete;
  Ticker& operator=(const Ticker&) = delete;

 private:
  static constexpr Milliseconds kTick{50};
  TimerService& timers_;
  int id_;
};

}  // namespace

void DesktopBoxes::MessageBox(const std::string& title, const std::string& text) {
  BoxForm box({title, text, {"ok"}, 0, false}, text_);
  Ask(box);
}

bool DesktopBoxes::YesNoBox(const std::string& title, const std::string& text) {
  BoxForm box({title, text, {"yes", "no"}, 1, false}, text_);
  return Ask(box) == 0;
}

std::string DesktopBoxes::InputBox(const std::string& title, const std::string& prompt) {
  return AskForText(title, prompt);
}

std::string DesktopBoxes::ChooseFile(const std::string& title,
                                     const std::vector<FileFilter>& filters) {
  if (folder_.empty()) folder_ = PicturesFolder().string();
  std::string path;
  if (!ChooseNatively(title, filters, path)) path = ChooseInOwnForm(title, filters);
  if (!path.empty()) folder_ = std::filesystem::path(path).parent_path().string();
  return path;
}

// Our own windows are drawn while the desktop's chooser stands, but take no input.
bool DesktopBoxes::ChooseNatively(const std::string& title, const std::vector<FileFilter>& filters,
                                  std::string& path) {
  NativeChooser chooser(title, filters, folder_);
  bool running = chooser.IsRunning();
  if (running) {
    Deaf deaf;
    DesktopEventLoop::Modal modal(loop_, deaf);
    Ticker ticker(loop_.Timers(), [&] { running = chooser.IsRunning(); });
    loop_.Run([&] { return !running; });
  }
  path = chooser.Answer();
  return chooser.Served();
}

std::string DesktopBoxes::ChooseInOwnForm(const std::string& title,
                                          const std::vector<FileFilter>& filters) {
  const std::string patterns = filters.empty() ? "*" : filters.front().pattern;
  PictureChooser chooser(title, patterns, folder_, loader_);
  FormInput input(chooser.Record(), chooser);
  const bool stood = text_.HasFont() && Stand(
                                            input, [&] { return chooser.Answer().has_value(); },
                                            [&] { return chooser.ReadNextPicture(); });
  return stood ? *chooser.Answer() : "";
}

std::string DesktopBoxes::AskForText(const std::string& title, const std::string& prompt) {
  BoxForm box({title, prompt, {"ok", "cancel"}, 1, true}, text_);
  const bool given = Ask(box) == 0;
  // Who asks until there is an answer must not keep the player in.
  if (box.Closed() && window_.IsOpen()) window_.CloseByPlayer();
  return given ? box.Typed() : "";
}

int DesktopBoxes::Ask(BoxForm& box) {
  FormInput input(box.Record(), box);
  // The character of the key that brought the box up isn't meant for it.
  SDL_FlushEvent(SDL_TEXTINPUT);
  const auto done = [&] { return box.Answer().has_value(); };
  const bool drawable = window_.IsOpen() || text_.HasFont();
  if (!drawable || !Stand(input, done, {})) {
    const BoxForm::Plan& asked = box.Asked();
    return ShowSystemBox(asked.title, asked.text, asked.buttons);
  }
  return *box.Answer();
}

bool DesktopBoxes::Stand(FormInput& input, const std::function<bool()>& done,
                         const std::function<bool()>& each_tick) {
  std::optional<Ticker> ticker;
  if (window_.IsOpen()) {
    Overlay overlay(window_, input);
    DesktopEventLoop::Modal modal(loop_, window_);
    if (each_tick) ticker.emplace(loop_.Timers(), [&] { each_tick(); });
    loop_.Run(done);
    return true;
  }
  // A form that was put on screen in the same event comes first, or it would cover the box.
  loop_.Settle();
  auto own = std::make_shared<FormWindow>(painter_, loop_.WindowInUse());
  if (!own->Show(&input)) return false;
  loop_.Add(own);
  DesktopEventLoop::Modal modal(loop_, *own);
  if (each_tick) {
    ticker.emplace(loop_.Timers(), [&] {
      if (each_tick()) own->Refresh();
    });
  }
  loop_.Run(done);
  return true;
}

int ShowSystemBox(const std::string& title, const std::string& text,
                  const std::vector<std::string>& buttons) {
  std::vector<SDL_MessageBoxButtonData> choices;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    Uint32 flags = 0;
    if (i == 0) flags |= SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT;
    if (i + 1 == buttons.size()) flags |= SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT;
    choices.push_back({flags, static_cast<int>(i), buttons[i].c_str()});
  }
  std::string title_text = ToUtf8(title);
  std::string body = ToUtf8(text);
  SDL_MessageBoxData data{SDL_MESSAGEBOX_INFORMATION,
                          nullptr,
                          title_text.c_str(),
                          body.c_str(),
                          static_cast<int>(choices.size()),
                          choices.data(),
                          nullptr};
  int pressed = static_cast<int>(buttons.size()) - 1;
  if (SDL_ShowMessageBox(&data, &pressed) != 0) {
    std::fprintf(stderr, "%s: %s\n", title_text.c_str(), body.c_str());
    return static_cast<int>(buttons.size()) - 1;
  }
  return pressed < 0 ? static_cast<int>(buttons.size()) - 1 : pressed;
}

}  // namespace quendle
