#include "logic/GameLogicLayer.h"

#include <utility>

#include "base/ContentFiles.h"
#include "base/Numbers.h"
#include "base/PlayerFiles.h"
#include "base/Settings.h"
#include "base/Watch.h"
#include "logic/GameVerbs.h"
#include "logic/InputRecorder.h"
#include "media/DShowObj.h"
#include "media/Graphics.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "platform/Ports.h"
#include "platform/TimerService.h"
#include "screens/ScreenNames.h"
#include "script/ScriptWorld.h"

namespace quendle {
namespace {

constexpr int kAutosaveDraws = 1200;  // once a minute
constexpr std::int32_t kMusicVolume = -400;
// Deeper than a message of its own, an event comes from content.
constexpr int kDeepestInput = 1;

// Where the hot spot and the child's picture lie against the pointer's position.
constexpr Point kPointerOffset{16, 8};
constexpr Point kPersonOffset{82, 50};

void PlaceAt(const ObjectRef& object, std::int16_t x, std::int16_t y, Point offset) {
  if (object == nullptr) return;
  object->Setxpos(ToInt16(x - offset.x, "x of the pointer"));
  object->Setypos(ToInt16(y - offset.y, "y of the pointer"));
}

}  // namespace

GameLogicLayer::GameLogicLayer(ObjectWorld& world, GameHost& host) : world_(world), host_(host) {}

GameLogicLayer::~GameLogicLayer() {
  KillDrawTimer();
  back_buffer_.reset();
}

void GameLogicLayer::Initialize(ContextHandle window_context, const std::string& saved_game) {
  host_.ShowPointer(false);
  m_ptrScreenKeeper = std::make_unique<ScreenKeeper>(world_);
  m_ptrScreenKeeper->InitializeScreenKeeper("\\Info\\screens.txt", weak_from_this(),
                                            window_context);
  m_ptrScreenKeeper->SpareWhile([this](const GameObjectInterface& screen) {
    return &screen == m_ptrCurrentScreen.get() || &screen == m_ptrPreviousScreen.get();
  });
  back_buffer_.emplace(world_.media.ports.gdi, window_context, Size{kFrameWidth, kFrameHeight});
  ReadHelpMemory();
  m_ptrScreenKeeper->LoadGame(saved_game);
}

void GameLogicLayer::TurnOn() {
  m_ptrCurrentScreen = RequireScreen(std::string(kFirstScreenName));
  StartMusic();
  ObjectRef(m_ptrCurrentScreen)->TurnOn();
  m_ptrToolsScreen = RequireScreen(std::string(kToolsScreenName));
  ObjectRef(m_ptrToolsScreen)->TurnOn();
  m_strToolsState = "off";
  m_strCurrentCursor = kBareHand;
  m_ptrCursorsScreen = RequireScreen(std::string(kCursorsScreenName));
  ObjectRef(m_ptrCursorsScreen)->TurnOn();
  m_ptrPersonCursor = nullptr;
  if (world_.media.settings.PersonalizeOn) {
    m_ptrPersonCursor = world_.FindGlobalObject("personcursor");
    m_ptrCursorsScreen->AddChildObject(m_ptrPersonCursor);
  }
  m_ptrCursorObject = world_.FindGlobalObject(PointerNameOf(kBareHand));
  m_ptrCursorsScreen->AddChildObject(m_ptrCursorObject);
  ObjectWorld& world = world_;
  m_nDrawTimer = world_.media.ports.timers.SetTimer(Milliseconds(kDrawInterval), "OnLogicTimer",
                                                    [&world, this](int) {
                                                      if (world.GameActive) {
                                                        draw();
                                                      } else {
                                                        ++world.gated_ticks;
                                                      }
                                                    });
}

void GameLogicLayer::StartMusic() {
  m_ptrMusic = std::make_unique<SoundState>(world_.media);
  m_ptrMusic->Initialize(world_.media.content.BaseDirectory() + "\\info\\doodle.wma", false);
  m_ptrMusic->SetLoopState("loop");
  m_ptrMusic->PlaySound();
  m_ptrMusic->SetVolume(kMusicVolume);
}

ObjectRef GameLogicLayer::RequireScreen(const std::string& name) {
  ObjectRef screen = m_ptrScreenKeeper->GetScreen(name);
  if (screen != nullptr) return screen;
  // A message leads to the script that asks for the screen; what the game itself needs, the list
  // lacks.
  const bool asked = world_.watch.depth.Depth() > 0;
  throw FatalError(
      "there is no screen \"" + name + "\"" + DidYouMean(name, m_ptrScreenKeeper->Table().Keys()),
      asked ? FilePlace{} : FilePlace{"Info\\screens.txt", 0});
}

void GameLogicLayer::TurnOff() {
  KillDrawTimer();
  host_.ShowPointer(true);
  // A start that was broken off has nothing to save, and must not overwrite what is there.
  if (m_ptrScreenKeeper == nullptr) return;
  // An autosave that is there wins over the saved game, so it must not be the older one: stopped
  // between any two of these steps, the next start has all that was played.
  if (!m_bGameReset) {
    Autosave();
    m_ptrScreenKeeper->SaveGame(kSavedGameFile);
  }
  WriteHelpMemory();
  const ContentFiles& files = world_.media.content;
  files.TryDelete(PlayerPath(files, kAutosaveFile));
}

void GameLogicLayer::Release() {
  if (ObjectRef current = std::exchange(m_ptrCurrentScreen, nullptr)) {
    current->TurnOff();
    if (m_ptrScreenKeeper != nullptr) m_ptrScreenKeeper->SaveScreen(current);
  }
  for (ObjectRef* screen : {&m_ptrPreviousScreen, &m_ptrToolsScreen, &m_ptrCursorsScreen}) {
    if (ObjectRef live = std::exchange(*screen, nullptr)) live->TurnOff();
  }
  if (ObjectRef cursor = std::exchange(m_ptrCursorObject, nullptr)) cursor->Release(false);
  m_ptrPersonCursor = nullptr;
  world_.TimedObjects.Clear();
  m_ptrScreenKeeper.reset();
  KillDrawTimer();
  back_buffer_.reset();
  m_ptrMusic.reset();
  walk_ = nullptr;
  if (std::shared_ptr<InputRecorder> tester = m_ptrTester.lock()) tester->Detach();
  m_ptrTester.reset();
}

void GameLogicLayer::KillDrawTimer() {
  if (m_nDrawTimer == 0) return;
  world_.media.ports.timers.KillTimer(m_nDrawTimer);
  m_nDrawTimer = 0;
}

// A recorded event of content would come twice when the record is played.
void GameLogicLayer::TellTester(const char* action, std::int16_t x, std::int16_t y) {
  if (world_.watch.depth.Depth() > kDeepestInput) return;
  if (std::shared_ptr<InputRecorder> tester = m_ptrTester.lock()) {
    tester->RecordUserAction(std::string(action) + "_" + std::to_string(x) + "_" +
                             std::to_string(y));
  }
}

void GameLogicLayer::MapMouseClick(std::int16_t x, std::int16_t y) {
  TellTester("mouseclick", x, y);
  PlaceAt(m_ptrCursorObject, x, y, kPointerOffset);
  TraceClick(Point{x, y}, false);
  const ActionText& action = world_.scripts.actions.Get(m_strCurrentCursor + "mouseclick");
  UpdateUpperLayers(x, y, action);
  const bool skipped = m_bSkipNextClick;
  if (!skipped) {
    ObjectRef screen = m_ptrCurrentScreen;
    if (screen == nullptr) throw FatalError("a click finds no current screen");
    screen->UpdateGameObject(x, y, action);
  }
  TraceClick(std::nullopt, skipped);
  m_bSkipNextClick = false;
}

void GameLogicLayer::TraceClick(std::optional<Point> begin, bool skipped) {
  if (world_.watch.tracer == nullptr) return;
  const std::string place =
      begin ? std::to_string(begin->x) + "," + std::to_string(begin->y) : std::string();
  world_.watch.Trace(TraceKind::kClick, m_strCurrentCursor, skipped ? "skipped" : "", place);
}

void GameLogicLayer::MapMouseCoords(std::int16_t x, std::int16_t y) {
  TellTester("mousemove", x, y);
  if (world_.media.settings.PersonalizeOn) PlaceAt(m_ptrPersonCursor, x, y, kPersonOffset);
  PlaceAt(m_ptrCursorObject, x, y, kPointerOffset);
  const ActionText& action = world_.scripts.actions.Get(m_strCurrentCursor + "mouseover");
  UpdateUpperLayers(x, y, action);
  if (m_ptrCurrentScreen != nullptr) {
    ObjectRef(m_ptrCurrentScreen)->UpdateGameObject(x, y, action);
  }
}

void GameLogicLayer::UpdateUpperLayers(std::int16_t x, std::int16_t y, const ActionText& action) {
  // Each layer is taken as it is by then: what the one before did may have changed it.
  if (m_bDialogActive && m_ptrCursorsScreen != nullptr) {
    ObjectRef(m_ptrCursorsScreen)->UpdateGameObject(x, y, action);
  }
  if (EqualsNoCase(m_strToolsState, "on") && m_ptrToolsScreen != nullptr) {
    ObjectRef(m_ptrToolsScreen)->UpdateGameObject(x, y, action);
  }
}

void GameLogicLayer::draw() {
  CountDraw();
  if (m_ptrCurrentScreen == nullptr) return;
  Compose();
  if (world_.media.UseDirectX) {
    PresentDirectX(world_.media);
  } else {
    PresentWindow(world_.media, BackContext());
  }
}

void GameLogicLayer::CountDraw() {
  if (++m_nFrameCounter >= kMusicRestart) {
    if (m_ptrMusic != nullptr) m_ptrMusic->PlaySound();
    m_nFrameCounter = 0;
  }
  if (++draws_since_autosave_ >= kAutosaveDraws) Autosave();
}

void GameLogicLayer::Compose() {
  if (m_ptrCurrentScreen == nullptr) return;
  const bool tools = EqualsNoCase(m_strToolsState, "on");
  const ObjectRef layers[] = {m_ptrCurrentScreen, tools ? m_ptrToolsScreen : nullptr,
                              m_ptrCursorsScreen};
  for (const ObjectRef& layer : layers) {
    if (layer == nullptr) continue;
    if (world_.media.UseDirectX) {
      layer->RefreshDirectX(*world_.media.off_screen_surface, 0, 0);
    } else {
      layer->Refresh(BackContext(), 0, 0);
    }
  }
}

void GameLogicLayer::PauseSound() {
  if (m_ptrMusic == nullptr) return;
  if (m_ptrMusic->IsPlaying() && m_ptrMusic->Player() != nullptr) {
    music_paused_ = true;
    music_position_ = m_ptrMusic->Player()->GetPosition();
  }
  m_ptrMusic->Pause();
}

void GameLogicLayer::PlaySound() {
  if (m_ptrMusic == nullptr) return;
  m_ptrMusic->PlaySound();
  // Playing starts at the beginning; only a loss of focus leaves a place to go on from.
  if (std::exchange(music_paused_, false)) m_ptrMusic->SetPosition(music_position_);
}

bool GameLogicLayer::Autosave() {
  draws_since_autosave_ = 0;
  if (m_bGameReset || m_ptrScreenKeeper == nullptr) return false;
  return m_ptrScreenKeeper->WriteSnapshot(kAutosaveFile);
}

}  // namespace quendle
