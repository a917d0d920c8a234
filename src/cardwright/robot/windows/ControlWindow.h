// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <memory>

#include "cardwright/qt/VisualControl.h"

namespace cardwright::robot {

/// A host's window, filled by one visual control. As a host does, it takes the title and the size that the
/// form asks for. All other events of the control are left to the script. Closing the window only hides it.
class ControlWindow final : public QWidget {
 public:
  explicit ControlWindow(std::unique_ptr<qt::VisualControl> control);

  qt::VisualControl& Control() noexcept { return *m_Control; }
  /// Whether only the window still holds the control.
  bool IsUnused() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  qt::VisualControl* const m_Control;
};

}  // namespace cardwright::robot
