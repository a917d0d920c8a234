// SPDX-License-Identifier: MIT
#include "cardwright/model/CThemeSelector.h"

#include "cardwright/model/WidgetFields.h"

namespace cardwright {

struct CThemeSelector::Tables {
  using W = ThemeSelectorWidget;
  using enum PropertyTypeEnum;

  static constexpr Field kText{rows::GetCaption, SelectText};
  static constexpr Field kStoredText{StoredText, nullptr};
  static constexpr Field kCreate = WidgetText<&W::CreateThemeText, &W::SetCreateThemeText>;

  static constexpr auto kRows =
      Rows(rows::Name, PropertyRow{u"Text", ptString, messages::SelectedTextHelp, kText}, rows::BackColor,
           rows::Font, rows::Left, rows::Top, rows::Width, rows::ForeColor, rows::Attribute, rows::IsNeeded,
           PropertyRow{u"CreateThemeText", ptString, messages::CreateThemeTextHelp, kCreate});
  // Text selects an entry: it is read last, after the list was filled.
  static constexpr auto kKeys =
      Keys(keys::Key(u"Text", kStoredText), keys::BackColor, keys::Font, keys::GeometryWithoutHeight,
           keys::ForeColor, keys::Key(u"CreateThemeText", kCreate), keys::Attribute, keys::IsNeeded);
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CThemeSelector::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CThemeSelector",
         .type = ControlTypeEnum::ctThemeSelector,
         .typeText = u"themeselector",
         .widgetIdentifier = u"CardwrightCtrl.ThemeSelector",
         .create = MakeControl<CThemeSelector>,
         .design = {.displayName = "Theme selector",
                    .defaultWidth = 144,
                    .defaultHeight = 24,
                    .hasFixedHeight = true,
                    .refreshesWhenNew = false},
         .value = {.row = u"Text", .requiredRow = u"Text"}});

void CThemeSelector::FillList() {
  HandOverConnection();
  BoundAs<ThemeSelectorWidget>(*this).RefreshThemes();
}

}  // namespace cardwright
