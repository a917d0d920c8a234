// The two ends of a drag: the designer's state around it, and what comes of it.

#include "cardwright/designer/Drag.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

constexpr float kMinimumWidth = 7;  // pixels of a control that was drawn by a mere click

}  // namespace

/// Keeps focus handlers and clicks from selecting anything while a drag runs. However it ends, nothing of it
/// stays on the screen.
class FormDesigner::Tracking {
 public:
  explicit Tracking(FormDesigner& designer) : m_Designer(designer) {
    m_Designer.m_Dragging = true;
    m_Designer.m_Tracking = true;
    Module().designDragging = true;
  }
  ~Tracking() {
    ClearScreen();
    Attempt([&] { m_Designer.ShowHandles(true); });
    m_Designer.m_IntoFrame = false;  // a press on a frame counts for what it draws, a table viewer too
    m_Designer.m_Tracking = false;
    m_Designer.m_Dragging = false;
    Module().designDragging = false;
  }
  Tracking(const Tracking&) = delete;
  Tracking& operator=(const Tracking&) = delete;

  void ClearScreen() {
    if (!m_Designer.m_Surface) return;
    Attempt([&] { m_Designer.m_Surface->ShowOutline({}, 0); });
    Attempt([&] { m_Designer.m_Surface->HideTooltip(); });
  }

 private:
  FormDesigner& m_Designer;
};

void FormDesigner::TrackControl(Ref<IControl> control, DragMode mode) {
  if (m_Dragging) return;
  const Ref<FormDesigner> keepAlive(this);
  Tracking tracking(*this);
  Drag drag(*this, std::move(control), mode);
  if (!drag.Run()) return;
  tracking.ClearScreen();
  Canvas().SetFocus();
  Canvas().Repaint();
  if (drag.Target()) {
    ApplyDrag(drag);
  } else {
    PlaceDrawn(drag);
  }
}

// The host hears of each edge and may do anything then, delete the control too.
void FormDesigner::ApplyDrag(const Drag& drag) {
  const Ref<IControl> control(drag.Target());
  Attempt([&] { control->SetLeft(drag.Left()); });
  Attempt([&] { control->SetTop(drag.Top()); });
  Attempt([&] { control->SetWidth(drag.Width()); });
  if (!drag.HasFixedHeight()) Attempt([&] { control->SetHeight(drag.Height()); });
  if (IsAlive(*control)) SetCtrl(control);
}

void FormDesigner::PlaceDrawn(const Drag& drag) {
  const ScaleMode scale = Canvas().Scale();
  float width = drag.Width();
  float height = drag.Height();
  if (ScaleToPixels(width, scale) < kMinimumWidth) width = PixelsToScale(kMinimumWidth, scale);
  const ClassTable* kind = FindDrawable(m_TypeToAdd);
  const auto minimumHeight = static_cast<float>(kind ? kind->design.minimumDrawnHeight : 0);
  if (ScaleToPixels(height, scale) < minimumHeight) height = PixelsToScale(minimumHeight, scale);
  m_MouseDownX = drag.Left();
  m_MouseDownY = drag.Top();
  m_Tracking = false;
  SurfaceMouseUp(MouseButton::Left, 0, m_MouseDownX + width, m_MouseDownY + height);
}

}  // namespace cardwright
