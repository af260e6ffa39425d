#include "toolbelt/making/Render.h"

#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>
#include <ostream>

#include "backends/raster/RasterBitmap.h"
#include "base/FatalError.h"
#include "base/Text.h"
#include "logic/GameLogicLayer.h"
#include "object/ForwardingObject.h"
#include "object/GameObject.h"
#include "toolbelt/PngFile.h"
#include "toolbelt/Progress.h"
#include "toolbelt/drive/Arguments.h"
#include "toolbelt/drive/ObjectPath.h"
#include "toolbelt/drive/Views.h"
#include "toolbelt/play/ContentRun.h"

namespace quendle {
namespace {

// "dog" and "shelf/cup" begin at the screen that is drawn.
ObjectRef ObjectOfScreen(DriveSession& session, const std::string& path) {
  const ObjectRef screen = session.Logic().CurrentScreen();
  if (EqualsNoCase(path, screen->ObjectName())) return screen;
  return ObjectAt(session, "current/" + path);
}

// Sets a state of "OBJECT=STATE". False when the game ended over it.
bool SetState(DriveSession& session, const std::string& text) {
  const std::size_t parting = text.find('=');
  if (parting == std::string::npos) {
    throw CommandRefused("\"" + text + "\" has not the form OBJECT=STATE");
  }
  const ObjectRef object = ObjectOfScreen(session, text.substr(0, parting));
  const std::string state = text.substr(parting + 1);
  const GameObject* inner = InnerObject(*object);
  if (inner != nullptr && inner->States().Find(state) == nullptr) {
    throw CommandRefused("\"" + object->ObjectName() + "\" has no state \"" + state + "\"" +
                         DidYouMean(state, inner->States().Keys()));
  }
  return session.Deliver([&] { object->ProcessState(state); });
}

bool Prepare(ContentRun& run, const std::string& screen, const RenderSettings& settings) {
  if (!run.Play() || !run.Enter(screen)) return false;
  DriveSession& session = run.Session();
  for (const std::string& state : settings.states) {
    if (!SetState(session, state)) return false;
  }
  session.Platform().Tick(Milliseconds(settings.after),
                          [&](const auto& work) { return session.Deliver(work); });
  if (!session.Running() || settings.pointer) return session.Running();
  return session.Deliver([&] {
    for (const auto& [name, object] : session.Logic().CursorsScreen()->Children()) {
      if (name.ends_with("cursor")) object->SetVisible(false);
    }
  });
}

int RenderOne(const RenderSettings& settings, const std::string& screen, const std::string& picture,
              std::ostream& errors) {
  ContentRun run(settings.content, settings.options);
  if (!Prepare(run, screen, settings)) return run.TellFault(errors);
  const auto frame = run.Session().ComposeFrame();
  if (frame == nullptr) return run.TellFault(errors);
  WritePng(picture, frame->Width(), frame->Height(), frame->Pixels());
  return 0;
}

int RenderAll(const RenderSettings& settings, std::ostream& errors) {
  ContentRun run(settings.content, settings.options);
  if (!run.Play()) return run.TellFault(errors);
  std::filesystem::create_directories(settings.folder);
  Progress progress(std::cerr, Progress::ErrorIsTerminal());
  const std::vector<std::string> screens = run.Screens();
  int exit_code = 0;
  for (std::size_t i = 0; i < screens.size(); ++i) {
    progress.Step("screen", i + 1, screens.size());
    const std::string picture = settings.folder + "/" + ToUtf8(screens[i]) + ".png";
    const int code = RenderOne(settings, screens[i], picture, errors);
    if (code != 0) exit_code = code;
  }
  return exit_code;
}

}  // namespace

int RenderScreens(const RenderSettings& settings, std::ostream& errors) {
  if (!settings.folder.empty()) return RenderAll(settings, errors);
  return RenderOne(settings, settings.screen, settings.picture, errors);
}

}  // namespace quendle
