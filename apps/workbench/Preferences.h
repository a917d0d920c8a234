#pragma once

#include <QSettings>

namespace cardwright::workbench {

/// What the workbench remembers of its user: recent projects, the layout of its panes, the grid.
class Preferences final : public QSettings {
 public:
  Preferences()
      : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Cardwright"),
                  QStringLiteral("Workbench")) {}
};

}  // namespace cardwright::workbench
