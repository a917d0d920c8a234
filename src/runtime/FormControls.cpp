#include "runtime/FormControls.h"

#include <algorithm>

#include "platform/Color.h"
#include "runtime/FormInput.h"

namespace cardwright {
namespace {

constexpr Member kMembers[] = {
    Property<&FormControls::Controls>(u"Controls"),
    Property<&FormControls::Response, &FormControls::SetResponse>(u"Response"),
    Method<&FormControls::CreateColor>(u"CreateColor"),
    Method<&FormControls::UserCloseForm>(u"UserCloseForm"),
    Method<&FormControls::Ok>(u"Ok"),
    Method<&FormControls::Cancel>(u"Cancel"),
};

std::uint8_t ColorPart(std::int32_t part) { return static_cast<std::uint8_t>(std::clamp(part, 0, 255)); }

}  // namespace

const MemberTable& FormControls::Members() const {
  static const MemberTable table(kMembers);
  return table;
}

FormInput& FormControls::Form() const {
  auto* form = dynamic_cast<FormInput*>(m_Form.get());
  if (!form) Raise(ErrorNumber::ObjectNotSet);
  return *form;
}

Variant FormControls::Controls(std::optional<Variant> name) const {
  return name ? Form().Controls().Item(*name) : Variant(Form().ControlCollection());
}

std::int32_t FormControls::CreateColor(std::int32_t red, std::int32_t green, std::int32_t blue) const {
  return Rgb(ColorPart(red), ColorPart(green), ColorPart(blue));
}

void FormControls::UserCloseForm() { Form().CloseWithoutChecks(); }
void FormControls::Ok() { Form().Ok(); }
void FormControls::Cancel() { Form().Cancel(); }

}  // namespace cardwright
