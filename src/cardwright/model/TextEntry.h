#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// What the controls that take typed text share: the key filter, the on-screen keyboard, and a context menu
/// that is not the widget's own.
class TextEntry : public Control {
 public:
  Text m_MinusSignEnabled = u"True";

  void LimitInput(std::int32_t maxLength, InputTypeEnum type) override;

 protected:
  explicit TextEntry(const ClassTable& table) : Control(table) {}

  /// Whether a person can type into the control at all.
  virtual bool TakesTyping() const { return true; }
  /// Whether the widget can hold typed text to a length.
  virtual bool LimitsLength() const { return true; }
  /// Puts the class's own input mode into the widget's Tag, where it has one and none stands there.
  virtual void ChooseInputMode() {}

  void OnChange() override { RunScriptEvent(u"OnChange"); }
  void OnGotFocus() override;
  void OnKeyPress(char16_t& key) override;
  bool HasOwnMenu() const override { return true; }
};

}  // namespace cardwright
