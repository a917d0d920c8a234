// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "cardwright/automation/Object.h"

namespace cardwright::qt {

/// One of the library's visual controls as a widget that a Qt host places like any other. Its size hint is
/// the size that the form needs. The control's own members belong to the object that Control gives.
class VisualControl : public QWidget {
  Q_OBJECT
 public:
  /// The toolkit-free control, as scripts see it. It may outlive the widget, without its surface.
  virtual Ref<cardwright::Object> Control() const = 0;

  /// Whether the container is being designed. A host that lets its own user lay out a window sets it.
  bool DesignMode() const noexcept { return m_DesignMode; }
  void SetDesignMode(bool designing) noexcept { m_DesignMode = designing; }

  /// Invalid until the form has asked for a size.
  QSize sizeHint() const override { return m_Needed; }

 Q_SIGNALS:
  /// Outer size of the form: the control and the frame of the host's window, if that has one yet. Unit: for a
  /// form that is filled in its own scale (FormScaleMode), for a designer twips.
  void NeedResize(float width, float height);

 protected:
  explicit VisualControl(QWidget* parent) : QWidget(parent) {}

  /// The form has taken the size that the widget has now.
  void NotifyNeedResize(float width, float height);

 private:
  QSize m_Needed;
  bool m_DesignMode = false;
};

}  // namespace cardwright::qt
