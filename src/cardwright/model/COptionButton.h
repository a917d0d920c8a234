// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/StateControl.h"

namespace cardwright {

/// One of several buttons that exclude each other; the fixed text of the selected one is written to the
/// attribute.
class COptionButton final : public StateControl {
 public:
  static const ClassTable kTable;
  COptionButton() : StateControl(kTable) {}

  /// The button's fixed text while it is selected, else "".
  Text Value(std::optional<Variant> params = {}) const override;
  /// Selects the button of the group whose fixed text is the value.
  void ShowValue(const Text& attribute, const Text& value) override;
  /// Only the selected button of a group writes.
  bool TakeValue(Text& value) const override;

 protected:
  bool Accepts(const Widget& widget) const override;

 private:
  struct Tables;

  Text m_Value;
};

}  // namespace cardwright
