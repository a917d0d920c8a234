#pragma once

#include <QString>

#include "cardwright/model/IControl.h"

namespace cardwright::workbench {

/// Why a form element cannot take a value, as far as that is known before; "" where nothing speaks against
/// it. Only what a person enters is asked about: a project may hold anything.
QString ObjectionTo(const IControl& control, const QString& row, PropertyTypeEnum type, const Variant& value);

/// What of a value that was taken will be lost in the project's file, or lost to scripts; "" for nothing.
QString WarningOf(PropertyTypeEnum type, const Variant& value);

}  // namespace cardwright::workbench
