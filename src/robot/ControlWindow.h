#pragma once

#include <QWidget>
#include <optional>

#include "qt/FormInput.h"

namespace cardwright::robot {

/// A host's window around one visual control, which fills it. It does what a host does: it takes the title
/// and the size that the form asks for. What OK and Cancel mean is left to the script; closing it only hides
/// it.
class ControlWindow final : public QWidget {
 public:
  ControlWindow();

  qt::FormInput& Form() noexcept { return *m_Form; }
  /// Whether nobody but the window holds the control any more.
  bool IsForgotten() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  qt::FormInput* const m_Form;
};

}  // namespace cardwright::robot
