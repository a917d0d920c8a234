// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/model/IControl.h"
#include "cardwright/platform/Widget.h"

namespace cardwright {

/// The objects of a form in the order in which a project stacks them when it is read: a control that is sent
/// to the front or to the back moves to the end of the list, with its position stored in it.
class StackOrder {
 public:
  std::vector<Ref<IControl>> Controls() const { return ControlsOf(*m_Controls); }
  /// Error 457 where a control with the same widget name is in the list.
  void Append(const Ref<IControl>& control);
  void Remove(const IControl& control);
  void Clear() { m_Controls = MakeRef<Collection>(); }
  /// Moves the control to the end of the list and its widget to the front or to the back. What fails is
  /// ignored.
  void Restack(const Ref<IControl>& control, StackPosition position);

 private:
  Ref<Collection> m_Controls = MakeRef<Collection>();  // by the names of the widgets
};

}  // namespace cardwright
