// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/selectors/QtSelector.h"

namespace cardwright::qt {

class FontSample;

/// A sample of a font, its name and size in the font itself, and a button that opens the desktop's font
/// dialog. A family that is not installed keeps its name, and the sample says so. On the keyboard blank,
/// Enter and F4 open the dialog.
class QtFontSelector final : public QtButtonSelector<FontSelectorWidget> {
 public:
  explicit QtFontSelector(WidgetPlace place);

  /// A sample has no text: reading gives "", setting is ignored.
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  void SetFont(Ref<Font> font) override;

  std::int32_t BorderStyle() const override;
  void SetBorderStyle(std::int32_t style) override;
  bool AutoSize() const override;
  void SetAutoSize(bool on) override;
  Text Value(const Text& mask) const override;

 private:
  class Box;

  float HeightFor(float height) const override;
  void OnFontApplied() override { FollowFont(); }
  void OnFontChanged(const Font& font) override;
  bool TakesEnter() const override { return true; }
  void RunDialog() override;

  void FollowFont();
  void NotifyFontChange();

  Box* m_Box;
  FontSample* m_Sample;
  FontValues m_Shown;
  bool m_AutoSize = false;
};

}  // namespace cardwright::qt
