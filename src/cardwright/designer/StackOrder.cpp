// SPDX-License-Identifier: MIT
#include "cardwright/designer/StackOrder.h"

#include "cardwright/model/Control.h"

namespace cardwright {

void StackOrder::Append(const Ref<IControl>& control) {
  m_Controls->Add(Variant(Ref<Object>(control)), Variant(control->Name()));
}

void StackOrder::Remove(const IControl& control) { m_Controls->Remove(Variant(control.Name())); }

void StackOrder::Restack(const Ref<IControl>& control, StackPosition position) {
  BestEffort([&] { Remove(*control); });
  BestEffort([&] { Append(control); });
  BestEffort([&] { control->SetZOrder(static_cast<std::int16_t>(position)); });
  if (const Ref<Widget> widget = BoundWidget(*control)) BestEffort([&] { widget->SetZOrder(position); });
}

}  // namespace cardwright
