// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/EntryList.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <utility>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

/// A row shows one line, however long the name is that a host sends.
constexpr qsizetype kShownLength = 500;

QString ShownName(const Text& name) { return ToQString(name).left(kShownLength).simplified(); }

}  // namespace

EntryList::EntryList(QObject* parent) : QAbstractListModel(parent) {}

void EntryList::SetEntries(std::vector<ListEntry> entries) {
  beginResetModel();
  m_Entries = std::move(entries);
  m_Details.assign(m_Entries.size(), {});
  m_Wanted.clear();
  endResetModel();
}

int EntryList::Find(std::u16string_view name) const {
  int alike = -1;
  for (std::size_t i = 0; i < m_Entries.size(); ++i) {
    if (m_Entries[i].name == name) return static_cast<int>(i);
    if (alike < 0 && EqualsNoCase(m_Entries[i].name, name)) alike = static_cast<int>(i);
  }
  return alike;
}

void EntryList::SetAction(const QString& text) {
  beginResetModel();
  m_Action = text;
  endResetModel();
}

int EntryList::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return Count() + (m_Action.isEmpty() ? 0 : 1);
}

QVariant EntryList::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  if (!index.isValid() || row >= rowCount()) return {};
  const bool isAction = row == Count();
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return isAction ? m_Action : ShownName(m_Entries[static_cast<std::size_t>(row)].name);
    case kDetailRole: return isAction ? QString() : DetailOf(row);
    case kActionRole: return isAction;
    case kFeatureTypeRole:
      if (isAction || !showsIcons) return {};
      return m_Entries[static_cast<std::size_t>(row)].data;
    case Qt::AccessibleTextRole: {
      const QString detail = isAction ? QString() : DetailOf(row);
      const QString name = data(index, Qt::DisplayRole).toString();
      return detail.isEmpty() ? name : name + QStringLiteral(", ") + detail;
    }
    default: return {};
  }
}

Qt::ItemFlags EntryList::flags(const QModelIndex& index) const {
  const bool isAction = index.row() == Count();
  if (isAction && !m_IsActionEnabled) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

QString EntryList::DetailOf(int row) const {
  if (!describe) return {};
  const auto place = static_cast<std::size_t>(row);
  Detail& detail = m_Details[place];
  if (detail.state != Detail::State::Unknown) return detail.text;
  if (!describesLater) return describe(m_Entries[place]);
  detail.state = Detail::State::Wanted;
  m_Wanted.push_back(row);
  // A view only reads; what it sets off here is done when it is through.
  QTimer::singleShot(0, this, [self = const_cast<EntryList*>(this)] { self->DescribePending(); });
  return {};
}

/// A few at a time, so that keys and the mouse get their turn between; an answer may also serve events, or
/// bring a new list.
void EntryList::DescribePending() {
  constexpr int kMilliseconds = 8;
  if (m_IsDescribing) return;
  m_IsDescribing = true;
  const QPointer<EntryList> self = this;
  QElapsedTimer time;
  time.start();
  while (!m_Wanted.empty() && time.elapsed() < kMilliseconds) {
    const int row = m_Wanted.front();
    m_Wanted.erase(m_Wanted.begin());
    const ListEntry entry = m_Entries[static_cast<std::size_t>(row)];
    QString text = describe(entry);
    if (!self) return;
    if (row >= Count() || m_Entries[static_cast<std::size_t>(row)].name != entry.name) continue;
    m_Details[static_cast<std::size_t>(row)] = {Detail::State::Known, std::move(text)};
    Q_EMIT dataChanged(index(row), index(row));
  }
  m_IsDescribing = false;
  if (!m_Wanted.empty()) QTimer::singleShot(0, this, [this] { DescribePending(); });
}

}  // namespace cardwright::qt
