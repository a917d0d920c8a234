#pragma once

#include <QWidget>
#include <memory>

#include "cardwright/qt/VisualControl.h"

namespace cardwright::robot {

/// A host's window around one visual control, which fills it. It does what a host does: it takes the title
/// and the size that the form asks for. Everything else that a control tells is left to the script; closing
/// the window only hides it.
class ControlWindow final : public QWidget {
 public:
  explicit ControlWindow(std::unique_ptr<qt::VisualControl> control);

  qt::VisualControl& Control() noexcept { return *m_Control; }
  /// Whether nobody but the window holds the control any more.
  bool IsForgotten() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  qt::VisualControl* const m_Control;
};

}  // namespace cardwright::robot
