// SPDX-License-Identifier: MIT
#include "cardwright/model/CCheckBox.h"

#include <cstdlib>

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct CCheckBox::Tables {
  static constexpr Field kValue{[](const TableControl& c) -> Variant { return As<CCheckBox>(c).Value(); }};

  static constexpr auto kRows =
      Rows(rows::Name, rows::Text, rows::BackColor, rows::Font, rows::Left, rows::Top, rows::Width,
           rows::Height, rows::ForeColor,
           PropertyRow{
               u"Selected", PropertyTypeEnum::ptBoolean, messages::SelectedHelp, {GetSelected, LetSelected}},
           rows::Attribute, rows::IsNeeded);
  static constexpr auto kHidden = Rows(PropertyRow{u"Value", PropertyTypeEnum::ptNone, 0, kValue});
  static constexpr auto kKeys =
      Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor, keys::Attribute,
           keys::IsNeeded, keys::Key(u"Selected", Stored<&StateControl::m_Selected>, u"False"));
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CCheckBox::kTable =
    DefineClass<Tables::kRows, Tables::kHidden, Tables::kKeys, Tables::kEvents>(
        {.className = u"CCheckBox",
         .type = ControlTypeEnum::ctCheckBox,
         .typeText = u"CheckBox",
         .widgetIdentifier = u"vb.checkbox",
         .create = MakeControl<CCheckBox>,
         .design = {.identifier = u"VB.CheckBox",
                    .displayName = "Check box",
                    .captionPrefix = u"CheckBox",
                    .surfaceColors = SurfaceColors::BackAndFore,
                    .defaultWidth = 128,
                    .defaultHeight = 24},
         .value = {.row = u"Selected"}});

bool CCheckBox::Accepts(const Widget& widget) const {
  const auto* state = dynamic_cast<const StateWidget*>(&widget);
  return state && !state->IsOption();
}

Text CCheckBox::Value(std::optional<Variant>) const { return ToText(Variant(std::abs(Box().State()))); }

}  // namespace cardwright
