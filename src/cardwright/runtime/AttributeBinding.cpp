// SPDX-License-Identifier: MIT
#include "cardwright/runtime/AttributeBinding.h"

#include "cardwright/model/Control.h"
#include "cardwright/runtime/DebugStorage.h"
#include "cardwright/runtime/RedrawPause.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright {
namespace {

bool IsBlank(const Text& text) { return Trim(text).empty(); }

bool IsBound(const BoundFeature& feature) {
  return SharedHost().IsConnected() && (!IsBlank(feature.id) || feature.isDebugging);
}

// Selects the feature in its theme and makes it current; the number of features found.
double SelectFeature(OrvClient& host, const BoundFeature& feature) {
  host.SelectByValue(feature.features, feature.id);
  const double count = host.SelectedNumber(feature.features);
  if (count > 0) host.MoveFirst(feature.features);
  return count;
}

// The same, but 0 if the host then has no valid feature.
double SelectValidFeature(OrvClient& host, const BoundFeature& feature) {
  const double count = SelectFeature(host, feature);
  return count > 0 && !host.CurrentIsValid(feature.features) ? 0 : count;
}

InputTypeEnum InputTypeOf(const AttributeRecord& attribute) {
  if (attribute.type == AttributeTypeEnum::atCharacter) return InputTypeEnum::itString;
  return attribute.decimals < 1 ? InputTypeEnum::itInteger : InputTypeEnum::itFloat;
}

// Each control whose attribute the feature class has, as it is bound when its turn comes.
template <class Use>
void ForEachBound(const Collection& controls, const CAttribs& attribs, Use&& use) {
  for (const Ref<IControl>& each : ControlsOf(controls)) {
    auto* control = dynamic_cast<Control*>(each.get());
    const CAttrib* attrib = control ? attribs.Find(control->AttributeName()) : nullptr;
    if (attrib) use(*control, attrib->Record());
  }
}

/// Values of controls that can precede those that fill their lists, as a renamed control moves to the end of
/// the form. They are shown again at the end, or OK would clear their attributes.
class DeferredValues {
 public:
  void Add(Control& control, const Text& value) {
    if (control.Table().value.followsOthers) m_Values.push_back({Ref<Control>(&control), value});
  }
  void Show() const {
    for (const Entry& each : m_Values)
      BestEffort([&] {
        if (!EqualsNoCase(each.control->DisplayText(), each.value))
          each.control->SetRow(u"Text", Variant(each.value));
      });
  }

 private:
  struct Entry {
    Ref<Control> control;
    Text value;
  };
  std::vector<Entry> m_Values;
};

void StoreControls(OrvClient& host, const Collection& controls, const FeatureClass& features,
                   const CAttribs& attribs) {
  // Lives across controls: a list box without a selection stores the value of the control before it, or "" as
  // the first one. Existing projects depend on it, as they would store other values otherwise.
  Text value;
  ForEachBound(controls, attribs, [&](Control& control, const AttributeRecord& attribute) {
    if (BestEffortOr(false, [&] { return control.TakeValue(value); }))
      host.SetAttribute(features, attribute, value);
  });
}

}  // namespace

Ref<CAttribs> AttributeBinding::AttributesOf(OrvClient& host, const FeatureClass& features) {
  std::vector<AttributeRecord> records = host.Attributes(features);
  if (!m_Attribs || records != m_Records) {
    m_Attribs = MakeRef<CAttribs>();
    for (const AttributeRecord& record : records) m_Attribs->Add(MakeRef<CAttrib>(record));
    m_Records = std::move(records);
  }
  return m_Attribs;
}

void AttributeBinding::Load(const Collection& controls, const BoundFeature& feature) {
  if (!IsBound(feature)) return;
  OrvClient host = OrvClient::Shared();
  if (IsBlank(feature.id)) return LoadControls(host, controls, feature);
  const RedrawPause pause(host, RedrawPause::End::Resume);
  if (SelectValidFeature(host, feature) < 1) return;
  LoadControls(host, controls, feature);
  host.SelectNone(feature.features);
}

void AttributeBinding::LoadControls(OrvClient& host, const Collection& controls,
                                    const BoundFeature& feature) {
  const bool hasValues = !IsBlank(feature.id) && !feature.isNew;
  const Ref<CAttribs> attribs = AttributesOf(host, feature.features);
  DeferredValues deferred;
  ForEachBound(controls, *attribs, [&](Control& control, const AttributeRecord& attribute) {
    BestEffort([&] { control.LimitInput(attribute.length, InputTypeOf(attribute)); });
    if (!hasValues) return;
    const Text value = host.GetAttribute(feature.features, attribute.name);
    BestEffort([&] { control.ShowValue(attribute.name, value); });
    deferred.Add(control, value);
  });
  deferred.Show();
}

// Unlike loading it does not ask whether the current feature is valid: hosts count on the order of commands.
bool AttributeBinding::Store(const Collection& controls, const BoundFeature& feature) {
  if (!IsBound(feature)) return false;
  OrvClient host = OrvClient::Shared();
  const FeatureClass& features = feature.features;
  if (feature.isDebugging) {
    OrvClient printer(DebugConnection());
    PrintDebugOpening();
    StoreControls(printer, controls, features, *AttributesOf(host, features));
    PrintDebugClosing();
    return true;
  }
  if (!(SelectFeature(host, feature) > 0)) return false;
  StoreControls(host, controls, features, *AttributesOf(host, features));
  return true;
}

}  // namespace cardwright
