#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// What check box and option button share: the `Selected` flag, kept as text beside the widget's state.
class StateControl : public Control {
 protected:
  explicit StateControl(const ClassTable& table) : Control(table) {}

  void FinishRead(const CIni& ini, const Text& sectionName) override;
  bool ClickSelects() const override { return false; }

  /// The bound widget; error 91 where there is none.
  StateWidget& Box() const;
  /// "True" or "False" by the widget; the text is stored as well.
  Text ReadSelected() const;
  void ApplySelected(const Text& selected);

  static Variant GetSelected(const TableControl& control);
  static void LetSelected(TableControl& control, const Variant& value);

 public:
  /// Last state that was set or asked for. A project keeps this text, whatever was clicked since.
  mutable Text m_Selected;
};

}  // namespace cardwright
