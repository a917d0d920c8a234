#include "cardwright/model/CCommandButton.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {
namespace {

constexpr auto kRows =
    Rows(rows::Name, rows::Text, rows::Font, rows::Left, rows::Top, rows::Width, rows::Height);
constexpr auto kKeys = Keys(keys::Text, keys::Font, keys::Geometry);
constexpr auto kEvents = EventNames(u"OnClick");

}  // namespace

constinit const ClassTable CCommandButton::kTable =
    DefineClass<kRows, kNoRows, kKeys, kEvents>(u"CCommandButton", u"vb.commandbutton", u"CommandButton");

}  // namespace cardwright
