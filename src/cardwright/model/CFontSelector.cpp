// SPDX-License-Identifier: MIT
#include "cardwright/model/CFontSelector.h"

#include "cardwright/model/WidgetFields.h"

namespace cardwright {

struct CFontSelector::Tables {
  using W = FontSelectorWidget;
  using enum PropertyTypeEnum;

  static constexpr Field kBackground = WidgetColor<&W::BackColorBkg, &W::SetBackColorBkg>;
  static constexpr Field kTitle = WidgetText<&W::Title, &W::SetTitle>;
  static constexpr Field kMask = Stored<&CFontSelector::m_MaskValue>;
  static constexpr Field kBorder = WidgetBorder<W>;
  static constexpr Field kAutoSize = WidgetFlag<&W::AutoSize, &W::SetAutoSize>;

  static constexpr auto kRows =
      Rows(rows::Name, PropertyRow{u"Font", ptFont, messages::FontSelectorHelp, rows::Font.field},
           PropertyRow{u"BackColor", ptColor, messages::FontBackColorHelp, rows::BackColor.field},
           PropertyRow{u"BackColorBkg", ptColor, messages::BackColorHelp, kBackground}, rows::Left, rows::Top,
           rows::Width, rows::Height, rows::ForeColor,
           PropertyRow{u"Title", ptString, messages::TitleHelp, kTitle},
           PropertyRow{.name = u"MaskValue",
                       .type = ptString,
                       .description = messages::MaskValueHelp,
                       .field = kMask,
                       .argument = messages::FontMaskParameters},
           PropertyRow{u"Border", ptBoolean, messages::BorderHelp, kBorder},
           PropertyRow{u"AutoSize", ptBoolean, messages::AutoSizeHelp, kAutoSize}, rows::Attribute);
  // Readable and saved as in other classes, but not shown in grids.
  static constexpr auto kHidden = Rows(rows::IsNeeded);
  static constexpr auto kKeys =
      Keys(keys::BackColor, keys::ColorKey(u"BackColorBkg", kBackground), keys::Font, keys::Geometry,
           keys::ForeColor, keys::Attribute, keys::IsNeeded, keys::Key(u"Border", kBorder),
           keys::Key(u"AutoSize", kAutoSize), keys::Key(u"Title", kTitle), keys::Key(u"MaskValue", kMask));
  static constexpr auto kEvents =
      EventNames(u"AfterButtonClick", u"BeforeButtonClick", u"OnChange", u"OnClick");
};

constinit const ClassTable CFontSelector::kTable =
    DefineClass<Tables::kRows, Tables::kHidden, Tables::kKeys, Tables::kEvents>(
        {.className = u"CFontSelector",
         .type = ControlTypeEnum::ctFontSelector,
         .typeText = u"fontselector",
         .widgetIdentifier = u"CardwrightCtrl.FontSelector",
         .create = MakeControl<CFontSelector>,
         .design = {.displayName = "Font selector",
                    .surfaceColors = SurfaceColors::Back,
                    .defaultWidth = 144,
                    .defaultHeight = 32}});

Text CFontSelector::Value(std::optional<Variant> params) const {
  return BoundAs<FontSelectorWidget>(*this).Value(TemplateOf(params, m_MaskValue));
}

}  // namespace cardwright
