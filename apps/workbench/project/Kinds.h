#pragma once

#include <QString>

#include "cardwright/model/ControlClasses.h"

namespace cardwright::workbench {

/// What a person calls a kind of control; "Form" for ctDefault.
QString KindName(ControlTypeEnum type);

}  // namespace cardwright::workbench
