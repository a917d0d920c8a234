#pragma once

#include <QMenu>
#include <functional>
#include <utility>

namespace cardwright::workbench {

/// What a person opened last of one sort, the latest first, kept among the preferences.
class Recent {
 public:
  /// `key` is the name among the preferences.
  explicit Recent(QString key) : m_Key(std::move(key)) {}

  void Add(const QString& entry) const;
  /// False where the entry was none of them.
  bool Remove(const QString& entry) const;
  /// Fills a menu with them; `open` is called with the one that is chosen.
  void Fill(QMenu& menu, const std::function<void(const QString& entry)>& open) const;

 private:
  QString m_Key;
};

}  // namespace cardwright::workbench
