#include "backends/desktop/DesktopWindow.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include "backends/desktop/DesktopClock.h"
#include "backends/desktop/FontFinder.h"
#include "backends/desktop/SdlFonts.h"
#include "backends/desktop/SdlLibrary.h"
#include "backends/raster/RasterScreen.h"

namespace quendle {
namespace {

using Log = std::vector<std::string>;

class Recorder : public GameWindowEvents {
 public:
  void Load() override { log.push_back("load"); }
  void Unload() override { log.push_back("unload"); }
  void KeyPress(int code) override { log.push_back("key " + std::to_string(code)); }
  void MouseDown(int button, int shift, double x, double y) override {
    log.push_back("down " + std::to_string(button) + " " + std::to_string(shift) + " " + At(x, y));
  }
  void MouseMove(int button, int, double x, double y) override {
    log.push_back("move " + std::to_string(button) + " " + At(x, y));
  }
  Log Take() { return std::exchange(log, {}); }
  Log log;

 private:
  static std::string At(double x, double y) {
    return std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y));
  }
};

// Runs on the library's driver without a display; events are put into the library's queue.
class DesktopWindowTest : public ::testing::Test {
 protected:
  DesktopWindowTest() {
    loop_.Add(window_);
    window_->Show(events_);
    Pump();
    events_.Take();
  }

  void Pump() {
    bool done = false;
    int timer = loop_.Timers().SetTimer(Milliseconds(10), "done", [&](int) { done = true; });
    loop_.Run([&] { return done; });
    loop_.Timers().KillTimer(timer);
  }
  void Send(SDL_Event event) {
    SDL_PushEvent(&event);
    Pump();
  }
  void SendKey(SDL_Keycode code, Uint16 mod = 0) {
    SDL_Event event{};
    event.type = SDL_KEYDOWN;
    event.key.windowID = window_->WindowId();
    event.key.keysym.sym = code;
    event.key.keysym.mod = mod;
    Send(event);
  }
  void SendWindow(Uint8 kind) {
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.windowID = window_->WindowId();
    event.window.event = kind;
    Send(event);
  }
  SDL_Event Motion(int x, int y) const {
    SDL_Event event{};
    event.type = SDL_MOUSEMOTION;
    event.motion.windowID = window_->WindowId();
    event.motion.x = x;
    event.motion.y = y;
    return event;
  }
  SDL_Event Button(Uint32 type, Uint8 button, int x, int y) const {
    SDL_Event event{};
    event.type = type;
    event.button.windowID = window_->WindowId();
    event.button.button = button;
    event.button.x = x;
    event.button.y = y;
    return event;
  }

  SdlLibrary library_;
  DesktopClock clock_;
  DesktopEventLoop loop_{clock_};
  SdlFonts fonts_{FontFinder({})};
  TextPainter text_{fonts_};
  FormPainter painter_{text_};
  RasterScreen screen_;
  Recorder events_;
  std::shared_ptr<DesktopWindow> window_ = std::make_shared<DesktopWindow>(
      WindowOptions{false, ScaleMode::kSharp}, screen_, 7, painter_);
};

TEST_F(DesktopWindowTest, EscapeIsTheCharacter27) {
  SendKey(SDLK_ESCAPE);
  EXPECT_EQ(events_.Take(), (Log{"key 27"}));
}

TEST_F(DesktopWindowTest, AltEnterSwitchesFullScreenAndIsNoKeyOfTheGame) {
  SDL_Window* window = SDL_GetWindowFromID(window_->WindowId());
  SendKey(SDLK_RETURN, KMOD_LALT);
  EXPECT_EQ(SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN_DESKTOP,
            Uint32{SDL_WINDOW_FULLSCREEN_DESKTOP});
  SendKey(SDLK_RETURN, KMOD_LALT);
  EXPECT_EQ(SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN, 0u);
  EXPECT_TRUE(events_.Take().empty());
}

TEST_F(DesktopWindowTest, AnyButtonIsSentWithItsNumber) {
  SDL_SetWindowSize(SDL_GetWindowFromID(window_->WindowId()), 800, 600);
  Pump();
  events_.Take();
  Send(Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 12, 34));
  Send(Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_RIGHT, 799, 599));
  Send(Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_RIGHT, 799, 599));
  EXPECT_EQ(events_.Take(), (Log{"down 1 0 12,34", "down 2 0 799,599"}));
}

TEST_F(DesktopWindowTest, OfMovesThatQueueUpTheLastIsSent) {
  SDL_SetWindowSize(SDL_GetWindowFromID(window_->WindowId()), 800, 600);
  Pump();
  events_.Take();
  for (int x : {10, 20, 30}) {
    SDL_Event event = Motion(x, 5);
    SDL_PushEvent(&event);
  }
  Pump();
  EXPECT_EQ(events_.Take(), (Log{"move 0 30,5"}));
}

