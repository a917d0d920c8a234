#pragma once

#include <array>
#include <cstddef>

#include "cardwright/platform/DesignSurface.h"

namespace cardwright {

inline constexpr std::size_t kHandleCount = 9;

/// Left top corner of a handle, in its container's scale.
struct HandlePlace {
  float left = 0;
  float top = 0;

  friend bool operator==(const HandlePlace&, const HandlePlace&) = default;
};

/// Where the handles stand around a rectangle, by their numbers: outside its edges and corners, but the first
/// on its centre.
std::array<HandlePlace, kHandleCount> HandlePlaces(float left, float top, float width, float height,
                                                   float handleWidth, float handleHeight) noexcept;
/// Pointer that says which way a handle goes.
PointerShape HandlePointer(int index) noexcept;

/// Hears of the mouse on the handles, which count from 0.
class HandleListener {
 public:
  virtual void OnHandleDown(int index, int button) = 0;
  virtual void OnHandleMove(int index) = 0;

 protected:
  ~HandleListener() = default;
};

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
  void PutInto(Widget* container) { m_Surface.PutHandlesInto(container); }
  /// Brings the handle that moves the control to the front: a control that came to the front buried it.
  void RaiseMover() { m_Surface.Handle(0).SetZOrder(StackPosition::Front); }
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
