// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

#include "cardwright/platform/Surface.h"

class QWidget;

namespace cardwright::qt {

/// No window is made larger, whatever a form project asks for: the toolkit holds a picture of each, which at
/// this size takes 256 MB.
inline constexpr int kLargestWindow = 8192;

/// Pixels between a top-level window's outer and inner size; 0 until the window system has framed it.
FrameSize FrameOf(const QWidget& window);

/// Dynamic property of a widget inside a window that acts as a window around visual controls: its title is
/// theirs and it has no frame, as the page of a program in which forms are drawn.
inline constexpr const char* kActsAsWindow = "cardwrightActsAsWindow";
/// The widget that acts as the host's window around `canvas`; `canvas` itself where it is a window.
QWidget& WindowAround(const QWidget& canvas);

/// A window around visual controls. Error 91 once it is gone.
class QtHostWindow final : public HostWindow {
 public:
  explicit QtHostWindow(QWidget& window);

  Text Caption() const override;
  void SetCaption(const Text& caption) override;
  float Width() const override;
  void SetWidth(float twips) override;
  float Height() const override;
  void SetHeight(float twips) override;
  bool IsVisible() const override;
  void SetVisible(bool visible) override;
  void Close() override;

  QWidget* Native() const noexcept;

 private:
  QWidget& Window() const;

  QPointer<QWidget> m_Window;
};

}  // namespace cardwright::qt
