// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

namespace cardwright::workbench {

/// The user's preferences for the workbench: recent projects, layout of the panes, grid.
class Preferences final : public QSettings {
 public:
  Preferences()
      : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Cardwright"),
                  QStringLiteral("Workbench")) {}
};

}  // namespace cardwright::workbench