TEST_F(DesktopWindowTest, ChangesOfFocusGoThroughTheCurrentWindowProcedure) {
  Log messages;
  auto before = window_->ReplaceWindowProc(
      [&](int window, unsigned message, std::intptr_t w, std::intptr_t) -> std::intptr_t {
        messages.push_back(std::to_string(window == window_->Handle()) + " " +
                           std::to_string(message) + " " + std::to_string(w));
        return 0;
      });
  EXPECT_TRUE(before.has_value());
  SendWindow(SDL_WINDOWEVENT_FOCUS_GAINED);
  EXPECT_TRUE(messages.empty()) << "the game begins as active";
  SendWindow(SDL_WINDOWEVENT_FOCUS_LOST);
  SendWindow(SDL_WINDOWEVENT_MINIMIZED);
  SendWindow(SDL_WINDOWEVENT_FOCUS_GAINED);
  EXPECT_EQ(messages, (Log{"1 28 0", "1 28 1"}));
  window_->ReplaceWindowProc(*before);
  SendWindow(SDL_WINDOWEVENT_FOCUS_LOST);
  EXPECT_EQ(messages.size(), 2u);
}

// A page that the game opened need not take the focus away.
TEST_F(DesktopWindowTest, APressWakesAGameThatHasPausedItself) {
  Log messages;
  window_->ReplaceWindowProc([&](int, unsigned, std::intptr_t w, std::intptr_t) -> std::intptr_t {
    messages.push_back(std::to_string(w));
    return 0;
  });
  window_->SendMessageA(kActivateAppMessage, 0, 0);
  SendWindow(SDL_WINDOWEVENT_FOCUS_LOST);
  EXPECT_EQ(messages, (Log{"0"})) << "told once";
  Send(Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 12, 34));
  Send(Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 12, 34));
  EXPECT_EQ(messages, (Log{"0", "1"}));
}

TEST_F(DesktopWindowTest, ClosingTheWindowUnloads) {
  SendWindow(SDL_WINDOWEVENT_CLOSE);
  EXPECT_EQ(events_.Take(), (Log{"unload"}));
}

TEST_F(DesktopWindowTest, ASignalToEndUnloads) {
  SDL_Event event{};
  event.type = SDL_QUIT;
  Send(event);
  EXPECT_EQ(events_.Take(), (Log{"unload"}));
}

TEST_F(DesktopWindowTest, ThePointerIsHiddenOnTheFrameWhileTheGameSaysSo) {
  window_->ShowPointer(false);
  EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
  window_->ShowPointer(true);
  EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
}

TEST_F(DesktopWindowTest, ABoxOverTheFrameTakesInputAndShowsThePointer) {
  class Nothing : public FormEvents {
   public:
    void PointerOverForm() override {}
    void PointerOver(Control&) override {}
    void Press(Control&, Point) override {}
    void Key(FormKey) override { ++keys; }
    void QueryClose() override {}
    int keys = 0;
  };
  Nothing logic;
  Form form;
  form.size = {200, 100};
  FormInput input(form, logic);
  window_->ShowPointer(false);
  window_->SetOverlay(&input);
  EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
  SendKey(SDLK_ESCAPE);
  EXPECT_EQ(logic.keys, 1);
  EXPECT_TRUE(events_.Take().empty());
  window_->SetOverlay(nullptr);
  EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
}

class Layer : public FrameLayer {
 public:
  bool TakeKey(FunctionKey key) override { return key == FunctionKey::kF2; }
  bool TakeWheel(int steps) override { return steps > 0; }
  const LayerContents* Update(const LayerView& view, bool anew) override {
    views.push_back(view);
    lost += anew ? 1 : 0;
    return nullptr;
  }
  std::vector<LayerView> views;
  int lost = 0;
};

TEST_F(DesktopWindowTest, AKeyForALayerIsNoKeyOfTheGame) {
  Layer layer;
  window_->AddLayer(layer);
  SendKey(SDLK_F2);
  SendKey(SDLK_ESCAPE);
  EXPECT_EQ(events_.Take(), (Log{"key 27"}));
  window_->Close();
}

TEST_F(DesktopWindowTest, ALayerSeesThePointerOnTheFrameWithEachFrame) {
  SDL_SetWindowSize(SDL_GetWindowFromID(window_->WindowId()), 800, 600);
  Pump();
  Layer layer;
  window_->AddLayer(layer);
  screen_.Present();
  EXPECT_EQ(layer.lost, 1) << "nothing is shown yet";
  Send(Motion(12, 34));
  layer.views.clear();
  screen_.Present();
  ASSERT_EQ(layer.views.size(), 1u);
  EXPECT_EQ(layer.views[0].pointer, (Point{12, 34}));
  EXPECT_EQ(layer.views[0].frame, (Rect{0, 0, 800, 600}));
  EXPECT_EQ(layer.lost, 1);
  window_->Close();
}

TEST_F(DesktopWindowTest, AfterCloseNothingArrives) {
  window_->Close();
  EXPECT_EQ(window_->WindowId(), 0u);
  screen_.Present();
  Pump();
  EXPECT_TRUE(events_.Take().empty());
}

}  // namespace
}  // namespace quendle
