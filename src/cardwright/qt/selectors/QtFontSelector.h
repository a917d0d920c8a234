#pragma once

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/widgets/QtWidget.h"

namespace cardwright::qt {

class ChoiceButton;
class FontSample;

/// A sample of a font, its name and size in the font itself, and a button that opens the desktop's choice of
/// fonts. A family that is not installed keeps its name, and the sample says so. On the keyboard blank, Enter
/// and F4 open the choice.
class QtFontSelector final : public QtWidget<FontSelectorWidget> {
 public:
  explicit QtFontSelector(WidgetPlace place);

  QWidget* Part(std::u16string_view name) const override;
  /// A sample has no text: empty, and one that is set is passed over.
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  bool IsLocked() const override;
  void SetLocked(bool locked) override;
  void SetFont(Ref<Font> font) override;

  OleColor BackColorBkg() const override;
  void SetBackColorBkg(OleColor color) override;
  Text Title() const override;
  void SetTitle(const Text& title) override;
  std::int32_t BorderStyle() const override;
  void SetBorderStyle(std::int32_t style) override;
  bool AutoSizes() const override;
  void SetAutoSize(bool on) override;
  Text Value(const Text& mask) const override;

 private:
  class Box;

  void CollectColors(QPalette& own, const QPalette& inherited) const override;
  float HeightFor(float height) const override;
  void OnFontApplied() override { FollowFont(); }
  void OnFontChanged(const Font& font) override;
  bool IsBlocked() const override { return m_IsLocked; }
  bool TakesEnter() const override { return true; }
  bool IsClickedBy(const QWidget& part) const override;

  void FollowFont();
  void TellChange();
  void Choose();

  Box* m_Box;
  FontSample* m_Sample;
  ChoiceButton* m_Button;
  FontValues m_Shown;
  Text m_Title;
  OleColor m_BackColorBkg = ToOleColor(SystemColor::ButtonFace);
  bool m_AutoSizes = false, m_IsLocked = false;
};

}  // namespace cardwright::qt
