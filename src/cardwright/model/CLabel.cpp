#include "cardwright/model/CLabel.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {
namespace {

constexpr auto kRows = Rows(rows::Name, rows::Text, rows::BackColor, rows::Font, rows::Left, rows::Top,
                            rows::Width, rows::Height, rows::ForeColor);
constexpr auto kKeys = Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor);
constexpr auto kEvents = EventNames(u"OnClick");

}  // namespace

constinit const ClassTable CLabel::kTable =
    DefineClass<kRows, kNoRows, kKeys, kEvents>(u"CLabel", u"vb.label", u"Label");

}  // namespace cardwright
