// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "cardwright/designer/HandleListener.h"
#include "cardwright/platform/DesignSurface.h"

namespace cardwright {

inline constexpr std::size_t kHandleCount = 9;

/// Top left corner of a handle, in its container's scale.
struct HandlePosition {
  float left = 0;
  float top = 0;

  friend bool operator==(const HandlePosition&, const HandlePosition&) = default;
};

/// Positions of the handles around a rectangle, by their numbers: the first on its centre, the others outside
/// its corners and edges.
std::array<HandlePosition, kHandleCount> HandlePositions(float left, float top, float width, float height,
                                                         float handleWidth, float handleHeight) noexcept;
/// Pointer that shows the direction of a handle.
PointerShape HandlePointer(int index) noexcept;

/// The nine grab handles of the selected control.
class GrabHandles {
 public:
  /// The surface and the listener outlive the handles. `side` is in pixels.
  GrabHandles(DesignSurface& surface, HandleListener& listener, int side);
  ~GrabHandles();
  GrabHandles(const GrabHandles&) = delete;
  GrabHandles& operator=(const GrabHandles&) = delete;

  void ShowAround(const Widget& widget, bool enabled);
  void Hide();
  bool IsShown() const;
  /// Into the widget's container, or for null onto the surface.
  void MoveInto(Widget* container) { m_Surface.PutHandlesInto(container); }
  /// Brings the handle that moves the control to the front, before a control that was brought there.
  void RaiseMoveHandle() { m_Surface.Handle(0).SetZOrder(StackPosition::Front); }
  float Width() const { return m_Surface.Handle(0).Width(); }

 private:
  class Handle final : public WidgetListener {
   public:
    void OnMouseDown(int button, int shift, float x, float y) override;
    void OnMouseMove(int button, int shift, float x, float y) override;

    HandleListener* listener = nullptr;
    int index = 0;
  };

  DesignSurface& m_Surface;
  std::array<Handle, kHandleCount> m_Handles;
};

}  // namespace cardwright
