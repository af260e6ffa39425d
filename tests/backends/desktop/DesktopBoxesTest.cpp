#include "backends/desktop/DesktopBoxes.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include "backends/desktop/DesktopClock.h"
#include "backends/desktop/DesktopFormHost.h"
#include "backends/desktop/FontFinder.h"
#include "backends/desktop/SdlFonts.h"
#include "backends/desktop/SdlLibrary.h"
#include "backends/raster/RasterScreen.h"

namespace quendle {
namespace {

class NoPictures : public PictureLoader {
 public:
  LoadedPicture LoadPicture(const std::string&, PictureLimit) override { return {nullptr, "none"}; }
};

class DroppedFiles : public FormEvents {
 public:
  bool TakesDrops() const override { return welcome; }
  void Drop(const std::string& native_path) override { paths.push_back(native_path); }
  void PointerOverForm() override {}
  void PointerOver(Control&) override {}
  void Press(Control&, Point) override {}
  void Key(FormKey) override { ++keys; }
  void QueryClose() override {}
  std::vector<std::string> paths;
  int keys = 0;
  bool welcome = true;
};

// Runs on the library's driver without a display, with the fonts of the system.
class DesktopBoxesTest : public ::testing::Test {
 protected:
  DesktopBoxesTest() {
    for (Form* form : {&first_, &second_}) {
      form->size = {300, 200};
      form->name = form->caption = form == &first_ ? "first" : "second";
      forms_.Add(*form, events_);
    }
    loop_.Add(window_);
    ShowOnly(first_);
    Pump();
    host_window_ = loop_.WindowInUse();
  }

  void ShowOnly(Form& shown) {
    for (Form* form : {&first_, &second_}) form->visible = form->enabled = form == &shown;
  }
  void Pump() {
    bool done = false;
    const int timer = loop_.Timers().SetTimer(Milliseconds(10), "end", [&](int) { done = true; });
    loop_.Run([&] { return done; });
    loop_.Timers().KillTimer(timer);
  }
  // Carries something out while the next box stands, and then answers it.
  void WhileABoxStands(const std::function<void()>& look) {
    int id = 0;
    id = loop_.Timers().SetTimer(Milliseconds(10), "look", [this, look, &id](int) {
      loop_.Timers().KillTimer(id);
      look();
      Key(SDLK_RETURN);
    });
    boxes_.MessageBox("Title", "Text");
  }
  void Key(SDL_Keycode code) { KeyTo(loop_.WindowInUse(), code); }
  static void KeyTo(std::uint32_t window, SDL_Keycode code) {
    SDL_Event event{};
    event.type = SDL_KEYDOWN;
    event.key.windowID = window;
    event.key.keysym.sym = code;
    SDL_PushEvent(&event);
  }
  // A file let go over a window.
  static void DropOn(std::uint32_t window, const std::string& path) {
    SDL_Event event{};
    event.type = SDL_DROPFILE;
    event.drop.windowID = window;
    event.drop.file = SDL_strdup(path.c_str());
    SDL_PushEvent(&event);
  }
  std::string TitleOf(std::uint32_t window) {
    return SDL_GetWindowTitle(SDL_GetWindowFromID(window));
  }

  SdlLibrary library_;
  DesktopClock clock_;
  DesktopEventLoop loop_{clock_};
  SdlFonts fonts_{FontFinder(FontFinder::SystemFolders())};
  TextPainter text_{fonts_};
  FormPainter painter_{text_};
  RasterScreen screen_;
  Form first_;
  Form second_;
  DroppedFiles events_;
  DesktopFormHost forms_{loop_, painter_};
  std::shared_ptr<DesktopWindow> window_ = std::make_shared<DesktopWindow>(
      WindowOptions{false, ScaleMode::kSharp}, screen_, 7, painter_);
  NoPictures loader_;
  DesktopBoxes boxes_{loop_, *window_, painter_, text_, loader_};
  std::uint32_t host_window_ = 0;
};

// Otherwise the form would be raised over the box, and a player sees neither it nor why nothing
// answers.
TEST_F(DesktopBoxesTest, AFormShownInTheSameEventIsThereBeforeTheBox) {
  ShowOnly(second_);
  std::string seen = "no box came";
  std::function<void(const SDL_Event&)> note = [&](const SDL_Event& event) {
    const bool box_shown = event.type == SDL_WINDOWEVENT &&
                           event.window.event == SDL_WINDOWEVENT_SHOWN &&
                           event.window.windowID != host_window_;
    if (box_shown) seen = TitleOf(host_window_);
  };
  const SDL_EventFilter watch = [](void* data, SDL_Event* event) {
    (*static_cast<std::function<void(const SDL_Event&)>*>(data))(*event);
    return 1;
  };
  SDL_AddEventWatch(watch, &note);
  WhileABoxStands([] {});
  SDL_DelEventWatch(watch, &note);
  EXPECT_EQ(seen, "second");
}

TEST_F(DesktopBoxesTest, WhileABoxStandsItsWindowIsInUseAndThenTheOneBefore) {
  std::uint32_t meanwhile = 0;
  WhileABoxStands([&] { meanwhile = loop_.WindowInUse(); });
  EXPECT_NE(meanwhile, 0u);
  EXPECT_NE(meanwhile, host_window_);
  EXPECT_EQ(loop_.WindowInUse(), host_window_);
}

// A press on the form behind may give the keyboard to its window.
TEST_F(DesktopBoxesTest, KeysAreTheBoxesWhicheverWindowHasTheKeyboard) {
  bool stood = false;
  int id = loop_.Timers().SetTimer(Milliseconds(10), "key", [&](int) {
    stood = true;
    KeyTo(host_window_, SDLK_RETURN);
  });
  boxes_.MessageBox("Title", "Text");
  loop_.Timers().KillTimer(id);
  EXPECT_TRUE(stood);
  EXPECT_EQ(events_.keys, 0);
  Key(SDLK_RETURN);
  Pump();
  EXPECT_EQ(events_.keys, 1) << "without a box they are the form's";
}

TEST_F(DesktopBoxesTest, AFileDroppedOnAFormReachesIt) {
  DropOn(host_window_, "/photos/child.jpg");
  Pump();
  EXPECT_EQ(events_.paths, (std::vector<std::string>{"/photos/child.jpg"}));
}

TEST_F(DesktopBoxesTest, WindowsShowThatFilesMayBeDroppedOnlyWhereAFormTakesThem) {
  const auto accepted = [] { return SDL_EventState(SDL_DROPFILE, SDL_QUERY) == SDL_ENABLE; };
  EXPECT_TRUE(accepted());
  bool meanwhile = true;
  WhileABoxStands([&] {
    loop_.Settle();
    meanwhile = accepted();
  });
  EXPECT_FALSE(meanwhile) << "a message takes none";
  Pump();
  EXPECT_TRUE(accepted());
  events_.welcome = false;
  Pump();
  EXPECT_FALSE(accepted());
  DropOn(host_window_, "/photos/child.jpg");
  Pump();
  EXPECT_TRUE(events_.paths.empty());
  EXPECT_EQ(SDL_EventState(SDL_DROPTEXT, SDL_QUERY), SDL_DISABLE);
}

TEST_F(DesktopBoxesTest, AFileDroppedOnAFormBehindABoxIsLeftAlone) {
  WhileABoxStands([&] {
    DropOn(host_window_, "/photos/child.jpg");
    DropOn(loop_.WindowInUse(), "/photos/child.jpg");
    Pump();
  });
  Pump();
  EXPECT_TRUE(events_.paths.empty());
}

}  // namespace
}  // namespace quendle
