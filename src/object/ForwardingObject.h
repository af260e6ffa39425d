#pragma once

#include "object/GameObject.h"

namespace quendle {

// The base of all specialised classes: holds an inner GameObject and forwards the 65 operations to
// it. A class shows only what it changes.
class ForwardingObject : public GameObjectInterface, public Inspectable {
 public:
  explicit ForwardingObject(ObjectWorld& world);

  DShowObj* GetDShowObj() override;
  ObjectList& Children() override;
  void SetChildren(ObjectList children) override;
  std::shared_ptr<Surface> DirectDrawingSurface() override;
  std::string CurrentState() override;
  std::shared_ptr<MessageTarget> Parent() override;
  void SetParent(std::weak_ptr<MessageTarget> parent) override;
  std::int32_t CurrentTextureYCoord() override;
  void SetCurrentTextureYCoord(std::int32_t y) override;
  std::int32_t CurrentTextureXCoord() override;
  void SetCurrentTextureXCoord(std::int32_t x) override;
  std::int32_t TimerID() override;
  void SetTimerID(std::int32_t id) override;
  ContextHandle DrawingSurface() override;
  void AddAnimationState(std::shared_ptr<AnimationState> state, std::string name) override;
  void SetDrawingSurface(ContextHandle context) override;
  BitmapHandle picture() override;
  ContextHandle pictureHandle() override;
  void SetpictureHandle(ContextHandle handle) override;
  void SetPictureName(std::string name) override;
  std::string PictureName() override;
  void SetObjectName(std::string name) override;
  const std::string& ObjectName() const override;
  void SetObjectType(std::string type) override;
  const std::string& ObjectType() const override;
  void SetVisible(bool visible) override;
  bool Visible() const override;
  void SetObjectOn(bool on) override;
  bool ObjectOn() const override;
  void Setxpos(std::int16_t x) override;
  std::int16_t xpos() const override;
  void Setypos(std::int16_t y) override;
  std::int16_t ypos() const override;
  void Setheight(std::int16_t height) override;
  std::int16_t height() const override;
  std::int16_t width() const override;
  void Setwidth(std::int16_t width) override;
  bool AreWeOnTheObject(std::int16_t x, std::int16_t y) override;
  std::string ProcessState(const std::string& name) override;
  std::shared_ptr<ObjState> QueryObjState(const std::string& name) override;
  std::shared_ptr<SoundState> QuerySoundState(const std::string& name) override;
  std::shared_ptr<AnimationState> QueryAnimationState(const std::string& name) override;
  std::shared_ptr<AnimationFrame> QueryFrameState(const std::string& name) override;
  std::string PeekCurrentState(std::int16_t x, std::int16_t y, const std::string& action) override;
  void UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) override;
  void LoadObject(const LoadArguments& arguments) override;
  void Refresh(ContextHandle destination, int parent_x, int parent_y) override;
  void RefreshDirectX(Surface& destination, int parent_x, int parent_y) override;
  void TurnOn() override;
  void TurnOff() override;
  std::unique_ptr<BitmapObject> GetFrameAsObject(const std::string& name) override;
  void AddChildObject(ObjectRef child) override;
  void UpdateAnimationState() override;
  void NotifyChild(const std::string& message, const std::string& type) override;
  void NotifyParent(const std::string& message, bool verifying, bool& result) override;
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
  void Interpret(const Statement& statement, bool verifying, bool& result) override;
  std::string LoadCurrentDirectory(const std::string& path) override;
  void Release(bool forced) override;
  void RemoveChild(const std::string& name) override;
  void LoadChildrenObjects(const std::string& path, ContextHandle context) override;
  void GetObjHeader(TextStream& stream) override;
  void CreateMemento(GameObjectMemento& memento) override;
  void LoadMemento(const GameObjectMemento& memento) override;
  void Verify() override;

  void Describe(Inspector& inspector) const override;

  // The inner object, for classes that act on it and for tools.
  GameObject& Inner() { return *m_ptrGameObject; }
  const GameObject& Inner() const { return *m_ptrGameObject; }

 protected:
  std::unique_ptr<GameObject> m_ptrGameObject;
};

// The object behind all forwarding, for tools; null for a class that has none.
GameObject* InnerObject(GameObjectInterface& object);

}  // namespace quendle
