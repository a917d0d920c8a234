// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "cardwright/model/IControl.h"

namespace cardwright::workbench {

/// The reason why a form element cannot take a value; "" if the value is valid. Only values that a user
/// enters are checked: a project may hold anything.
QString CheckValue(const IControl& control, const QString& row, PropertyTypeEnum type, const Variant& value);

/// What a valid value loses in the project's file, or why scripts cannot use it; "" for nothing.
QString WarningAbout(PropertyTypeEnum type, const Variant& value);

}  // namespace cardwright::workbench
