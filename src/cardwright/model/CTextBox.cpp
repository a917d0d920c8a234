// SPDX-License-Identifier: MIT
#include "cardwright/model/CTextBox.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct CTextBox::Tables {
  static constexpr std::u16string_view kInputTypes[] = {u"Text", u"Float", u"Integer"};

  static constexpr auto kRows =
      Rows(rows::Name, rows::Text, rows::BackColor, rows::Font, rows::Left, rows::Top, rows::Width,
           rows::Height, rows::ForeColor,
           PropertyRow{u"InputType", PropertyTypeEnum::ptList, messages::InputTypeHelp,
                       Stored<&CTextBox::m_InputType>, kInputTypes},
           PropertyRow{u"MinusSignEnabled", PropertyTypeEnum::ptBoolean, messages::MinusSignHelp,
                       Stored<&TextEntry::m_MinusSignEnabled>},
           rows::Attribute, rows::IsNeeded);
  static constexpr auto kKeys =
      Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor, keys::Attribute,
           keys::IsNeeded, keys::Key(u"MinusSignEnabled", Stored<&TextEntry::m_MinusSignEnabled>),
           keys::Key(u"InputType", Stored<&CTextBox::m_InputType>));
  static constexpr auto kEvents = EventNames(u"OnChange", u"OnClick");
};

constinit const ClassTable CTextBox::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CTextBox",
         .type = ControlTypeEnum::ctTextBox,
         .typeText = u"TextBox",
         .widgetIdentifier = u"vb.textbox",
         .widgetType = u"TextBox",
         .create = MakeControl<CTextBox>,
         .design = {.identifier = u"VB.TextBox",
                    .displayName = "Text box",
                    .captionPrefix = u"Text",
                    .defaultWidth = 144,
                    .defaultHeight = 24},
         .value = {.row = u"Text", .requiredRow = u"Text"}});

void CTextBox::ChooseInputMode() {
  if (Val(Bound()->Tag()) != 0) return;
  if (EqualsNoCase(m_InputType, u"integer")) Bound()->SetTag(u"1");
  if (EqualsNoCase(m_InputType, u"float")) Bound()->SetTag(u"2");
}

// On the design surface the text cannot be edited.
void CTextBox::FinishRead(const SectionReader&) {
  if (Designer()) static_cast<TextWidget*>(Bound())->SetLocked(true);
}

}  // namespace cardwright
