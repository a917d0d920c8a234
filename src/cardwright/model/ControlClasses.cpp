#include "cardwright/model/ControlClasses.h"

#include "cardwright/model/CAttributeSelector.h"
#include "cardwright/model/CCheckBox.h"
#include "cardwright/model/CColorSelector.h"
#include "cardwright/model/CComboBox.h"
#include "cardwright/model/CCommandButton.h"
#include "cardwright/model/CFontSelector.h"
#include "cardwright/model/CFrame.h"
#include "cardwright/model/CLabel.h"
#include "cardwright/model/CListBox.h"
#include "cardwright/model/COptionButton.h"
#include "cardwright/model/CResourceSelector.h"
#include "cardwright/model/CTextBox.h"
#include "cardwright/model/CTextBoxMultiline.h"
#include "cardwright/model/CThemeSelector.h"

namespace cardwright {
namespace {

template <class C>
constexpr ControlClass Class(ControlTypeEnum type) {
  return {type, &C::kTable, [] { return Ref<Control>(MakeRef<C>()); }};
}

using enum ControlTypeEnum;
constexpr ControlClass kClasses[] = {
    Class<CLabel>(ctLabel),
    Class<CTextBox>(ctTextBox),
    Class<CFrame>(ctFrame),
    Class<CCheckBox>(ctCheckBox),
    Class<COptionButton>(ctOptionButton),
    Class<CComboBox>(ctComboBox),
    Class<CCommandButton>(ctCommandButton),
    Class<CTextBoxMultiline>(ctTextBoxMultiline),
    Class<CResourceSelector>(ctResourceSelector),
    Class<CThemeSelector>(ctThemeSelector),
    Class<CAttributeSelector>(ctAttributeSelector),
    Class<CFontSelector>(ctFontSelector),
    Class<CColorSelector>(ctColorSelector),
    Class<CListBox>(ctListBox),
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

const ControlClass* FindControlClass(ControlTypeEnum type) noexcept {
  for (const ControlClass& candidate : kClasses)
    if (candidate.type == type) return &candidate;
  return nullptr;
}

}  // namespace cardwright
