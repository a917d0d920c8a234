// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/QtSurface.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/surface/WidgetFactory.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/WindowHandles.h"
#include "cardwright/qt/widgets/CaptionWidgets.h"

namespace cardwright::qt {

namespace {

/// Every widget of a surface has been made by CreateWidget.
WidgetCore& CoreOf(Widget& widget) { return dynamic_cast<WidgetCore&>(widget); }

int WholePixels(float value, ScaleMode mode) {
  const float pixels = ScaleToPixels(value, mode);
  if (!std::isfinite(pixels)) Raise(ErrorNumber::InvalidPropertyValue);
  return static_cast<int>(std::lround(std::clamp(pixels, 0.0F, static_cast<float>(QWIDGETSIZE_MAX))));
}

}  // namespace

QtSurface::QtSurface(QWidget& canvas)
    : m_Canvas(&canvas), m_State(MakeRef<SurfaceState>(*this)), m_Font(MakeRef<Font>()) {
  m_Font->AddUser(*this);
  canvas.setAutoFillBackground(true);
  ApplyFont();
  canvas.installEventFilter(this);
}

QtSurface::~QtSurface() {
  m_State->surface = nullptr;
  m_State->CancelFlushes();
  m_Font->RemoveUser(*this);
  for (const auto& [name, widget] : m_Widgets) CoreOf(*widget).Detach();
  for (const Ref<Widget>& widget : m_Own) CoreOf(*widget).Detach();
}

QWidget* QtSurface::Native() const noexcept { return m_Canvas; }

QWidget& QtSurface::Canvas() const {
  if (!m_Canvas) Raise(ErrorNumber::ObjectNotSet);
  return *m_Canvas;
}

Ref<Widget> QtSurface::Add(std::u16string_view identifier, std::u16string_view name, Widget* container) {
  if (Find(name)) Raise(ErrorNumber::ControlNameExists);
  Ref<Widget> widget = CreateWidget(identifier, PlaceIn(container, name));
  m_Widgets.insert_or_assign(name, widget);
  return widget;
}

Ref<Widget> QtSurface::AddOwn(std::u16string_view identifier, std::u16string_view name) {
  m_Own.push_back(CreateWidget(identifier, PlaceIn(nullptr, name)));
  return m_Own.back();
}

// Only frames contain other widgets.
WidgetPlace QtSurface::PlaceIn(Widget* container, std::u16string_view name) const {
  if (!container) return {m_State, name, nullptr, &Canvas()};
  auto* frame = dynamic_cast<QtFrame*>(container);
  if (!frame) Raise(ErrorNumber::InvalidCall);
  if (!frame->Native()) Raise(ErrorNumber::ObjectNotSet);
  return {m_State, name, container, frame->Native()};
}

void QtSurface::Remove(std::u16string_view name) {
  const auto found = m_Widgets.find(name);
  if (found == m_Widgets.end()) return;
  const Ref<Widget> widget = found->second;
  m_Widgets.erase(found);
  if (dynamic_cast<const QtFrame*>(widget.get())) RemoveContents(*widget);
  CoreOf(*widget).Detach();
}

void QtSurface::RemoveContents(const Widget& container) {
  std::vector<Text> inside;
  for (const auto& [name, widget] : m_Widgets) {
    if (CoreOf(*widget).Native() && widget->Container() == &container) inside.push_back(name);
  }
  for (const Text& name : inside) Remove(name);
}

Ref<Widget> QtSurface::Find(std::u16string_view name) const {
  const auto found = m_Widgets.find(name);
  if (found == m_Widgets.end() || !CoreOf(*found->second).Native()) return nullptr;
  return found->second;
}

void QtSurface::SetScale(ScaleMode mode) {
  const ScaleMode before = std::exchange(m_Scale, mode);
  m_Width = PixelsToScale(ScaleToPixels(m_Width, before), mode);
  m_Height = PixelsToScale(ScaleToPixels(m_Height, before), mode);
  for (const auto& [name, widget] : m_Widgets) CoreOf(*widget).ConvertGeometry(before, mode);
  for (const Ref<Widget>& widget : m_Own) CoreOf(*widget).ConvertGeometry(before, mode);
}

void QtSurface::SetBackColor(OleColor color) {
  Canvas();
  m_BackColor = color;
  ApplyBackColor();
}

void QtSurface::ApplyBackColor() {
  if (!m_Canvas || m_IsApplying) return;
  m_IsApplying = true;
  const QColor color = ToQColor(m_BackColor, QApplication::palette());
  const QWidget* parent = m_Canvas->parentWidget();
  const QPalette inherited = parent ? parent->palette() : QApplication::palette();
  QPalette own;
  const bool hasOwn = inherited.color(QPalette::Active, QPalette::Window) != color;
  if (hasOwn) own.setColor(QPalette::Window, color);
  if (hasOwn || m_HasOwnBackground) m_Canvas->setPalette(own);
  m_HasOwnBackground = hasOwn;
  m_IsApplying = false;
}

void QtSurface::OnFontChanged(const Font& /*font*/) { ApplyFont(); }

/// The widgets inherit the canvas's font as long as theirs is the same, which is the usual case and costs
/// nothing.
void QtSurface::ApplyFont() {
  if (m_Canvas) m_Canvas->setFont(m_State->fonts.Get(m_Font->Values()));
}

float QtSurface::Width() const {
  const int actual = Canvas().width();
  if (WholePixels(m_Width, m_Scale) == actual) return m_Width;
  return PixelsToScale(static_cast<float>(actual), m_Scale);
}

float QtSurface::Height() const {
  const int actual = Canvas().height();
  if (WholePixels(m_Height, m_Scale) == actual) return m_Height;
  return PixelsToScale(static_cast<float>(actual), m_Scale);
}

void QtSurface::Resize(float width, float height) {
  QWidget& canvas = Canvas();
  const QSize pixels(WholePixels(width, m_Scale), WholePixels(height, m_Scale));
  m_Width = std::fmax(width, 0.0F);  // a form that is smaller than the frame of its window has none
  m_Height = std::fmax(height, 0.0F);
  canvas.resize(pixels);
}

Ref<HostWindow> QtSurface::Host() const {
  QWidget* window = &WindowAround(Canvas());
  if (window == m_Canvas) return nullptr;
  if (!m_Host || m_Host->Native() != window) m_Host = MakeRef<QtHostWindow>(*window);
  return m_Host;
}

FrameSize QtSurface::HostFrame() const { return FrameOf(WindowAround(Canvas())); }

std::int32_t QtSurface::WindowHandle() const { return WindowHandles::Instance().HandleOf(Canvas()); }

bool QtSurface::eventFilter(QObject* /*target*/, QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange) ApplyBackColor();
  return false;
}

}  // namespace cardwright::qt
