// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QWindow>
#include <array>

#include "cardwright/platform/DesignSurface.h"
#include "cardwright/qt/surface/DragOutline.h"
#include "cardwright/qt/surface/DragTip.h"
#include "cardwright/qt/surface/GridLayer.h"
#include "cardwright/qt/surface/QtSurface.h"

class QKeyEvent;
class QMouseEvent;

namespace cardwright::qt {

class QtPictureBox;

/// The surface of a form designer on a toolkit widget, its canvas: a QtSurface whose widgets are drawn and
/// not used, with the handles, the grid, the outline and the mouse of the designer. Canvas and surface may go
/// in any order, in the middle of an event too.
class QtDesignSurface final : public QObject, public DesignSurface {
  Q_OBJECT
 public:
  explicit QtDesignSurface(QWidget& canvas);
  ~QtDesignSurface() override;

  Ref<Widget> Add(std::u16string_view identifier, std::u16string_view name, Widget* container) override {
    return m_Surface.Add(identifier, name, container);
  }
  void Remove(std::u16string_view name) override;
  Ref<Widget> Find(std::u16string_view name) const override { return m_Surface.Find(name); }
  ScaleMode Scale() const override { return m_Surface.Scale(); }
  void SetScale(ScaleMode mode) override { m_Surface.SetScale(mode); }
  OleColor BackColor() const override { return m_Surface.BackColor(); }
  void SetBackColor(OleColor color) override { m_Surface.SetBackColor(color); }
  Ref<Font> GetFont() const override { return m_Surface.GetFont(); }
  float Width() const override { return m_Surface.Width(); }
  float Height() const override { return m_Surface.Height(); }
  void Resize(float width, float height) override;
  Ref<HostWindow> Host() const override { return m_Surface.Host(); }
  FrameSize HostFrame() const override { return m_Surface.HostFrame(); }
  bool HostHasEdges() const override { return m_Surface.HostHasEdges(); }
  std::int32_t WindowHandle() const override { return m_Surface.WindowHandle(); }

  void SetListener(WidgetListener* listener) override { m_Listener = listener; }
  OleColor ForeColor() const override { return m_ForeColor; }
  void SetForeColor(OleColor color) override { m_ForeColor = color; }
  PointerShape Pointer() const override { return m_Pointer; }
  void SetPointer(PointerShape pointer) override;
  void SetScreenPointer(PointerShape pointer) override;
  void Cls() override;
  void PaintPoints(const GridPoints& points) override;
  void Repaint() override;
  void LockRedraw(bool lock) override;

  PictureWidget& Handle(int index) override;
  void PutHandlesInto(Widget* container) override;
  PictureWidget& FocusHolder() override;
  void SetFocus() override;

  ScreenPoint CursorPosition() const override;
  bool IsLeftButtonDown() const override;
  int CursorHeight() const override;
  void ReleaseMouse() override;
  ScreenRect WindowRect(const Widget* widget) const override;
  void Yield() override;
  void ShowOutline(const std::optional<ScreenRect>& outline, int penWidth) override;
  void ShowTooltip(const Text& text, ScreenPoint place) override;
  void HideTooltip() override { m_Tip.Hide(); }

  Text ShowPopupMenu(std::span<const Ref<MenuItem>> items) override;
  void NotifyPropertyChanged(std::u16string_view name) override;

  /// The object that scripts know as the parent of the widgets. Not owned: it has to outlive the surface.
  void SetControl(Object* control) { m_Surface.SetControl(control); }
  /// The canvas; null once it is gone.
  QWidget* Native() const noexcept { return m_Surface.Native(); }
  /// One of the surface's own widgets by its name, whatever its case: "picResize" with its number from 0,
  /// "picInvisible" without one. Null where there is none.
  Ref<Widget> OwnWidget(std::u16string_view name, std::optional<int> index) const;

 Q_SIGNALS:
  /// What a container keeps under this name has changed.
  void KeptPropertyChanged(const QString& name);
  /// The menu key, or Shift+F10, was pressed while the surface had the keyboard.
  void MenuKeyPressed();

 private:
  static constexpr int kHandleCount = 9;

  bool eventFilter(QObject* target, QEvent* event) override;
  bool OnCanvasEvent(QEvent& event);
  void OnMouse(QMouseEvent& event);
  void OnRelease(const QMouseEvent& event, float x, float y);
  bool OnKey(QKeyEvent& event);
  void WatchFocus(QWidget* focused);
  void WatchDragIn(QWindow* window);
  void NotifyResize();
  void AwaitFrame(int tries);
  bool IsFramed() const;
  void PaintGrid(const QRect& area);
  /// Calls the listener, if there is one. A numbered error of a handler ends with the handler. False where
  /// the surface went with it.
  template <class Call>
  bool Notify(Call&& call);

  QtSurface m_Surface;
  const Ref<SurfaceState> m_State;
  WidgetListener* m_Listener = nullptr;
  std::array<Ref<QtPictureBox>, kHandleCount> m_Handles;
  Ref<QtPictureBox> m_FocusHolder;
  GridLayer m_Grid;
  DragOutline m_Outline;
  DragTip m_Tip;
  OleColor m_ForeColor = ToOleColor(SystemColor::ButtonText);
  PointerShape m_Pointer = PointerShape::Default;
  bool m_HasScreenPointer = false;
  int m_RedrawLocks = 0;
  bool m_IsPressed = false;    // the left button went down on the bare surface
  bool m_IsPressLost = false;  // since the mouse was taken
  bool m_AwaitsFrame = true;   // the window may still get one
  QSize m_NotifiedSize;        // of the last resize event
  FrameSize m_NotifiedFrame;
  QSize m_UnframedSize;           // asked for while the frame was awaited; invalid where there was one
  mutable QPoint m_PolledCursor;  // the last position that was polled
  QPointer<QWindow> m_DragWindow;
  QPointer<QWidget> m_Watched;  // has the focus, on the surface
};

}  // namespace cardwright::qt
