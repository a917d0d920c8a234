// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <functional>
#include <utility>

namespace cardwright::workbench {

/// Recently opened files or data sources, the latest first, stored in the preferences.
class Recent {
 public:
  /// `key` is the name in the preferences.
  explicit Recent(QString key) : m_Key(std::move(key)) {}

  void Add(const QString& entry) const;
  /// False if the list did not have the entry.
  bool Remove(const QString& entry) const;
  /// Fills a menu with the entries; `open` is called with the chosen one.
  void Fill(QMenu& menu, const std::function<void(const QString& entry)>& open) const;

 private:
  QString m_Key;
};

}  // namespace cardwright::workbench
