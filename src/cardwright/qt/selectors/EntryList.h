// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QString>
#include <functional>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright::qt {

/// One entry of a list that the host fills.
struct ListEntry {
  Text name;
  std::int32_t data = 0;
};

/// The model of a list that the host fills: a row for each entry, and perhaps an action row after them.
/// Nothing is computed for an entry until it is shown, so that a list of many thousands costs what its
/// visible part costs.
class EntryList final : public QAbstractListModel {
 public:
  /// What an entry is, in a word or two beside its name.
  static constexpr int kDetailRole = Qt::UserRole;
  /// True for the action row.
  static constexpr int kActionRole = Qt::UserRole + 1;
  /// The number of the entry's feature type, for its icon; invalid for no icon.
  static constexpr int kFeatureTypeRole = Qt::UserRole + 2;

  explicit EntryList(QObject* parent);

  const std::vector<ListEntry>& Entries() const noexcept { return m_Entries; }
  int Count() const noexcept { return static_cast<int>(m_Entries.size()); }
  void SetEntries(std::vector<ListEntry> entries);
  /// Position of a name, the same one before one of another case; -1 for none.
  int Find(std::u16string_view name) const;

  /// Text of the action row; "" for none.
  const QString& Action() const noexcept { return m_Action; }
  void SetAction(const QString& text);
  /// Whether it can be reached just now.
  void SetActionEnabled(bool enabled) { m_IsActionEnabled = enabled; }

  /// The detail of an entry, asked for once it is to be seen and kept until the entries change.
  std::function<QString(const ListEntry& entry)> describe;
  /// The same, but asked for in the background of the user's work, since the answer takes its time: the
  /// details come in one by one.
  bool describesLater = false;
  bool showsIcons = false;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Detail {
    enum class State : char { Unknown, Wanted, Known } state = State::Unknown;
    QString text;
  };

  QString DetailOf(int row) const;
  void DescribePending();

  std::vector<ListEntry> m_Entries;
  mutable std::vector<Detail> m_Details;
  mutable std::vector<int> m_Wanted;
  QString m_Action;
  bool m_IsActionEnabled = false;
  bool m_IsDescribing = false;
};

}  // namespace cardwright::qt
