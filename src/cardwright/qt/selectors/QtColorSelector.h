// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/selectors/QtSelector.h"

namespace cardwright::qt {

class ColorSwatch;

/// A swatch that opens the desktop's colour dialog. The click is fired when the dialog is closed, so that the
/// listener finds the new colour.
class QtColorSelector final : public QtDialogSelector<ColorSelectorWidget> {
 public:
  explicit QtColorSelector(WidgetPlace place);

  QWidget* Part(std::u16string_view name) const override;
  /// A swatch has no text: reading gives "", setting is ignored.
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  void SetBackColor(OleColor color) override;

  OleColor Color() const override;
  void SetColor(OleColor color) override;
  std::int32_t BorderStyle() const override;
  void SetBorderStyle(std::int32_t style) override;
  Text Value(const Text& mask) const override;

 private:
  class Box;

  bool TakesEnter() const override { return true; }
  /// A locked one opens no dialog to wait for.
  bool IsClickedBy(const QWidget& /*part*/) const override { return m_IsLocked; }

  void Choose();

  Box* m_Box;
  ColorSwatch* m_Swatch;
};

}  // namespace cardwright::qt
