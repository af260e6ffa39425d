#include "object/GameObject.h"

#include <utility>

#include "base/Watch.h"
#include "media/BitmapObject.h"
#include "media/DShowObj.h"
#include "media/MediaWorld.h"
#include "media/ObjectPicture.h"
#include "media/SoundState.h"
#include "script/ScriptState.h"

namespace quendle {

GameObject::GameObject(ObjectWorld& world) : world_(world) {}

GameObject::~GameObject() {
  GameObject::Release(false);
  KillAnimationTimer();
}

DShowObj* GameObject::GetDShowObj() { return player_.get(); }
void GameObject::SetChildren(ObjectList children) { Children_ = std::move(children); }

std::shared_ptr<Surface> GameObject::DirectDrawingSurface() {
  return picture_ ? picture_->DirectDrawingSurface() : nullptr;
}

std::string GameObject::CurrentState() {
  return m_ptrCurrObjState ? m_ptrCurrObjState->Name() : std::string();
}

std::shared_ptr<MessageTarget> GameObject::Parent() { return Parent_.lock(); }
void GameObject::SetParent(std::weak_ptr<MessageTarget> parent) { Parent_ = std::move(parent); }
std::int32_t GameObject::CurrentTextureYCoord() { return CurrentTextureYCoord_; }
void GameObject::SetCurrentTextureYCoord(std::int32_t y) { CurrentTextureYCoord_ = y; }
std::int32_t GameObject::CurrentTextureXCoord() { return CurrentTextureXCoord_; }
void GameObject::SetCurrentTextureXCoord(std::int32_t x) { CurrentTextureXCoord_ = x; }
std::int32_t GameObject::TimerID() { return TimerID_; }
void GameObject::SetTimerID(std::int32_t id) { TimerID_ = id; }
ContextHandle GameObject::DrawingSurface() { return DrawingSurface_; }

void GameObject::AddAnimationState(std::shared_ptr<AnimationState> state, std::string name) {
  Animations_.Add(std::move(state), std::move(name));
}

void GameObject::SetDrawingSurface(ContextHandle context) { DrawingSurface_ = context; }
BitmapHandle GameObject::picture() { return picture_ ? picture_->picture() : 0; }
ContextHandle GameObject::pictureHandle() { return picture_ ? picture_->PictureHandle() : 0; }
void GameObject::SetpictureHandle(ContextHandle) {}
void GameObject::SetPictureName(std::string name) { PictureName_ = std::move(name); }
std::string GameObject::PictureName() { return PictureName_; }
void GameObject::SetObjectName(std::string name) { ObjectName_ = std::move(name); }
void GameObject::SetObjectType(std::string type) { ObjectType_ = std::move(type); }
void GameObject::SetVisible(bool visible) { Visible_ = visible; }
void GameObject::SetObjectOn(bool on) { ObjectOn_ = on; }
bool GameObject::ObjectOn() const { return ObjectOn_; }
void GameObject::Setxpos(std::int16_t x) { xpos_ = x; }
void GameObject::Setypos(std::int16_t y) { ypos_ = y; }
void GameObject::Setheight(std::int16_t height) { height_ = height; }
std::int16_t GameObject::height() const { return height_; }
std::int16_t GameObject::width() const { return width_; }
void GameObject::Setwidth(std::int16_t width) { width_ = width; }

std::unique_ptr<BitmapObject> GameObject::GetFrameAsObject(const std::string& name) {
  std::shared_ptr<AnimationFrame> frame = QueryFrameState(name);
  if (frame == nullptr || picture_ == nullptr) return nullptr;
  return picture_->CopyRectangle(frame->SourceX, frame->SourceY, frame->SourceWidth,
                                 frame->SourceHeight);
}

std::string GameObject::WorkPath() const {
  std::string path = ObjectName_;
  std::shared_ptr<MessageTarget> above = Parent_.lock();
  for (int level = 0; level < 8; ++level) {
    auto* object = dynamic_cast<GameObjectInterface*>(above.get());
    if (object == nullptr) break;
    path.insert(0, object->ObjectName() + "/");
    above = object->Parent();
  }
  return path;
}

void GameObject::Describe(Inspector& inspector) const {
  inspector.Field("region", CurrentRegion_);
  inspector.Field("sound", CurrentSoundName_);
  inspector.Field("directory", ObjDirectory_);
  inspector.Field("animation", CurrentAnimationName_);
}

}  // namespace quendle
