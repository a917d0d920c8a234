// SPDX-License-Identifier: MIT
#include "cardwright/model/CComboBox.h"

#include "cardwright/model/ListEntries.h"
#include "cardwright/shared/FindListItem.h"
#include "cardwright/storage/SectionReader.h"

namespace cardwright {

struct CComboBox::Tables {
  static constexpr Field kText{rows::GetCaption, [](TableControl& c, const Variant& text) {
                                 As<CComboBox>(c).SelectText(ToText(text));
                               }};
  static constexpr Field kEditable{
      [](const TableControl& c) -> Variant { return As<CComboBox>(c).m_Editable; },
      [](TableControl& c, const Variant& value) { As<CComboBox>(c).SetEditable(ToText(value)); }};
  static constexpr Field kMinusSign = Stored<&TextEntry::m_MinusSignEnabled>;

  static constexpr auto kRows = Rows(
      rows::Name, PropertyRow{u"Text", PropertyTypeEnum::ptString, messages::SelectedTextHelp, kText},
      rows::BackColor, rows::Font, rows::Left, rows::Top, rows::Width, rows::ForeColor,
      PropertyRow{u"Editable", PropertyTypeEnum::ptBoolean, messages::EditableHelp, kEditable},
      PropertyRow{u"Items", PropertyTypeEnum::ptCollection, messages::ComboItemsHelp, kItemsField<CComboBox>},
      PropertyRow{u"MinusSignEnabled", PropertyTypeEnum::ptBoolean, messages::MinusSignHelp, kMinusSign},
      rows::Attribute, rows::IsNeeded);
  // Text selects an item: it is read last, after the items.
  static constexpr auto kKeys =
      Keys(keys::Key(u"Text", ReadOnly(kText)), keys::BackColor, keys::Font, keys::GeometryWithoutHeight,
           keys::ForeColor, keys::Key(u"Editable", kEditable), keys::Attribute, kItemsNumberKey<CComboBox>,
           keys::IsNeeded, keys::Key(u"MinusSignEnabled", kMinusSign), kItemsKey<CComboBox>);
  static constexpr auto kEvents = EventNames(u"OnChange", u"OnClick");
};

constinit const ClassTable CComboBox::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CComboBox",
         .type = ControlTypeEnum::ctComboBox,
         .typeText = u"ComboBox",
         .widgetIdentifier = u"vb.combobox",
         .create = MakeControl<CComboBox>,
         .design = {.identifier = u"VB.ComboBox",
                    .displayName = "Combo box",
                    .captionPrefix = u"ComboBox",
                    .defaultWidth = 144,
                    .defaultHeight = 24,
                    .hasFixedHeight = true}});

ComboWidget& CComboBox::Box() const {
  if (!Bound()) Raise(ErrorNumber::ObjectNotSet);
  return static_cast<ComboWidget&>(*Bound());
}

Text CComboBox::Value(std::optional<Variant>) const {
  const Ref<CItem> item = CurrentItem();
  return item ? item->m_Value : Text();
}

void CComboBox::ShowValue(const Text&, const Text& value) {
  const std::int32_t position = m_Items->FindValue(value);
  if (position > 0) Box().SetListIndex(position - 1);
  if (TakesTyping() && Box().DisplayText() != value) SelectText(value);
}

bool CComboBox::TakeValue(Text& value) const {
  const Ref<CItem> item = CurrentItem();
  value = item ? item->m_Value : Box().DisplayText();
  return true;
}

void CComboBox::TakeRequiredValue(Text& value) const {
  value = Box().DisplayText();
  if (m_Items->Count() > 0 && Box().ListIndex() < 0) value = Text();
}

void CComboBox::FillWidget() {
  Box().Clear();
  for (std::int32_t i = 1; i <= m_Items->Count(); ++i)
    if (const Ref<CItem> item = m_Items->Item(Variant(i))) Box().AddItem(item->m_Text);
}

void CComboBox::Refresh() {
  FillWidget();
  Box().Refresh();
}

void CComboBox::SelectText(const Text& text) {
  const int found = FindListItem(Box(), text, {.exact = true});
  if (found >= 0) Box().SetListIndex(found);
  if (Box().ListIndex() < 0 && !text.IsEmpty() && TakesTyping()) Box().SetDisplayText(text);
}

void CComboBox::SetEditable(const Text& editable) {
  m_Editable = editable;
  if (Bound()) Box().SetEditable(TakesTyping());
}

void CComboBox::FinishRead(const SectionReader& section) {
  m_Items = CItems::Read(section);
  FillWidget();
  const auto stored = section.Find(u"Text");
  SelectText(stored ? ToText(*stored) : Box().DisplayText());
  if (Designer()) Box().SetLocked(true);
}

// While Editable is false, no key reaches the widget, not even an arrow key: forms rely on lists that only
// the mouse changes.
void CComboBox::OnKeyDown(int& keyCode, int& shift) {
  if (TakesTyping()) return;
  keyCode = 0;
  shift = 0;
}

}  // namespace cardwright
