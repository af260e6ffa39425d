#pragma once

#include <cstdint>
#include <string>

#include "object/ForwardingObject.h"

namespace quendle {

enum class ScreenVerb;

// A screen or overlay. The one named "tools" is the tool bar: it arranges its children in slots and
// answers whether a tool can be taken.
class ScreenObject : public ForwardingObject {
 public:
  static constexpr std::size_t kToolLimit = 12;  // counts all children of the bar
  static constexpr int kBarTop = 500;            // y of its tools on the frame

  using ForwardingObject::ForwardingObject;

  void LoadObject(const LoadArguments& arguments) override;
  void AddChildObject(ObjectRef child) override;
  void RemoveChild(const std::string& name) override;
  void TurnOn() override;
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
  void Describe(Inspector& inspector) const override;

  bool IsToolBar() const { return m_bIsToolBar; }
  // Number of tools scrolled off to the left.
  std::int16_t ToolOffset() const { return m_nToolOffset; }

 private:
  void ChangeBar(ScreenVerb verb);
  void AddGlobalObject(const std::string& message, GameObjectInterface* sender, bool verifying,
                       bool& result);
  void Scroll(int step);
  void RemoveTools(bool spare_medical_book);
  void AnswerOffer(const std::string& message, bool verifying, bool& result);
  void ArrangeTools();
  void ArrangeAllTools();
  void ArrangeScrolledTools();

  bool m_bIsToolBar = false;
  std::int16_t m_nToolOffset = 0;
};

}  // namespace quendle
