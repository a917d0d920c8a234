#include "cardwright/runtime/AttributeBinding.h"

#include <vector>

#include "cardwright/model/Control.h"
#include "cardwright/runtime/FormInput.h"
#include "cardwright/runtime/RedrawPause.h"
#include "cardwright/shared/HostExecutor.h"
#include "cardwright/shared/Messages.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ScriptText.h"

namespace cardwright {
namespace {

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

InputTypeEnum InputTypeOf(const CAttrib& attrib) {
  if (attrib.m_AttribType == AttributeTypeEnum::atCharacter) return InputTypeEnum::itString;
  return attrib.m_Decs < 1 ? InputTypeEnum::itInteger : InputTypeEnum::itFloat;
}

// Each control whose attribute the theme has, as it is bound when its turn comes.
template <class Use>
void ForEachBound(FormInput& form, const CAttribs& attribs, Use&& use) {
  for (const Ref<IControl>& each : ControlsOf(form.Controls())) {
    auto* control = dynamic_cast<Control*>(each.get());
    const CAttrib* attrib = control ? attribs.Find(control->AttributeName()) : nullptr;
    if (attrib) use(*control, *attrib);
  }
}

/// Values whose controls may stand before those that fill their lists: a rename puts a control behind all
/// others. They are shown again at the end, or OK would clear their attributes.
class LateValues {
 public:
  void Note(Control& control, const Text& reply) {
    if (control.Table().value.followsOthers) m_Values.push_back({Ref<Control>(&control), reply});
  }
  void Show() const {
    for (const Value& late : m_Values)
      Attempt([&] {
        if (!EqualsNoCase(late.control->DisplayText(), late.reply))
          late.control->SetRow(u"Text", Variant(late.reply));
      });
  }

 private:
  struct Value {
    Ref<Control> control;
    Text reply;
  };
  std::vector<Value> m_Values;
};

void LoadControls(FormInput& form, const FeaturePlace& place, const CAttribs& attribs) {
  const bool limitsOnly = IsBlank(form.FeatureID()) || form.NewFeature();
  LateValues late;
  ForEachBound(form, attribs, [&](Control& control, const CAttrib& attrib) {
    Attempt([&] { control.LimitInput(attrib.m_Length, InputTypeOf(attrib)); });
    if (limitsOnly) return;
    const Text reply = SharedHost().ORVRequest(commands::GetAttribute(place, attrib.m_Name));
    Attempt([&] { control.ShowValue(attrib.m_Name, reply); });
    late.Note(control, reply);
  });
  late.Show();
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
  ForEachBound(form, attribs, [&](Control& control, const CAttrib& attrib) {
    if (!AttemptOr(false, [&] { return control.TakeValue(value); })) return;
    const Text command = commands::SetAttribute(place, attrib.m_Name, CommandValue(attrib, value));
    if (form.DebugMode()) {
      Print(Text(u"     ") + command + u"\r\n");
    } else {
      SharedHost().ORVExecute(command);
    }
  });
}

}  // namespace

FeaturePlace PlaceOf(const FormInput& form) {
  return {form.GetThemeName(), FeatureTypeText(form.GetFeatureType())};
}

void LoadAttributes(FormInput& form) {
  HostExecutor& host = SharedHost();
  const bool hasFeature = !IsBlank(form.FeatureID());
  if (!host.IsConnected() || (!hasFeature && !form.DebugMode())) return;
  const FeaturePlace place = PlaceOf(form);
  const RedrawPause pause(hasFeature, RedrawPause::End::Resume);
  if (hasFeature && SelectFeature(place, form.FeatureID()) < 1) return;
  LoadControls(form, place, *form.Attributes().Read(place));
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
  WriteControls(form, place, *form.Attributes().Read(place));
  if (form.DebugMode()) PrintClosing();
  form.RunEvent(BuildEventName(u"Form", u"AfterSetAttributes"));
}

}  // namespace cardwright
