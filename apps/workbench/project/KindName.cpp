// SPDX-License-Identifier: MIT
#include "workbench/project/KindName.h"

#include <QCoreApplication>

namespace cardwright::workbench {

QString KindName(ControlTypeEnum type) {
  const ClassTable* const known = FindControlClass(type);
  return QCoreApplication::translate("Kinds", known ? known->design.displayName : "Form");
}

}  // namespace cardwright::workbench
