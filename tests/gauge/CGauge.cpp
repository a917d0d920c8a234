// SPDX-License-Identifier: MIT
#include "gauge/CGauge.h"

#include "cardwright/model/CommonFields.h"
#include "cardwright/shared/Messages.h"

namespace cardwright {

struct CGauge::Tables {
  static constexpr PropertyRow kLevel{u"Level", PropertyTypeEnum::ptInteger, messages::ValueHelp,
                                      rows::Text.field};

  static constexpr auto kRows = Rows(rows::Name, kLevel, rows::BackColor, rows::Left, rows::Top, rows::Width,
                                     rows::Height, rows::ForeColor, rows::Attribute, rows::IsNeeded);
  static constexpr auto kKeys = Keys(keys::Key(u"Level", rows::Text.field), keys::BackColor, keys::Geometry,
                                     keys::ForeColor, keys::Attribute, keys::IsNeeded);
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CGauge::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CGauge",
         .type = static_cast<ControlTypeEnum>(16),
         .typeText = u"Gauge",
         .widgetIdentifier = u"Measures.Gauge",
         .widgetType = u"Gauge",
         .create = MakeControl<CGauge>,
         .design = {.displayName = "Gauge", .defaultWidth = 120, .defaultHeight = 24},
         .value = {.row = u"Level", .requiredRow = u"Level"}});

Text CGauge::Value(std::optional<Variant>) const { return RowText(u"Level"); }

}  // namespace cardwright
