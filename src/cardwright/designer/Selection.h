// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cardwright/designer/GrabHandles.h"
#include "cardwright/model/IControl.h"

namespace cardwright {

/// The selected object of a form, with the grab handles around its widget and the box that keeps the keyboard
/// focus: keys reach the surface, and nothing is typed into a widget under design.
class Selection {
 public:
  /// `handleSide` is in pixels. The surface is used until Detach.
  Selection(DesignSurface& surface, HandleListener& listener, int handleSide);

  Ref<IControl> Current() const { return m_Current; }
  /// Selects an object and shows the handles around its widget; none for an object without a widget.
  void Select(Ref<IControl> control);
  /// Changes the selection but shows nothing of it.
  void Store(Ref<IControl> control) { m_Current = std::move(control); }

  /// Shows the handles around the current widget, as enabled or locked, or hides them.
  void ShowHandles(bool show);
  bool AreHandlesShown() const { return m_Handles && m_Handles->IsShown(); }
  /// Hides the handles and takes them out of their container, which may then be removed.
  void ReleaseHandles();
  /// Brings the handle that moves the control in front of a control that was brought to the front.
  void RaiseMoveHandle();
  float HandleWidth() const;
  void ParkFocus();

  bool IsLocked() const noexcept { return m_IsLocked; }
  void SetLocked(bool locked) noexcept { m_IsLocked = locked; }

  /// The surface ends, and with it the selection.
  void Detach();

 private:
  DesignSurface* m_Surface;
  std::optional<GrabHandles> m_Handles;  // none once the surface has ended
  Ref<IControl> m_Current;
  bool m_IsLocked = false;
};

}  // namespace cardwright
