// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// Base of the controls that take typed text: key filter, on-screen keyboard, and the designer's menu instead
/// of the widget's.
class TextEntry : public Control {
 public:
  Text m_MinusSignEnabled = u"True";

  void LimitInput(std::int32_t maxLength, InputTypeEnum type) override;

 protected:
  explicit TextEntry(const ClassTable& table) : Control(table) {}

  /// Whether the user can type into the control.
  virtual bool TakesTyping() const { return true; }
  /// Whether the widget can hold typed text to a length.
  virtual bool LimitsLength() const { return true; }
  /// Sets the widget's Tag to the input mode of the class, unless a mode is set already.
  virtual void ChooseInputMode() {}

  void OnChange() override { RunScriptEvent(u"OnChange"); }
  void OnGotFocus() override;
  void OnKeyPress(char16_t& key) override;
  bool HasOwnMenu() const override { return true; }
};

}  // namespace cardwright
