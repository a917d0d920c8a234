// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/QtDesignSurface.h"

#include <QApplication>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/QtPictureBox.h"

namespace cardwright::qt {

namespace {

constexpr std::u16string_view kPictureBoxId = u"VB.PictureBox";
constexpr std::u16string_view kHandleName = u"picResize";
constexpr std::u16string_view kFocusHolderName = u"picInvisible";

Ref<QtPictureBox> AddBox(QtSurface& surface, std::u16string_view name) {
  return Ref<QtPictureBox>(dynamic_cast<QtPictureBox*>(surface.AddOwn(kPictureBoxId, name).get()));
}

QPoint ToQPoint(ScreenPoint point) { return {point.x, point.y}; }

/// Raises error 91 for what is gone.
const QWidget& NativeOf(const Widget& widget) {
  const auto* core = dynamic_cast<const WidgetCore*>(&widget);
  const QWidget* native = core ? core->Native() : nullptr;
  if (!native) Raise(ErrorNumber::ObjectNotSet);
  return *native;
}

/// The arrow for Default.
Qt::CursorShape ToCursorShape(PointerShape pointer) noexcept {
  switch (pointer) {
    case PointerShape::Default:
    case PointerShape::Arrow: return Qt::ArrowCursor;
    case PointerShape::Cross: return Qt::CrossCursor;
    case PointerShape::SizeAll: return Qt::SizeAllCursor;
    case PointerShape::SizeNeSw: return Qt::SizeBDiagCursor;
    case PointerShape::SizeNs: return Qt::SizeVerCursor;
    case PointerShape::SizeNwSe: return Qt::SizeFDiagCursor;
    case PointerShape::SizeWe: return Qt::SizeHorCursor;
    case PointerShape::Hourglass: return Qt::WaitCursor;
  }
  return Qt::ArrowCursor;
}

void AddEntry(QMenu& menu, const MenuItem& item) {
  if (!item.m_Visible) return;
  QAction* const entry = item.IsSeparator() ? menu.addSeparator() : menu.addAction(ToQString(item.m_Caption));
  entry->setObjectName(ToQString(item.m_Name));
  entry->setEnabled(item.m_Enabled);
  entry->setCheckable(item.m_Checked);
  entry->setChecked(item.m_Checked);
}

/// Shows a menu and waits until it is closed: the name of the entry that was chosen, or "". The owner may be
/// deleted meanwhile. Entries that are not visible are left out.
Text RunPopupMenu(QWidget& owner, std::span<const Ref<MenuItem>> items, QPoint place) {
  const QPointer<QMenu> menu = new QMenu(&owner);
  menu->setSeparatorsCollapsible(false);
  for (const Ref<MenuItem>& item : items) AddEntry(*menu, *item);
  const QAction* const chosen = menu->exec(place);
  const Text name = chosen ? FromQString(chosen->objectName()) : Text();
  delete menu.data();
  return name;
}

}  // namespace

QtDesignSurface::QtDesignSurface(QWidget& canvas)
    : m_Surface(canvas), m_State(&m_Surface.State()), m_Outline(canvas), m_Tip(canvas) {
  m_State->isDesigned = true;
  for (Ref<QtPictureBox>& handle : m_Handles) handle = AddBox(m_Surface, kHandleName);
  m_FocusHolder = AddBox(m_Surface, kFocusHolderName);
  m_FocusHolder->Native()->setFocusPolicy(Qt::StrongFocus);
  canvas.setFocusPolicy(Qt::StrongFocus);
  canvas.setMouseTracking(true);
  canvas.installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { WatchFocus(now); });
}

// Nothing is heard any more of what the end of the widgets sets off.
QtDesignSurface::~QtDesignSurface() {
  disconnect(qApp, nullptr, this, nullptr);
  WatchFocus(nullptr);
  WatchDragIn(nullptr);
  if (QWidget* canvas = m_Surface.Native()) canvas->removeEventFilter(this);
  SetScreenPointer(PointerShape::Default);
}

// A container is removed with its contents, but the handles stay.
void QtDesignSurface::Remove(std::u16string_view name) {
  const Ref<Widget> widget = Find(name);
  const QWidget* handle = m_Handles.front()->Native();
  if (widget && handle && NativeOf(*widget).isAncestorOf(handle)) {
    PutHandlesInto(nullptr);
    for (const Ref<QtPictureBox>& box : m_Handles) box->SetVisible(false);
  }
  m_Surface.Remove(name);
}

