#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/KeyedList.h"
#include "media/SoundPlayerSource.h"
#include "object/MessageTarget.h"
#include "platform/Gdi.h"
#include "script/ScriptTarget.h"

namespace quendle {

class ActionText;
class AnimationState;
class BitmapObject;
class GameObject;
class GameObjectMemento;
class ObjState;
class SoundState;
class Surface;
class TextStream;
struct AnimationFrame;

class GameObjectInterface;
// Objects that can hang in several trees at once are owned together by all of them.
using ObjectRef = std::shared_ptr<GameObjectInterface>;
using ObjectList = KeyedList<ObjectRef>;

// What a load is given: the lines of the object file, and where the object will hang.
struct LoadArguments {
  std::string type;
  std::string name;
  std::string data_file;  // full path
  std::string depth;
  std::weak_ptr<MessageTarget> parent;
  std::int16_t* width = nullptr;   // out, may be null
  std::int16_t* height = nullptr;  // out, may be null
  std::string child_list;          // resolved path relative to the base directory, or "nothing"
  std::weak_ptr<GameObjectInterface> outer;
  std::string directives;
  ContextHandle context = 0;
  // The object file itself, full path: a play area reads on in it.
  std::string object_file;
};

// The 65 operations that everything seen or clicked in the game presents. Coordinates are pixels
// relative to the parent. Every specialised class forwards them to an inner GameObject.
class GameObjectInterface : public MessageTarget, public ScriptTarget, public SoundPlayerSource {
 public:
  DShowObj* GetDShowObj() override = 0;
  virtual ObjectList& Children() = 0;
  virtual void SetChildren(ObjectList children) = 0;
  virtual std::shared_ptr<Surface> DirectDrawingSurface() = 0;
  // Name of the current state; empty without one.
  virtual std::string CurrentState() = 0;
  virtual std::shared_ptr<MessageTarget> Parent() = 0;
  virtual void SetParent(std::weak_ptr<MessageTarget> parent) = 0;
  virtual std::int32_t CurrentTextureYCoord() = 0;
  virtual void SetCurrentTextureYCoord(std::int32_t y) = 0;
  virtual std::int32_t CurrentTextureXCoord() = 0;
  virtual void SetCurrentTextureXCoord(std::int32_t x) = 0;
  virtual std::int32_t TimerID() = 0;
  virtual void SetTimerID(std::int32_t id) = 0;
  virtual ContextHandle DrawingSurface() = 0;
  // Stores an animation state under a name; a name that is present is fatal.
  virtual void AddAnimationState(std::shared_ptr<AnimationState> state, std::string name) = 0;
  virtual void SetDrawingSurface(ContextHandle context) = 0;
  virtual BitmapHandle picture() = 0;
  virtual ContextHandle pictureHandle() = 0;
  // Inert: keeps the value that is there.
  virtual void SetpictureHandle(ContextHandle handle) = 0;
  virtual void SetPictureName(std::string name) = 0;
  virtual std::string PictureName() = 0;
  virtual void SetObjectName(std::string name) = 0;
  virtual const std::string& ObjectName() const = 0;
  virtual void SetObjectType(std::string type) = 0;
  virtual const std::string& ObjectType() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual bool Visible() const = 0;
  virtual void SetObjectOn(bool on) = 0;
  virtual bool ObjectOn() const = 0;
  virtual void Setxpos(std::int16_t x) = 0;
  virtual std::int16_t xpos() const = 0;
  virtual void Setypos(std::int16_t y) = 0;
  virtual std::int16_t ypos() const = 0;
  virtual void Setheight(std::int16_t height) = 0;
  virtual std::int16_t height() const = 0;
  virtual std::int16_t width() const = 0;
  virtual void Setwidth(std::int16_t width) = 0;
  // True if the point is on the object. y = -1 asks about the horizontal only.
  virtual bool AreWeOnTheObject(std::int16_t x, std::int16_t y) = 0;
  // Makes the named state current; an unknown name changes nothing. The result is always empty.
  virtual std::string ProcessState(const std::string& name) = 0;
  // The last entry of that name, case ignored; nothing without one.
  virtual std::shared_ptr<ObjState> QueryObjState(const std::string& name) = 0;
  virtual std::shared_ptr<SoundState> QuerySoundState(const std::string& name) = 0;
  virtual std::shared_ptr<AnimationState> QueryAnimationState(const std::string& name) = 0;
  virtual std::shared_ptr<AnimationFrame> QueryFrameState(const std::string& name) = 0;
  // The text that a script would get for an event at a point of the object, or "nothing".
  virtual std::string PeekCurrentState(std::int16_t x, std::int16_t y,
                                       const std::string& action) = 0;
  // An event for this object and its visible children. -1, -1 is an event without a position.
  virtual void UpdateGameObject(std::int16_t x, std::int16_t y, const ActionText& action) = 0;
  // Loads everything that the object's files name. Bad content is fatal.
  virtual void LoadObject(const LoadArguments& arguments) = 0;
  // Draws the object and its children; the position is that of the parent.
  virtual void Refresh(ContextHandle destination, int parent_x, int parent_y) = 0;
  virtual void RefreshDirectX(Surface& destination, int parent_x, int parent_y) = 0;
  // Starts state, sound and animation of the object and its children. Without a current state it
  // is fatal.
  virtual void TurnOn() = 0;
  virtual void TurnOff() = 0;
  // A copy of the frame's rectangle; nothing for an unknown name.
  virtual std::unique_ptr<BitmapObject> GetFrameAsObject(const std::string& name) = 0;
  // Adds a child; nothing is ignored. A name that is present, or an object that holds this one, is
  // fatal.
  virtual void AddChildObject(ObjectRef child) = 0;
  // One step of the running animation.
  virtual void UpdateAnimationState() = 0;
  virtual void NotifyChild(const std::string& message, const std::string& type) = 0;
  virtual void NotifyParent(const std::string& message, bool verifying, bool& result) = 0;
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override = 0;
  void Interpret(const Statement& statement, bool verifying, bool& result) override = 0;
  // Replaces the tokens of a stored path, relative to the folder of the object's data file.
  virtual std::string LoadCurrentDirectory(const std::string& path) = 0;
  // Frees what the object holds, unless it is shared and `forced` is false. Never fails.
  virtual void Release(bool forced) = 0;
  // Turns off and removes the first child of that name; an unknown name does nothing.
  virtual void RemoveChild(const std::string& name) = 0;
  // Makes the children of a child list (path relative to the base directory, or "nothing").
  virtual void LoadChildrenObjects(const std::string& path, ContextHandle context) = 0;
  // Reads two lines and drops them.
  virtual void GetObjHeader(TextStream& stream) = 0;
  virtual void CreateMemento(GameObjectMemento& memento) = 0;
  virtual void LoadMemento(const GameObjectMemento& memento) = 0;
  // Checks what the object's files refer to.
  virtual void Verify() = 0;

  // The inner object, once this one has handed it an event as it came; null until then, and for
  // ever in a class that does something of its own with events. A walk may ask it whether an event
  // means nothing to it, and then needn't come here.
  const GameObject* PlainListener() const { return plain_listener_; }

 protected:
  GameObjectInterface() = default;
  const GameObject* plain_listener_ = nullptr;
};

}  // namespace quendle
