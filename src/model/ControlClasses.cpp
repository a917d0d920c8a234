#include "model/ControlClasses.h"

#include "model/CCheckBox.h"
#include "model/CComboBox.h"
#include "model/CCommandButton.h"
#include "model/CFrame.h"
#include "model/CLabel.h"
#include "model/CListBox.h"
#include "model/COptionButton.h"
#include "model/CTextBox.h"
#include "model/CTextBoxMultiline.h"

namespace cardwright {
namespace {

template <class C>
constexpr ControlClass Class() {
  return {&C::kTable, [] { return Ref<Control>(MakeRef<C>()); }};
}

constexpr ControlClass kClasses[] = {
    Class<CLabel>(),         Class<CTextBox>(),          Class<CFrame>(),
    Class<CCheckBox>(),      Class<COptionButton>(),     Class<CComboBox>(),
    Class<CCommandButton>(), Class<CTextBoxMultiline>(), Class<CListBox>(),
};

struct FixedType {
  std::u16string_view type;
  std::u16string_view identifier;
};
constexpr FixedType kFixedTypes[] = {
    {u"textboxmultiline", u"CardwrightCtrl.MultilineTextBox"},
    {u"resourceselector", u"CardwrightCtrl.ResourceSelector"},
    {u"themeselector", u"CardwrightCtrl.ThemeSelector"},
    {u"dbtableviewer", u"CardwrightCtrl.DbTableViewer"},
    {u"attributeselector", u"CardwrightCtrl.AttributeSelector"},
    {u"fontselector", u"CardwrightCtrl.FontSelector"},
    {u"colorselector", u"CardwrightCtrl.ColorSelector"},
    {u"listbox", u"MSComctlLib.ListViewCtrl.2"},
};

}  // namespace

std::span<const ControlClass> ControlClasses() noexcept { return kClasses; }

Text WidgetIdentifier(std::u16string_view type) {
  for (const FixedType& fixed : kFixedTypes)
    if (EqualsNoCase(fixed.type, type)) return fixed.identifier;
  return Text(u"vb.") + ToLower(type);
}

const ControlClass* FindControlClass(std::u16string_view widgetIdentifier) noexcept {
  for (const ControlClass& candidate : kClasses)
    if (candidate.table->widgetIdentifier == widgetIdentifier) return &candidate;
  return nullptr;
}

}  // namespace cardwright
