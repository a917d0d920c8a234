// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "cardwright/model/ControlClasses.h"

namespace cardwright::workbench {

/// The display name of a control class; "Form" for ctDefault.
QString KindName(ControlTypeEnum type);

}  // namespace cardwright::workbench
