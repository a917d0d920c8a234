// SPDX-License-Identifier: MIT
#include "cardwright/model/CColorSelector.h"

#include "cardwright/model/WidgetFields.h"

namespace cardwright {

struct CColorSelector::Tables {
  using W = ColorSelectorWidget;
  using enum PropertyTypeEnum;

  static constexpr Field kColor = WidgetColor<&W::Color, &W::SetColor>;
  static constexpr Field kTitle = WidgetText<&W::Title, &W::SetTitle>;
  static constexpr Field kMask = Stored<&CColorSelector::m_MaskValue>;
  static constexpr Field kBorder = WidgetBorder<W>;

  static constexpr auto kRows = Rows(
      rows::Name, PropertyRow{u"Color", ptColor, messages::ColorHelp, kColor}, rows::BackColor, rows::Left,
      rows::Top, rows::Width, rows::Height, PropertyRow{u"Title", ptString, messages::TitleHelp, kTitle},
      PropertyRow{.name = u"MaskValue",
                  .type = ptString,
                  .description = messages::MaskValueHelp,
                  .field = kMask,
                  .argument = messages::ColorMaskParameters},
      PropertyRow{u"Border", ptBoolean, messages::BorderHelp, kBorder}, rows::Attribute, rows::IsNeeded);
  static constexpr auto kKeys =
      Keys(keys::ColorKey(u"Color", kColor), keys::Geometry, keys::Attribute, keys::IsNeeded,
           keys::Key(u"Border", kBorder), keys::Key(u"Title", kTitle), keys::Key(u"MaskValue", kMask));
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CColorSelector::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CColorSelector",
         .type = ControlTypeEnum::ctColorSelector,
         .typeText = u"colorselector",
         .widgetIdentifier = u"CardwrightCtrl.ColorSelector",
         .create = MakeControl<CColorSelector>,
         .design = {.displayName = "Colour selector",
                    .surfaceColors = SurfaceColors::Back,
                    .defaultWidth = 64,
                    .defaultHeight = 24}});

Text CColorSelector::Value(std::optional<Variant> params) const {
  return BoundAs<ColorSelectorWidget>(*this).Value(TemplateOf(params, m_MaskValue));
}

}  // namespace cardwright
