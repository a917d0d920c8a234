// SPDX-License-Identifier: MIT
#include "cardwright/model/CLabel.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct CLabel::Tables {
  static constexpr auto kRows = Rows(rows::Name, rows::Text, rows::BackColor, rows::Font, rows::Left,
                                     rows::Top, rows::Width, rows::Height, rows::ForeColor);
  static constexpr auto kKeys =
      Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor);
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CLabel::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CLabel",
         .type = ControlTypeEnum::ctLabel,
         .typeText = u"Label",
         .widgetIdentifier = u"vb.label",
         .widgetType = u"Label",
         .create = MakeControl<CLabel>,
         .design = {.identifier = u"VB.Label",
                    .displayName = "Label",
                    .captionPrefix = u"Label",
                    .surfaceColors = SurfaceColors::BackAndFore,
                    .defaultWidth = 96,
                    .defaultHeight = 20,
                    .hasWindow = false}});

}  // namespace cardwright
