#pragma once

#include <QSize>
#include <QString>
#include <span>

#include "cardwright/model/IControl.h"

namespace cardwright::workbench {

/// A kind of control as the workbench offers it.
struct Kind {
  ControlTypeEnum type;
  const char* name;  ///< what a person calls it
  QSize size;        ///< of one that is not drawn by hand, in pixels
};

/// All kinds with a class, in the order of the tool box.
std::span<const Kind> Kinds() noexcept;
/// The kind of a control; ctDefault for the form.
ControlTypeEnum KindOf(const IControl& control);
/// What a person calls the kind; "Form" for ctDefault.
QString KindName(ControlTypeEnum type);

}  // namespace cardwright::workbench