void QtDesignSurface::Resize(float width, float height) {
  const QPointer<QObject> self(this);
  m_Surface.Resize(width, height);
  if (!self) return;
  m_UnframedSize = m_AwaitsFrame && !IsFramed() ? m_Surface.Canvas().size() : QSize();
  NotifyResize();  // the toolkit keeps it back while the canvas is hidden
}

void QtDesignSurface::SetPointer(PointerShape pointer) {
  QWidget& canvas = m_Surface.Canvas();
  if (std::exchange(m_Pointer, pointer) == pointer) return;
  if (pointer == PointerShape::Default) return canvas.unsetCursor();
  canvas.setCursor(ToCursorShape(pointer));
}

void QtDesignSurface::SetScreenPointer(PointerShape pointer) {
  if (m_HasScreenPointer) QApplication::restoreOverrideCursor();
  m_HasScreenPointer = pointer != PointerShape::Default;
  if (m_HasScreenPointer) QApplication::setOverrideCursor(ToCursorShape(pointer));
}

void QtDesignSurface::Cls() {
  m_Grid.Clear();
  m_Surface.Canvas().update();
}

void QtDesignSurface::PaintPoints(const GridPoints& points) {
  const QRect cells(QPoint(points.firstColumn, points.firstRow), QPoint(points.lastColumn, points.lastRow));
  const auto step =
      static_cast<int>(std::lround(ScaleToPixels(static_cast<float>(points.step), m_Surface.Scale())));
  if (cells.isEmpty() || step < 1) return;
  m_Grid.Add(step, cells);
  m_Surface.Canvas().update();
}

void QtDesignSurface::LockRedraw(bool lock) {
  m_RedrawLocks += lock ? 1 : -1;
  m_Surface.Canvas().setUpdatesEnabled(m_RedrawLocks == 0);
}

PictureWidget& QtDesignSurface::Handle(int index) { return *m_Handles.at(static_cast<std::size_t>(index)); }

void QtDesignSurface::Repaint() { m_Surface.Canvas().repaint(); }

void QtDesignSurface::SetFocus() { m_Surface.Canvas().setFocus(Qt::OtherFocusReason); }

PictureWidget& QtDesignSurface::FocusHolder() { return *m_FocusHolder; }

void QtDesignSurface::PutHandlesInto(Widget* container) {
  for (const Ref<QtPictureBox>& handle : m_Handles) {
    const WidgetPlace place = m_Surface.PlaceIn(container, kHandleName);
    handle->Reparent(place.container, *place.parent);
  }
}

Ref<Widget> QtDesignSurface::OwnWidget(std::u16string_view name, std::optional<int> index) const {
  if (EqualsNoCase(name, kFocusHolderName) && !index) return m_FocusHolder;
  const bool isHandle = EqualsNoCase(name, kHandleName) && index && *index >= 0 && *index < kHandleCount;
  return isHandle ? m_Handles[static_cast<std::size_t>(*index)] : nullptr;
}

ScreenRect QtDesignSurface::WindowRect(const Widget* widget) const {
  const QWidget& native = widget ? NativeOf(*widget) : m_Surface.Canvas();
  const QPoint corner = native.mapToGlobal(QPoint(0, 0));
  return {corner.x(), corner.y(), corner.x() + native.width(), corner.y() + native.height()};
}

void QtDesignSurface::ShowOutline(const std::optional<ScreenRect>& outline, int penWidth) {
  if (!outline) return m_Outline.Hide();
  const QPoint corner = m_Surface.Canvas().mapFromGlobal(QPoint(outline->left, outline->top));
  m_Outline.Show(QRect(corner, QSize(outline->Width(), outline->Height())), penWidth);
}

void QtDesignSurface::ShowTooltip(const Text& text, ScreenPoint place) {
  m_Tip.Show(ToQString(text), ToQPoint(place));
}

Text QtDesignSurface::ShowPopupMenu(std::span<const Ref<MenuItem>> items) {
  return RunPopupMenu(m_Surface.Canvas(), items, m_State->cursor);
}

void QtDesignSurface::NotifyPropertyChanged(std::u16string_view name) {
  Q_EMIT KeptPropertyChanged(ToQString(name));
}

}  // namespace cardwright::qt
