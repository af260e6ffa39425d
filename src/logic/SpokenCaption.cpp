#include "logic/SpokenCaption.h"

#include <memory>

#include "logic/GameLogicLayer.h"
#include "media/Captions.h"
#include "media/DShowObj.h"
#include "media/MediaWorld.h"
#include "media/SoundState.h"
#include "object/ForwardingObject.h"

namespace quendle {
namespace {

class Listener {
 public:
  explicit Listener(const Captions& captions) : captions_(captions) {}

  void Hear(const std::string& name, SoundState& sound) {
    const std::string* sentence = captions_.Find(name);
    if (sentence == nullptr || !sound.IsPlaying()) return;
    const double position = sound.Player()->GetPosition();
    if (heard_ != nullptr && position >= position_) return;
    heard_ = sentence;
    position_ = position;
  }

  void HearTree(GameObjectInterface& object) {
    if (const GameObject* inner = InnerObject(object)) {
      const std::string& name = inner->CurrentSoundName();
      if (!name.empty()) {
        if (auto* sound = inner->Sounds().Find(name)) Hear(name, **sound);
      }
    }
    for (const auto& entry : object.Children()) HearTree(*entry.value);
  }

  std::string Sentence() const { return heard_ == nullptr ? std::string() : *heard_; }

 private:
  const Captions& captions_;
  const std::string* heard_ = nullptr;
  double position_ = 0;  // seconds that it has been playing
};

}  // namespace

std::string SpokenCaption(const Captions& captions, const GameLogicLayer& logic,
                          const ObjectWorld& world) {
  if (captions.Empty()) return {};
  Listener listener(captions);
  for (const ObjectRef& screen :
       {logic.CurrentScreen(), logic.ToolsScreen(), logic.CursorsScreen()}) {
    if (screen != nullptr) listener.HearTree(*screen);
  }
  // The doctor speaks even while no screen holds it.
  for (const auto& entry : world.GlobalObjects) listener.HearTree(*entry.value);
  for (const auto& entry : world.media.GlobalSounds) listener.Hear(entry.key, *entry.value);
  return listener.Sentence();
}

}  // namespace quendle
