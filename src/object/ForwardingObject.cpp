#include "object/ForwardingObject.h"

#include <utility>

#include "media/BitmapObject.h"

namespace quendle {

ForwardingObject::ForwardingObject(ObjectWorld& world)
    : m_ptrGameObject(std::make_unique<GameObject>(world)) {}

void ForwardingObject::Describe(Inspector& inspector) const { Inner().Describe(inspector); }

DShowObj* ForwardingObject::GetDShowObj() { return m_ptrGameObject->GetDShowObj(); }
ObjectList& ForwardingObject::Children() { return m_ptrGameObject->Children(); }
void ForwardingObject::SetChildren(ObjectList children) {
  m_ptrGameObject->SetChildren(std::move(children));
}
std::shared_ptr<Surface> ForwardingObject::DirectDrawingSurface() {
  return m_ptrGameObject->DirectDrawingSurface();
}
std::string ForwardingObject::CurrentState() { return m_ptrGameObject->CurrentState(); }
std::shared_ptr<MessageTarget> ForwardingObject::Parent() { return m_ptrGameObject->Parent(); }
void ForwardingObject::SetParent(std::weak_ptr<MessageTarget> parent) {
  m_ptrGameObject->SetParent(std::move(parent));
}
std::int32_t ForwardingObject::CurrentTextureYCoord() {
  return m_ptrGameObject->CurrentTextureYCoord();
}
void ForwardingObject::SetCurrentTextureYCoord(std::int32_t y) {
  m_ptrGameObject->SetCurrentTextureYCoord(y);
}
std::int32_t ForwardingObject::CurrentTextureXCoord() {
  return m_ptrGameObject->CurrentTextureXCoord();
}
void ForwardingObject::SetCurrentTextureXCoord(std::int32_t x) {
  m_ptrGameObject->SetCurrentTextureXCoord(x);
}
std::int32_t ForwardingObject::TimerID() { return m_ptrGameObject->TimerID(); }
void ForwardingObject::SetTimerID(std::int32_t id) { m_ptrGameObject->SetTimerID(id); }
ContextHandle ForwardingObject::DrawingSurface() { return m_ptrGameObject->DrawingSurface(); }
void ForwardingObject::AddAnimationState(std::shared_ptr<AnimationState> state, std::string name) {
  m_ptrGameObject->AddAnimationState(std::move(state), std::move(name));
}
void ForwardingObject::SetDrawingSurface(ContextHandle context) {
  m_ptrGameObject->SetDrawingSurface(context);
}
BitmapHandle ForwardingObject::picture() { return m_ptrGameObject->picture(); }
ContextHandle ForwardingObject::pictureHandle() { return m_ptrGameObject->pictureHandle(); }
void ForwardingObject::SetpictureHandle(ContextHandle handle) {
  m_ptrGameObject->SetpictureHandle(handle);
}
void ForwardingObject::SetPictureName(std::string name) {
  m_ptrGameObject->SetPictureName(std::move(name));
}
std::string ForwardingObject::PictureName() { return m_ptrGameObject->PictureName(); }
void ForwardingObject::SetObjectName(std::string name) {
  m_ptrGameObject->SetObjectName(std::move(name));
}
const std::string& ForwardingObject::ObjectName() const { return m_ptrGameObject->ObjectName(); }
void ForwardingObject::SetObjectType(std::string type) {
  m_ptrGameObject->SetObjectType(std::move(type));
}
const std::string& ForwardingObject::ObjectType() const { return m_ptrGameObject->ObjectType(); }
void ForwardingObject::SetVisible(bool visible) { m_ptrGameObject->SetVisible(visible); }
bool ForwardingObject::Visible() const { return m_ptrGameObject->Visible(); }
void ForwardingObject::SetObjectOn(bool on) { m_ptrGameObject->SetObjectOn(on); }
bool ForwardingObject::ObjectOn() const { return m_ptrGameObject->ObjectOn(); }
void ForwardingObject::Setxpos(std::int16_t x) { m_ptrGameObject->Setxpos(x); }
std::int16_t ForwardingObject::xpos() const { return m_ptrGameObject->xpos(); }
void ForwardingObject::Setypos(std::int16_t y) { m_ptrGameObject->Setypos(y); }
std::int16_t ForwardingObject::ypos() const { return m_ptrGameObject->ypos(); }
void ForwardingObject::Setheight(std::int16_t height) { m_ptrGameObject->Setheight(height); }
std::int16_t ForwardingObject::height() const { return m_ptrGameObject->height(); }
std::int16_t ForwardingObject::width() const { return m_ptrGameObject->width(); }
void ForwardingObject::Setwidth(std::int16_t width) { m_ptrGameObject->Setwidth(width); }
bool ForwardingObject::AreWeOnTheObject(std::int16_t x, std::int16_t y) {
  return m_ptrGameObject->AreWeOnTheObject(x, y);
}
std::string ForwardingObject::ProcessState(const std::string& name) {
  return m_ptrGameObject->ProcessState(name);
}
std::shared_ptr<ObjState> ForwardingObject::QueryObjState(const std::string& name) {
  return m_ptrGameObject->QueryObjState(name);
}
std::shared_ptr<SoundState> ForwardingObject::QuerySoundState(const std::string& name) {
  return m_ptrGameObject->QuerySoundState(name);
}
std::shared_ptr<AnimationState> ForwardingObject::QueryAnimationState(const std::string& name) {
  return m_ptrGameObject->QueryAnimationState(name);
}
std::shared_ptr<AnimationFrame> ForwardingObject::QueryFrameState(const std::string& name) {
  return m_ptrGameObject->QueryFrameState(name);
}
std::string ForwardingObject::PeekCurrentState(std::int16_t x, std::int16_t y,
                                               const std::string& action) {
  return m_ptrGameObject->PeekCurrentState(x, y, action);
}
void ForwardingObject::UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) {
  plain_listener_ = m_ptrGameObject.get();
  m_ptrGameObject->UpdateGameObject(x, y, action);
}
void ForwardingObject::LoadObject(const LoadArguments& arguments) {
  m_ptrGameObject->LoadObject(arguments);
}
void ForwardingObject::Refresh(ContextHandle destination, int parent_x, int parent_y) {
  m_ptrGameObject->Refresh(destination, parent_x, parent_y);
}
void ForwardingObject::RefreshDirectX(Surface& destination, int parent_x, int parent_y) {
  m_ptrGameObject->RefreshDirectX(destination, parent_x, parent_y);
}
void ForwardingObject::TurnOn() { m_ptrGameObject->TurnOn(); }
void ForwardingObject::TurnOff() { m_ptrGameObject->TurnOff(); }
std::unique_ptr<BitmapObject> ForwardingObject::GetFrameAsObject(const std::string& name) {
  return m_ptrGameObject->GetFrameAsObject(name);
}
void ForwardingObject::AddChildObject(ObjectRef child) {
  m_ptrGameObject->AddChildObject(std::move(child));
}
void ForwardingObject::UpdateAnimationState() { m_ptrGameObject->UpdateAnimationState(); }
void ForwardingObject::NotifyChild(const std::string& message, const std::string& type) {
  m_ptrGameObject->NotifyChild(message, type);
}
void ForwardingObject::NotifyParent(const std::string& message, bool verifying, bool& result) {
  m_ptrGameObject->NotifyParent(message, verifying, result);
}
void ForwardingObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                     bool verifying, bool& result) {
  m_ptrGameObject->HandleMessage(message, sender, verifying, result);
}
void ForwardingObject::Interpret(const Statement& statement, bool verifying, bool& result) {
  m_ptrGameObject->Interpret(statement, verifying, result);
}
std::string ForwardingObject::LoadCurrentDirectory(const std::string& path) {
  return m_ptrGameObject->LoadCurrentDirectory(path);
}
void ForwardingObject::Release(bool forced) { m_ptrGameObject->Release(forced); }
void ForwardingObject::RemoveChild(const std::string& name) { m_ptrGameObject->RemoveChild(name); }
void ForwardingObject::LoadChildrenObjects(const std::string& path, ContextHandle context) {
  m_ptrGameObject->LoadChildrenObjects(path, context);
}
void ForwardingObject::GetObjHeader(TextStream& stream) { m_ptrGameObject->GetObjHeader(stream); }
void ForwardingObject::CreateMemento(GameObjectMemento& memento) {
  m_ptrGameObject->CreateMemento(memento);
}
void ForwardingObject::LoadMemento(const GameObjectMemento& memento) {
  m_ptrGameObject->LoadMemento(memento);
}
void ForwardingObject::Verify() { m_ptrGameObject->Verify(); }

GameObject* InnerObject(GameObjectInterface& object) {
  if (auto* forwarding = dynamic_cast<ForwardingObject*>(&object)) return &forwarding->Inner();
  return dynamic_cast<GameObject*>(&object);
}

}  // namespace quendle
