// SPDX-License-Identifier: MIT
#include "cardwright/model/CCommandButton.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct CCommandButton::Tables {
  static constexpr auto kRows =
      Rows(rows::Name, rows::Text, rows::Font, rows::Left, rows::Top, rows::Width, rows::Height);
  static constexpr auto kKeys = Keys(keys::Text, keys::Font, keys::Geometry);
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CCommandButton::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CCommandButton",
         .type = ControlTypeEnum::ctCommandButton,
         .typeText = u"CommandButton",
         .widgetIdentifier = u"vb.commandbutton",
         .widgetType = u"CommandButton",
         .create = MakeControl<CCommandButton>,
         .design = {.identifier = u"VB.CommandButton",
                    .displayName = "Button",
                    .captionPrefix = u"CommandButton",
                    .defaultWidth = 96,
                    .defaultHeight = 32}});

}  // namespace cardwright
