// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/QtHostWindow.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

/// Inner size for an outer size in twips.
int InnerPixels(float twips, float frame) {
  const float pixels = twips / kTwipsPerPixel - frame;
  if (!std::isfinite(pixels)) Raise(ErrorNumber::InvalidPropertyValue);
  return static_cast<int>(std::lround(std::clamp(pixels, 0.0F, static_cast<float>(kLargestWindow))));
}

}  // namespace

FrameSize FrameOf(const QWidget& window) {
  // The toolkit counts a frame of -1 for a window that it has not made yet.
  const QSize outer = window.frameGeometry().size().expandedTo(window.size());
  return {static_cast<float>(outer.width() - window.width()),
          static_cast<float>(outer.height() - window.height())};
}

QtHostWindow::QtHostWindow(QWidget& window) : m_Window(&window) {}

QWidget* QtHostWindow::Native() const noexcept { return m_Window; }

QWidget& QtHostWindow::Window() const {
  if (!m_Window) Raise(ErrorNumber::ObjectNotSet);
  return *m_Window;
}

QWidget& WindowAround(const QWidget& canvas) {
  QWidget* const top = canvas.window();
  if (top == &canvas) return *top;
  QWidget* at = canvas.parentWidget();
  while (at != top && !at->property(kActsAsWindow).toBool()) at = at->parentWidget();
  return *at;
}

Text QtHostWindow::Caption() const { return FromQString(Window().windowTitle()); }

void QtHostWindow::SetCaption(const Text& caption) { Window().setWindowTitle(ToQString(caption)); }

float QtHostWindow::Width() const {
  return static_cast<float>(Window().frameGeometry().width()) * kTwipsPerPixel;
}

void QtHostWindow::SetWidth(float twips) {
  QWidget& window = Window();
  window.resize(InnerPixels(twips, FrameOf(window).width), window.height());
}

float QtHostWindow::Height() const {
  return static_cast<float>(Window().frameGeometry().height()) * kTwipsPerPixel;
}

void QtHostWindow::SetHeight(float twips) {
  QWidget& window = Window();
  window.resize(window.width(), InnerPixels(twips, FrameOf(window).height));
}

bool QtHostWindow::IsVisible() const { return Window().isVisible(); }

void QtHostWindow::SetVisible(bool visible) { Window().setVisible(visible); }

void QtHostWindow::Close() { Window().close(); }

}  // namespace cardwright::qt
