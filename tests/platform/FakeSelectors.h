// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/platform/ValueTemplate.h"
#include "platform/FakeWidgets.h"

namespace cardwright {

/// What the selectors have besides the common state: the lock, and the listener that a test speaks for.
template <class Base>
class FakeSelector : public FakeWidget<Base> {
 public:
  Text TypeName() const override { return Base::TypeName(); }
  Text DisplayText() const override { return Base::DisplayText(); }
  void SetDisplayText(const Text& text) override { Base::SetDisplayText(text); }
  void SetListener(WidgetListener* wanted) override { listener = wanted; }
  bool IsLocked() const override { return m_Locked; }
  void SetLocked(bool locked) override { m_Locked = locked; }

  WidgetListener* listener = nullptr;

 private:
  bool m_Locked = false;
};

class FakeResource : public FakeSelector<ResourceSelectorWidget> {
 public:
  Text Path() const override { return m_Path; }
  void SetPath(const Text& path) override {
    const bool differs = m_Path != path;
    m_Path = path;
    if (differs && listener) listener->OnChange();
  }
  OleColor BackColorBkg() const override { return m_Ground; }
  void SetBackColorBkg(OleColor color) override { m_Ground = color; }
  bool BrowseForFolder() const override { return m_Folders; }
  void SetBrowseForFolder(bool folder) override { m_Folders = folder; }
  Text Filter() const override { return m_Filter; }
  void SetFilter(const Text& filter) override { m_Filter = filter; }
  bool IsInputTextEnabled() const override { return m_Typing; }
  void SetInputTextEnabled(bool enabled) override { m_Typing = enabled; }
  bool ShowSave() const override { return m_Save; }
  void SetShowSave(bool save) override { m_Save = save; }
  Text Title() const override { return m_Title; }
  void SetTitle(const Text& title) override { m_Title = title; }
  bool MultiSelect() const override { return m_Several; }
  void SetMultiSelect(bool several) override { m_Several = several; }
  Text StartFolder() const override { return m_Start; }
  void SetStartFolder(const Text& folder) override { m_Start = folder; }
  /// Keeps a height of its own where one is set.
  void Move(float left, float top, float width, float height) override {
    FakeWidget::Move(left, top, width, ownHeight.value_or(height));
  }

  std::optional<float> ownHeight;

 private:
  Text m_Path, m_Filter, m_Title, m_Start;
  OleColor m_Ground = 0;
  bool m_Folders = false, m_Typing = true, m_Save = false, m_Several = false;
};

/// A list that a test fills, as the host's reply would.
template <class Base>
class FakeHostList : public FakeSelector<Base> {
 public:
  int ListCount() const override { return static_cast<int>(shown.size()); }
  Text ListText(int index) const override {
    ++textsRead;
    if (index < 0 || index >= ListCount()) Raise(ErrorNumber::InvalidCall);
    return shown[static_cast<std::size_t>(index)];
  }
  std::int32_t ItemData(int index) const override { return index * 10; }
  int ListIndex() const override { return m_Index; }
  void SetListIndex(int index) override {
    if (index < -1 || index >= ListCount()) Raise(ErrorNumber::InvalidPropertyValue);
    const bool differs = m_Index != index;
    m_Index = index;
    if (differs && this->listener) this->listener->OnClick();
  }
  std::int32_t ConnectionHandle() const override { return m_Handle; }
  void SetConnectionHandle(std::int32_t handle) override { m_Handle = handle; }

  std::vector<Text> answered;  ///< what the next refresh shows
  std::vector<Text> shown;
  mutable int textsRead = 0;

 protected:
  void Refill() {
    const Text chosen = this->DisplayText();
    shown = answered;
    const auto found = std::ranges::find(shown, chosen);
    m_Index = found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
    this->calls += u"refill@" + ToText(Variant(m_Handle)) + u" ";
  }

 private:
  int m_Index = -1;
  std::int32_t m_Handle = 0;
};

class FakeThemes : public FakeHostList<ThemeSelectorWidget> {
 public:
  Text CreateThemeText() const override { return m_Create; }
  void SetCreateThemeText(const Text& text) override { m_Create = text; }
  void RefreshThemes() override { Refill(); }

 private:
  Text m_Create;
};

class FakeAttributes : public FakeHostList<AttributeSelectorWidget> {
 public:
  std::int32_t FeatureType() const override { return m_Type; }
  void SetFeatureType(std::int32_t type) override { m_Type = type; }
  void LinkThemeSelector(Ref<ThemeSelectorWidget> linked) override {
    calls += u"themes ";
    themes = std::move(linked);
  }
  void LinkFeatureSelector(Ref<ComboWidget> linked) override {
    calls += u"types ";
    types = std::move(linked);
  }
  void RefreshAttributes() override { Refill(); }

  Ref<ThemeSelectorWidget> themes;
  Ref<ComboWidget> types;

 private:
  std::int32_t m_Type = 0;
};

class FakeFontSelector : public FakeSelector<FontSelectorWidget> {
 public:
  OleColor BackColorBkg() const override { return m_Ground; }
  void SetBackColorBkg(OleColor color) override { m_Ground = color; }
  Text Title() const override { return m_Title; }
  void SetTitle(const Text& title) override { m_Title = title; }
  std::int32_t BorderStyle() const override { return m_Border; }
  void SetBorderStyle(std::int32_t style) override { m_Border = style; }
  bool AutoSize() const override { return m_AutoSize; }
  void SetAutoSize(bool on) override { m_AutoSize = on; }
  Text Value(const Text& mask) const override {
    return FillFontTemplate(mask, GetFont()->Values(), ForeColor());
  }

 private:
  Text m_Title;
  OleColor m_Ground = 0;
  std::int32_t m_Border = 0;
  bool m_AutoSize = false;
};

class FakeColorSelector : public FakeSelector<ColorSelectorWidget> {
 public:
  OleColor Color() const override { return m_Color; }
  void SetColor(OleColor color) override { m_Color = color; }
  Text Title() const override { return m_Title; }
  void SetTitle(const Text& title) override { m_Title = title; }
  std::int32_t BorderStyle() const override { return m_Border; }
  void SetBorderStyle(std::int32_t style) override { m_Border = style; }
  Text Value(const Text& mask) const override { return FillColorTemplate(mask, Color()); }

 private:
  Text m_Title;
  OleColor m_Color = 0;
  std::int32_t m_Border = 0;
};

}  // namespace cardwright
