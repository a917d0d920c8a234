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
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(u"CLabel", u"vb.label", u"Label");

}  // namespace cardwright
