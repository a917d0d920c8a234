// SPDX-License-Identifier: MIT
#include "cardwright/model/SelectorControl.h"

#include "cardwright/automation/Array.h"

namespace cardwright {

void SelectorControl::FinishRead(const SectionReader&) {
  if (Designer()) static_cast<SelectorWidget*>(Bound())->SetLocked(true);
}

void SelectorControl::ReportHeight() {
  if (!Designer() || !Bound()) return;
  RaisePropertyChanged(u"Height", Variant(Bound()->Height()));
  if (Designer()) Designer()->ShowHandles(true);
}

// Scripts may also pass the template itself instead of an array.
Text TemplateOf(const std::optional<Variant>& params, const Text& own) {
  if (!params) return own;
  const Variant& given = params->Deref();
  if (!given.IsArray()) return ToText(given);
  const auto values = given.ArrayPtr()->Values();
  return values.empty() ? own : ToText(values.front());
}

}  // namespace cardwright
