#include "runtime/AttributeBinding.h"

#include <algorithm>

#include "automation/Split.h"
#include "runtime/ControlValues.h"
#include "runtime/FormInput.h"
#include "runtime/RedrawPause.h"
#include "shared/HostExecutor.h"
#include "shared/Messages.h"
#include "shared/ModuleState.h"
#include "shared/ScriptText.h"

namespace cardwright {
namespace {

// More attributes than any store has columns: a host's reply must not keep the form asking for ever.
constexpr double kMostAttributes = 65535;

bool IsBlank(const Text& text) { return Trim(text).empty(); }

double RequestNumber(const Text& command) { return Val(SharedHost().ORVRequest(command)); }

// Selects the feature in its theme and makes it current; the number of features found.
double SelectFeature(const FeaturePlace& place, const Text& id) {
  HostExecutor& host = SharedHost();
  host.ORVExecute(commands::SelectByValue(place, id));
  const double count = RequestNumber(commands::SelectedNumber(place));
  if (!(count > 0)) return count;
  host.ORVExecute(commands::MoveFirst(place));
  return RequestNumber(commands::CurrentIsValid(place)) == 0 ? 0 : count;
}

// A record that has not exactly four fields makes an attribute without a name, which no control can be bound
// to.
Ref<CAttrib> ParseRecord(const Text& record) {
  auto attrib = MakeRef<CAttrib>();
  const std::vector<Text> fields = Split(record, u',');
  if (fields.size() != 4) return attrib;
  attrib->m_Name = fields[0];
  attrib->m_AttribType =
      static_cast<AttributeTypeEnum>(AttemptOr(0, [&] { return ToLong(Variant(Val(fields[1]))); }));
  attrib->m_Length = AttemptOr(0, [&] { return ToLong(Variant(Val(fields[2]))); });
  attrib->m_Decs = AttemptOr(0, [&] { return ToLong(Variant(Val(fields[3]))); });
  return attrib;
}

const CAttrib* AttribOf(const IControl& control, const CAttribs& attribs) {
  const CAttrib* attrib = nullptr;
  Attempt([&] { attrib = attribs.Find(ToText(control.PropertyValue(u"Attribute"))); });
  return attrib;
}

void LoadControls(FormInput& form, const FeaturePlace& place, const CAttribs& attribs) {
  const bool limitsOnly = IsBlank(form.FeatureID()) || form.NewFeature();
  for (const Ref<IControl>& control : ControlsOf(form.Controls())) {
    const CAttrib* attrib = AttribOf(*control, attribs);
    if (!attrib) continue;
    Attempt([&] { LimitInput(*control, *attrib); });
    if (limitsOnly) continue;
    const Text reply = SharedHost().ORVRequest(commands::GetAttribute(place, attrib->m_Name));
    Attempt([&] { ShowReply(form.Controls(), *control, *attrib, reply); });
  }
}

// The value as it stands in the command: texts between bars, a blank clearing the attribute; numbers with a
// point.
Text CommandValue(const CAttrib& attrib, const Text& value) {
  if (attrib.m_AttribType == AttributeTypeEnum::atCharacter)
    return Text(u"|") + (value.IsEmpty() ? std::u16string_view(u" ") : value.View()) + u"|";
  return Replace(value, Module().decimalSeparator, u".");
}

void Print(const Text& text) {
  if (const Ref<Object> output = Module().debugOutput)
    Attempt([&] { LetProperty(*output, u"SelText", Variant(text)); });
}

const Text& Rule() {
  static thread_local const Text rule(std::u16string(100, u'-'));
  return rule;
}

void PrintOpening() {
  Print(Text(u"\r\n\r\n") + Rule() + u"\r\n");
  Print(GetMessage(1082, {Variant(GetMessage(1083))}) + u"\r\n");
  Print(Rule() + u"\r\n");
}

void PrintClosing() {
  Print(Rule() + u"\r\n");
  Print(GetMessage(1082, {Variant(GetMessage(1084))}) + u"\r\n");
  Print(Rule() + u"\r\n\r\n\r\n");
}

void WriteControls(FormInput& form, const FeaturePlace& place, const CAttribs& attribs) {
  Text value;  // kept from control to control: a list box without a selection writes its predecessor's value
               // again
  for (const Ref<IControl>& control : ControlsOf(form.Controls())) {
    const CAttrib* attrib = AttribOf(*control, attribs);
    if (!attrib) continue;
    if (!AttemptOr(false, [&] { return TakeValue(*control, value); })) continue;
    const Text command = commands::SetAttribute(place, attrib->m_Name, CommandValue(*attrib, value));
    if (form.DebugMode()) {
      Print(Text(u"     ") + command + u"\r\n");
    } else {
      SharedHost().ORVExecute(command);
    }
  }
}

}  // namespace

FeaturePlace PlaceOf(const FormInput& form) {
  return {form.GetThemeName(), FeatureTypeText(form.GetFeatureType())};
}

Ref<CAttribs> ReadAttribs(const FeaturePlace& place) {
  auto attribs = MakeRef<CAttribs>();
  const double count = std::min(RequestNumber(commands::AttributeNumber(place)), kMostAttributes);
  for (int number = 1; number <= count; ++number) {
    const Text record = SharedHost().ORVRequest(commands::Attribute(place, number));
    if (!record.IsEmpty()) attribs->Add(ParseRecord(record));
  }
  return attribs;
}

void LoadAttributes(FormInput& form) {
  HostExecutor& host = SharedHost();
  const bool hasFeature = !IsBlank(form.FeatureID());
  if (!host.IsConnected() || (!hasFeature && !form.DebugMode())) return;
  const FeaturePlace place = PlaceOf(form);
  const RedrawPause pause(hasFeature, RedrawPause::End::Resume);
  if (hasFeature && SelectFeature(place, form.FeatureID()) < 1) return;
  LoadControls(form, place, *ReadAttribs(place));
  if (hasFeature) host.ORVExecute(commands::SelectNone(place));
}

void WriteAttributes(FormInput& form) {
  HostExecutor& host = SharedHost();
  if (!host.IsConnected() || (IsBlank(form.FeatureID()) && !form.DebugMode())) return;
  const FeaturePlace place = PlaceOf(form);
  double count = 1;
  if (form.DebugMode()) {
    PrintOpening();
  } else {
    host.ORVExecute(commands::SelectByValue(place, form.FeatureID()));
    count = RequestNumber(commands::SelectedNumber(place));
  }
  if (!(count > 0)) return;
  if (!form.DebugMode()) host.ORVExecute(commands::MoveFirst(place));
  WriteControls(form, place, *ReadAttribs(place));
  if (form.DebugMode()) PrintClosing();
  form.RunEvent(BuildEventName(u"Form", u"AfterSetAttributes"));
}

}  // namespace cardwright
