#include "logic/ScreenObject.h"

#include "base/Numbers.h"
#include "base/Words.h"
#include "logic/ScreenVerbs.h"
#include "object/MessageWork.h"
#include "screens/ScreenNames.h"

namespace quendle {
namespace {

// The geometry of the bar, in pixels.
constexpr int kFirstSlot = 60;
constexpr int kSlotWidth = 85;
constexpr int kLeftArrow = 15;
constexpr int kRightArrows = 570;
constexpr int kArrowWidth = 50;

constexpr std::size_t kScrollingCount = 9;  // children from which on the bar scrolls
constexpr int kSlotsShown = 6;

bool IsTool(const GameObjectInterface& child) { return EqualsNoCase(child.ObjectType(), "tool"); }

void Show(GameObjectInterface& child, int x) {
  child.Setxpos(ToInt16(x, "xpos of a tool"));
  child.Setypos(ScreenObject::kBarTop);
  child.SetVisible(true);
}

}  // namespace

void ScreenObject::LoadObject(const LoadArguments& arguments) {
  // Known only behind the load: nothing is arranged before the bar is turned on.
  ForwardingObject::LoadObject(arguments);
  m_bIsToolBar = EqualsNoCase(ObjectName(), kToolsScreenName);
}

void ScreenObject::AddChildObject(ObjectRef child) {
  ForwardingObject::AddChildObject(std::move(child));
  if (m_bIsToolBar) ArrangeTools();
}

void ScreenObject::RemoveChild(const std::string& name) {
  ForwardingObject::RemoveChild(name);
  if (m_bIsToolBar) ArrangeTools();
}

void ScreenObject::TurnOn() {
  ForwardingObject::TurnOn();
  if (m_bIsToolBar) ArrangeTools();
}

void ScreenObject::HandleMessage(const std::string& message, GameObjectInterface* sender,
                                 bool verifying, bool& result) {
  const ScreenVerb verb = ScreenVerbOf(message, ObjectName());
  if (verb == ScreenVerb::kInner) {
    Inner().HandleMessage(message, sender, verifying, result);
    return;
  }
  if (verb == ScreenVerb::kAddGlobalObj) {
    AddGlobalObject(message, sender, verifying, result);
    return;
  }
  const MessageWork work(Inner(), message, sender, verifying);
  if (verb == ScreenVerb::kClimb) {
    Inner().NotifyParent(message, verifying, result);
  } else if (verb == ScreenVerb::kAnswerOffer) {
    AnswerOffer(message, verifying, result);
  } else if (!verifying) {
    ChangeBar(verb);
  }
}

void ScreenObject::ChangeBar(ScreenVerb verb) {
  switch (verb) {
    case ScreenVerb::kScrollOn:
      return Scroll(1);
    case ScreenVerb::kScrollBack:
      return Scroll(-1);
    case ScreenVerb::kRemoveAll:
      return RemoveTools(false);
    case ScreenVerb::kRemoveMost:
      return RemoveTools(true);
    case ScreenVerb::kInner:
    case ScreenVerb::kAddGlobalObj:
    case ScreenVerb::kClimb:
    case ScreenVerb::kAnswerOffer:
      return;
  }
}

void ScreenObject::AddGlobalObject(const std::string& message, GameObjectInterface* sender,
                                   bool verifying, bool& result) {
  Inner().HandleMessage(message, sender, verifying, result);
  if (!m_bIsToolBar || verifying) return;
  const std::size_t count = Inner().Children().Count();
  if (count < kScrollingCount - 1) return;
  // A tool that was just won stays in view.
  m_nToolOffset = ToInt16(static_cast<double>(count - (kScrollingCount - 1)), "tool offset");
  ArrangeTools();
}

void ScreenObject::Scroll(int step) {
  const int count = static_cast<int>(Inner().Children().Count());
  const bool possible = step > 0 ? m_nToolOffset + kSlotsShown <= count : m_nToolOffset > 0;
  if (possible) m_nToolOffset = static_cast<std::int16_t>(m_nToolOffset + step);
  ArrangeTools();
}

void ScreenObject::RemoveTools(bool spare_medical_book) {
  ObjectList& children = Inner().Children();
  for (std::size_t i = 1; i <= children.Count();) {
    ObjectRef child = children.Item(i);
    const std::string& name = child->ObjectName();
    const bool spared = !IsTool(*child) || EqualsNoCase(name, "handtool") ||
                        (spare_medical_book && EqualsNoCase(name, "medicalbooktool"));
    if (spared) {
      ++i;
    } else {
      Inner().RemoveChild(name);
    }
  }
}

void ScreenObject::AnswerOffer(const std::string& message, bool verifying, bool& result) {
  const Words words(message, '_');
  const std::string& offered = words[2];
  ObjectList& children = Inner().Children();
  for (const auto& entry : children) {
    if (EqualsNoCase(StripToolWords(entry.value->ObjectName()), offered)) {
      Inner().NotifyParent("tool_alreadyhavetool", verifying, result);
      return;
    }
  }
  const bool full = children.Count() >= kToolLimit;
  Inner().NotifyParent(full ? "tool_toomany" : "tool_yes_" + offered, verifying, result);
}

void ScreenObject::ArrangeTools() {
  if (Inner().Children().Count() < kScrollingCount) {
    ArrangeAllTools();
  } else {
    ArrangeScrolledTools();
  }
}

void ScreenObject::ArrangeAllTools() {
  int slot = 0;
  for (auto& entry : Inner().Children()) {
    GameObjectInterface& child = *entry.value;
    if (IsTool(child)) {
      Show(child, slot++ * kSlotWidth + kFirstSlot);
    } else {
      child.SetVisible(false);
    }
  }
}

void ScreenObject::ArrangeScrolledTools() {
  int skipped = m_nToolOffset;
  int slot = 0;
  int others = 0;
  for (auto& entry : Inner().Children()) {
    GameObjectInterface& child = *entry.value;
    if (!IsTool(child)) {
      Show(child, others == 0 ? kLeftArrow : others * kArrowWidth + kRightArrows);
      ++others;
    } else if (skipped > 0) {
      --skipped;
      child.SetVisible(false);
    } else if (slot == kSlotsShown) {
      child.SetVisible(false);
    } else {
      Show(child, slot++ * kSlotWidth + kFirstSlot);
    }
  }
}

void ScreenObject::Describe(Inspector& inspector) const {
  ForwardingObject::Describe(inspector);
  inspector.Flag("m_bIsToolBar", m_bIsToolBar);
  inspector.Field("m_nToolOffset", static_cast<long>(m_nToolOffset));
}

}  // namespace quendle
