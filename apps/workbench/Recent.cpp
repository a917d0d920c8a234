// SPDX-License-Identifier: MIT
#include "workbench/Recent.h"

#include <QDir>

#include "workbench/Preferences.h"

namespace cardwright::workbench {
namespace {

constexpr int kMost = 10;

}  // namespace

void Recent::Add(const QString& entry) const {
  Preferences preferences;
  QStringList entries = preferences.value(m_Key).toStringList();
  entries.removeAll(entry);
  entries.prepend(entry);
  preferences.setValue(m_Key, entries.mid(0, kMost));
}

bool Recent::Remove(const QString& entry) const {
  Preferences preferences;
  QStringList entries = preferences.value(m_Key).toStringList();
  if (entries.removeAll(entry) == 0) return false;
  preferences.setValue(m_Key, entries);
  return true;
}

void Recent::Fill(QMenu& menu, const std::function<void(const QString& entry)>& open) const {
  menu.clear();
  int number = 1;
  for (const QString& entry : Preferences().value(m_Key).toStringList()) {
    const QString shown = QDir::toNativeSeparators(entry).replace(u'&', QLatin1String("&&"));
    QAction* action =
        menu.addAction(QStringLiteral("%1%2  %3").arg(number < 10 ? u"&" : u"").arg(number).arg(shown));
    QObject::connect(action, &QAction::triggered, &menu, [open, entry] { open(entry); });
    ++number;
  }
  if (menu.isEmpty()) menu.addAction(QMenu::tr("(none)"))->setEnabled(false);
}

}  // namespace cardwright::workbench
