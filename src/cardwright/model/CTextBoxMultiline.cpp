// SPDX-License-Identifier: MIT
#include "cardwright/model/CTextBoxMultiline.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct CTextBoxMultiline::Tables {
  // Unlike in CTextBox, MinusSignEnabled is the third row: hosts show the rows in this order.
  static constexpr auto kRows =
      Rows(rows::Name, rows::Text,
           PropertyRow{u"MinusSignEnabled", PropertyTypeEnum::ptBoolean, messages::MinusSignHelp,
                       Stored<&TextEntry::m_MinusSignEnabled>},
           rows::BackColor, rows::Font, rows::Left, rows::Top, rows::Width, rows::Height, rows::ForeColor,
           rows::Attribute, rows::IsNeeded);
  static constexpr auto kKeys =
      Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor, keys::Attribute,
           keys::IsNeeded, keys::Key(u"MinusSignEnabled", Stored<&TextEntry::m_MinusSignEnabled>));
  static constexpr auto kEvents = EventNames(u"OnChange", u"OnClick");
};

constinit const ClassTable CTextBoxMultiline::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CTextBoxMultiline",
         .type = ControlTypeEnum::ctTextBoxMultiline,
         .typeText = u"textboxmultiline",
         .widgetIdentifier = u"CardwrightCtrl.MultilineTextBox",
         .widgetType = u"MultilineTextBox",
         .create = MakeControl<CTextBoxMultiline>,
         .design = {.displayName = "Text box, lines",
                    .captionPrefix = u"Text",
                    .defaultWidth = 192,
                    .defaultHeight = 72},
         .value = {.row = u"Text", .requiredRow = u"Text"}});

}  // namespace cardwright
