// SPDX-License-Identifier: MIT
#include "workbench/project/Stacking.h"

#include <deque>
#include <unordered_set>

#include "cardwright/model/CForm.h"
#include "cardwright/model/Rename.h"

namespace cardwright::workbench {

std::vector<Ref<IControl>> FrontToBack(const cardwright::FormDesigner& designer) {
  std::deque<Ref<IControl>> order;
  for (const Ref<IControl>& control : designer.ZList()) {
    if (dynamic_cast<const CForm*>(control.get())) continue;
    if (control->ZOrder() == static_cast<std::int16_t>(StackPosition::Back)) {
      order.push_back(control);
    } else {
      order.push_front(control);
    }
  }
  return {order.begin(), order.end()};
}

const Widget* ContainerOf(const IControl& control) {
  const Ref<Object> bound = control.BoundObject();
  const auto* widget = dynamic_cast<const Widget*>(bound.get());
  if (!widget) return nullptr;
  return BestEffortOr(static_cast<const Widget*>(nullptr), [&] { return widget->Container().get(); });
}

void MoveContentsAfter(Collection& controls, const IControl& frame) {
  std::unordered_set<const Object*> frames{frame.BoundObject().get()};
  for (const Ref<IControl>& control : ControlsOf(controls)) {
    const Widget* container = ContainerOf(*control);
    if (!container || !frames.contains(static_cast<const Object*>(container))) continue;
    frames.insert(control->BoundObject().get());
    RenameInCollection(controls, *control, control->UserName());
  }
}

}  // namespace cardwright::workbench
