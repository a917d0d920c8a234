// SPDX-License-Identifier: MIT
#include "cardwright/model/COptionButton.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct COptionButton::Tables {
  static constexpr auto kRows = Rows(
      rows::Name, rows::Text, rows::BackColor, rows::Font, rows::Left, rows::Top, rows::Width, rows::Height,
      rows::ForeColor,
      PropertyRow{u"Value", PropertyTypeEnum::ptString, messages::ValueHelp, Stored<&COptionButton::m_Value>},
      PropertyRow{
          u"Selected", PropertyTypeEnum::ptBoolean, messages::SelectedHelp, {GetSelected, LetSelected}},
      rows::Attribute);
  static constexpr auto kKeys =
      Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor, keys::Attribute,
           keys::Key(u"Selected", Stored<&StateControl::m_Selected>, u"False"),
           keys::Key(u"Value", Stored<&COptionButton::m_Value>));
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable COptionButton::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"COptionButton",
         .type = ControlTypeEnum::ctOptionButton,
         .typeText = u"OptionButton",
         .widgetIdentifier = u"vb.optionbutton",
         .create = MakeControl<COptionButton>,
         .design = {.identifier = u"VB.OptionButton",
                    .displayName = "Option button",
                    .captionPrefix = u"OptionButton",
                    .surfaceColors = SurfaceColors::BackAndFore,
                    .defaultWidth = 128,
                    .defaultHeight = 24}});

bool COptionButton::Accepts(const Widget& widget) const {
  const auto* state = dynamic_cast<const StateWidget*>(&widget);
  return state && state->IsOption();
}

Text COptionButton::Value(std::optional<Variant>) const {
  return FlagIsSet(ReadSelected()) ? m_Value : Text();
}

void COptionButton::ShowValue(const Text& attribute, const Text& value) {
  const Ref<Widget> container = Box().Container();
  if (!Owner()) return;
  for (const Ref<IControl>& each : ControlsOf(Owner()->Controls())) {
    auto* button = dynamic_cast<COptionButton*>(each.get());
    if (!button || !button->Bound() || button->Bound()->Container() != container) continue;
    if (button->m_Attribute != attribute || button->m_Value != value) continue;
    return button->SetRow(u"Selected", Variant(true));
  }
}

bool COptionButton::TakeValue(Text& value) const {
  if (Box().State() == 0) return false;
  value = m_Value;
  return true;
}

}  // namespace cardwright
