#include "cardwright/designer/ControlKinds.h"

namespace cardwright {
namespace {

using enum ControlTypeEnum;

// The list view's identifier has a spelling of its own, which hosts with a widget factory of their own have
// seen ever since; ours takes any case.
constexpr ControlKind kKinds[] = {
    {ctDefault, u"Default", u"", nullptr},
    {ctCheckBox, u"CheckBox", u"VB.CheckBox", u"CheckBox"},
    {ctComboBox, u"ComboBox", u"VB.ComboBox", u"ComboBox"},
    {ctCommandButton, u"CommandButton", u"VB.CommandButton", u"CommandButton"},
    {ctFrame, u"Frame", u"VB.Frame", u"Frame"},
    {ctLabel, u"Label", u"VB.Label", u"Label"},
    {ctListBox, u"ListBox", u"MsComCtlLib.ListViewCtrl.2", nullptr},
    {ctOptionButton, u"OptionButton", u"VB.OptionButton", u"OptionButton"},
    {ctTextBox, u"TextBox", u"VB.TextBox", u"Text"},
    {ctTextBoxMultiline, u"TextBoxMulti", u"CardwrightCtrl.MultilineTextBox", u"Text"},
    {ctResourceSelector, u"ResourceSelector", u"CardwrightCtrl.ResourceSelector", nullptr},
    {ctThemeSelector, u"ThemeSelector", u"CardwrightCtrl.ThemeSelector", nullptr},
    {ctFontSelector, u"FontSelector", u"CardwrightCtrl.FontSelector", nullptr},
    {ctColorSelector, u"ColorSelector", u"CardwrightCtrl.ColorSelector", nullptr},
    {ctAttributeSelector, u"AttributeSelector", u"CardwrightCtrl.AttributeSelector", nullptr},
    // A widget without a class behind it: hosts draw it for its own sake, and projects never hold it.
    {ctDbTableViewer, u"DbTableViewer", u"CardwrightCtrl.DbTableViewer", nullptr},
};

struct TypeWord {
  std::u16string_view typeName;
  ControlTypeEnum type;
};
constexpr TypeWord kTypeWords[] = {
    {u"multilinetextbox", ctTextBoxMultiline},   {u"resourceselector", ctResourceSelector},
    {u"themeselector", ctThemeSelector},         {u"dbtableviewer", ctDbTableViewer},
    {u"attributeselector", ctAttributeSelector}, {u"fontselector", ctFontSelector},
    {u"colorselector", ctColorSelector},         {u"listview", ctListBox},
};

}  // namespace

const ControlKind* FindKind(ControlTypeEnum type) noexcept {
  for (const ControlKind& kind : kKinds)
    if (kind.type == type) return &kind;
  return nullptr;
}

const ControlKind* FindKindExactly(std::u16string_view word) noexcept {
  for (const ControlKind& kind : kKinds)
    if (kind.word == word) return &kind;
  return nullptr;
}

const ControlKind* FindKind(std::u16string_view word) noexcept {
  for (const ControlKind& kind : kKinds)
    if (EqualsNoCase(kind.word, word)) return &kind;
  return nullptr;
}

Text WordForWidget(const Text& typeName) {
  for (const TypeWord& known : kTypeWords)
    if (EqualsNoCase(known.typeName, typeName)) return FindKind(known.type)->word;
  return typeName;
}

}  // namespace cardwright
