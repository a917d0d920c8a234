// SPDX-License-Identifier: MIT
#include "workbench/project/CompleteReading.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"
#include "cardwright/model/FormOwner.h"
#include "cardwright/storage/CIni.h"

namespace cardwright::workbench {
namespace {

int ControlsIn(const CIni& project) {
  const double count = Val(project.GetText(u"FORM", u"ControlsNumber", u"0"));
  return count > 0 && count <= INT16_MAX ? static_cast<int>(count) : 0;
}

/// Returns the number of controls in the project.
int KeepTexts(Collection& controls, const CIni& project) {
  const int count = ControlsIn(project);
  int found = 0;
  for (std::int32_t i = 1; i <= count; ++i) {
    const Text section = Text(u"CONTROLS_") + ToText(Variant(i));
    const Text type = project.GetText(section, u"Type");
    if (!type.IsEmpty()) ++found;
    if (!EqualsNoCase(type, u"combobox")) continue;
    const IControl* const combo = FindControl(controls, project.GetText(section, u"UserName"));
    if (!combo) continue;
    const Ref<Object> bound = combo->BoundObject();
    auto* const widget = dynamic_cast<ComboWidget*>(bound.get());
    if (widget && widget->ListIndex() < 0)
      BestEffort([&] { widget->SetDisplayText(project.GetText(section, u"Text")); });
  }
  return found;
}

}  // namespace

int CompleteReading(cardwright::FormDesigner& designer, const Text& path) {
  Collection& controls = designer.Controls();
  for (const Ref<IControl>& control : ControlsOf(controls))
    BestEffort([&] { control->AttachControls(controls); });
  CIni project;
  project.SetFileName(path);
  return std::max(0, KeepTexts(controls, project) - (controls.Count() - 1));
}

}  // namespace cardwright::workbench
