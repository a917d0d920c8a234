#include "cardwright/model/COptionButton.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct COptionButton::Tables {
  static constexpr auto kRows =
      Rows(rows::Name, rows::Text, rows::BackColor, rows::Font, rows::Left, rows::Top, rows::Width,
           rows::Height, rows::ForeColor,
           PropertyRow{u"Value", PropertyTypeEnum::ptString, 1024, Stored<&COptionButton::m_Value>},
           PropertyRow{u"Selected", PropertyTypeEnum::ptBoolean, 1010, {GetSelected, LetSelected}},
           rows::Attribute);
  static constexpr auto kKeys =
      Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor, keys::Attribute,
           keys::Key(u"Selected", Stored<&StateControl::m_Selected>, u"False"),
           keys::Key(u"Value", Stored<&COptionButton::m_Value>));
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable COptionButton::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(u"COptionButton", u"vb.optionbutton",
                                                                        u"OptionButton");

bool COptionButton::Accepts(const Widget& widget) const {
  const auto* state = dynamic_cast<const StateWidget*>(&widget);
  return state && state->IsOption();
}

Text COptionButton::Value(std::optional<Variant>) const {
  return FlagIsSet(ReadSelected()) ? m_Value : Text();
}

}  // namespace cardwright
