// SPDX-License-Identifier: MIT
#include "cardwright/model/CListBox.h"

#include "cardwright/model/ListEntries.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/storage/SectionReader.h"

namespace cardwright {
namespace {

constexpr float kColumnMargin = 4;  // pixels that the view's edges take from the column

}  // namespace

struct CListBox::Tables {
  static Variant GetMultiSelect(const TableControl& c) {
    return As<CListBox>(c).View().HasCheckBoxes() ? u"True" : u"False";
  }
  static constexpr Field kMultiSelect{
      GetMultiSelect, [](TableControl& c, const Variant& value) { As<CListBox>(c).SetMultiSelect(value); }};
  static constexpr Field kStoredMultiSelect{GetMultiSelect, [](TableControl& c, const Variant& value) {
                                              As<CListBox>(c).View().SetCheckBoxes(ToBoolean(value));
                                            }};
  static constexpr Field kCurrentItem{
      [](const TableControl& c) -> Variant { return As<CListBox>(c).CurrentItem(); }};

  // MultiSelect has the help of another row, as grids have always shown it.
  static constexpr auto kRows = Rows(
      rows::Name,
      PropertyRow{u"Text", PropertyTypeEnum::ptString, messages::SelectedTextHelp, Stored<&CListBox::m_Text>},
      rows::BackColor, rows::Font, rows::Left, rows::Top, rows::Width, rows::Height, rows::ForeColor,
      PropertyRow{u"Items", PropertyTypeEnum::ptCollection, messages::ListItemsHelp, kItemsField<CListBox>},
      PropertyRow{u"MultiSelect", PropertyTypeEnum::ptBoolean, messages::InitializeHelp, kMultiSelect},
      rows::Attribute, rows::IsNeeded);
  static constexpr auto kHidden =
      Rows(PropertyRow{u"CurrentItem", PropertyTypeEnum::ptNone, 0, kCurrentItem});
  static constexpr auto kKeys =
      Keys(keys::Key(u"Text", Stored<&CListBox::m_Text>), keys::BackColor, keys::Font, keys::Geometry,
           keys::ForeColor, keys::Attribute, kItemsNumberKey<CListBox>, keys::IsNeeded,
           keys::Key(u"MultiSelect", kStoredMultiSelect), kItemsKey<CListBox>);
  static constexpr auto kEvents = EventNames(u"OnClick", u"OnItemCheck");
};

constinit const ClassTable CListBox::kTable =
    DefineClass<Tables::kRows, Tables::kHidden, Tables::kKeys, Tables::kEvents>(
        {.className = u"CListBox",
         .type = ControlTypeEnum::ctListBox,
         .typeText = u"ListBox",
         .widgetIdentifier = u"MSComctlLib.ListViewCtrl.2",
         .create = MakeControl<CListBox>,
         .design = {.identifier = u"MsComCtlLib.ListViewCtrl.2",
                    .displayName = "List box",
                    .defaultWidth = 144,
                    .defaultHeight = 96,
                    .minimumDraggedHeight = 0}});

ListViewWidget& CListBox::View() const {
  if (!Bound()) Raise(ErrorNumber::ObjectNotSet);
  return static_cast<ListViewWidget&>(*Bound());
}

void CListBox::SetName(const Text& name) {
  Control::SetName(name);
  if (Designer()) ShowName();
}

void CListBox::ShowName() {
  if (!Bound()) return;
  View().Clear();
  View().AddRow(m_UserName);
  View().SetSelectedRow(1);
}

Ref<CItem> CListBox::CurrentItem() const {
  const int row = View().SelectedRow();
  return row > 0 ? m_Items->Item(Variant(row)) : nullptr;
}

Text CListBox::Value(std::optional<Variant>) const {
  const Ref<CItem> item = CurrentItem();
  return item ? item->m_Value : Text();
}

void CListBox::ShowValue(const Text&, const Text& value) {
  const std::int32_t position = m_Items->FindValue(value);
  if (position > 0) View().SetSelectedRow(position);
}

// Without a selection the value of the control before it is stored again (AttributeBinding.cpp says why).
bool CListBox::TakeValue(Text& value) const {
  if (const Ref<CItem> item = CurrentItem()) value = item->m_Value;
  return true;
}

void CListBox::FillWidget() {
  View().Clear();
  for (std::int32_t i = 1; i <= m_Items->Count(); ++i) {
    const Ref<CItem> item = m_Items->Item(Variant(i));
    if (!item) continue;
    View().AddRow(item->m_Text);
    if (item->m_Checked && View().HasCheckBoxes()) View().SetRowChecked(View().RowCount(), true);
  }
}

void CListBox::SelectStoredText() {
  for (int row = 1; row <= View().RowCount(); ++row) {
    if (!EqualsNoCase(View().RowText(row), m_Text)) continue;
    View().SetSelectedRow(row);
    return;
  }
}

void CListBox::Refresh() {
  FillWidget();
  SelectStoredText();
  View().Refresh();
}

void CListBox::SetMultiSelect(const Variant& value) {
  const bool wanted = ToBoolean(value);
  View().SetCheckBoxes(wanted);
  if (wanted) SetName(m_UserName);
  View().Refresh();
}

void CListBox::FitColumn(float margin, ScaleMode scale) {
  View().SetColumnWidth(View().Width() - PixelsToScale(margin, scale));
}

void CListBox::FinishDrawing() {
  if (Surface* surface = OwnerSurface()) FitColumn(kColumnMargin, surface->Scale());
}

void CListBox::FinishRead(const SectionReader& section) {
  m_Items = CItems::Read(section);
  if (Designer()) {
    ShowName();
  } else {
    FillWidget();
  }
  // Fails for a list narrower than the margin.
  BestEffort([&] { FitColumn(Input() ? kColumnMargin : 0, Module().formScaleMode); });
  if (!Input() || m_Text.IsEmpty()) return;
  SelectStoredText();
  const int selected = View().SelectedRow();
  if (View().HasCheckBoxes() && selected > 0) View().SetRowChecked(selected, true);
}

void CListBox::OnItemCheck(int index) {
  if (!Input()) return;
  if (const Ref<CItem> item = m_Items->Item(Variant(index))) item->m_Checked = View().IsRowChecked(index);
  View().SetSelectedRow(index);
  RunScriptEvent(u"OnItemCheck");
}

}  // namespace cardwright
