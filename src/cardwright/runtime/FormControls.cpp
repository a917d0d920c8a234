// SPDX-License-Identifier: MIT
#include "cardwright/runtime/FormControls.h"

#include <algorithm>
#include <array>

#include "cardwright/model/Enums.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Widget.h"
#include "cardwright/runtime/FormInput.h"

namespace cardwright {
namespace {

template <auto kValue>
std::int32_t Constant(FormControls&) {
  return static_cast<std::int32_t>(kValue);
}

constexpr Member kOperations[] = {
    Property<&FormControls::Controls>(u"Controls"),
    Property<&FormControls::Response, &FormControls::SetResponse>(u"Response"),
    Method<&FormControls::CreateColor>(u"CreateColor"),
    Method<&FormControls::UserCloseForm>(u"UserCloseForm"),
    Method<&FormControls::Ok>(u"Ok"),
    Method<&FormControls::Cancel>(u"Cancel"),
    Method<&FormControls::ControlMenu>(u"ControlMenu"),
    Property<&FormControls::ConstantNames>(u"ConstantNames"),
};

// Values of the form's FeatureType, of a CAttrib's AttribType and of a field's Tag.
constexpr Member kConstants[] = {
    Property<&Constant<FeatureTypeEnum::ftNone>>(u"ftNone"),
    Property<&Constant<FeatureTypeEnum::ftPoint>>(u"ftPoint"),
    Property<&Constant<FeatureTypeEnum::ftArc>>(u"ftArc"),
    Property<&Constant<FeatureTypeEnum::ftPolygon>>(u"ftPolygon"),
    Property<&Constant<AttributeTypeEnum::atCharacter>>(u"atCharacter"),
    Property<&Constant<AttributeTypeEnum::atNumeric>>(u"atNumeric"),
    Property<&Constant<InputTypeEnum::itString>>(u"itString"),
    Property<&Constant<InputTypeEnum::itInteger>>(u"itInteger"),
    Property<&Constant<InputTypeEnum::itFloat>>(u"itFloat"),
};

constexpr auto kFormControlsMembers = [] {
  std::array<Member, std::size(kOperations) + std::size(kConstants)> all;
  std::ranges::copy(kConstants, std::ranges::copy(kOperations, all.begin()).out);
  return all;
}();

std::uint8_t ColorPart(std::int32_t part) { return static_cast<std::uint8_t>(std::clamp(part, 0, 255)); }

}  // namespace

const MemberTable& FormControls::Members() const {
  static const MemberTable table(kFormControlsMembers);
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

bool FormControls::ControlMenu(Ref<Object> control) {
  if (const auto* bound = dynamic_cast<const IControl*>(control.get())) control = bound->BoundObject();
  const auto widget = dynamic_cast<Widget*>(control.get());
  return widget && widget->OpenMenu();
}

Text FormControls::ConstantNames() const {
  Text names;
  for (const Member& constant : kConstants) names += Text(u" ") + constant.name;
  return names;
}

}  // namespace cardwright
