// SPDX-License-Identifier: MIT
#include "workbench/grid/PropertyModel.h"

#include <QApplication>
#include <QStyle>
#include <algorithm>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "workbench/grid/PropertyText.h"
#include "workbench/grid/Validation.h"

namespace cardwright::workbench {
namespace {

Variant IndexOf(int row) { return Variant(std::int32_t{row}); }

// Classes that store a flag as a text store the text unchanged.
Variant FlagOf(bool on) { return Variant(on ? u"True" : u"False"); }

}  // namespace

// The rows of a control never change, only their values.
void PropertyModel::SetControl(Ref<IControl> control) {
  if (control && control == m_Control) return RefreshAll();
  beginResetModel();
  m_Control = std::move(control);
  m_Rows.clear();
  const int count = m_Control ? m_Control->PropertyCount() : 0;
  for (int row = 0; row < count; ++row) {
    const Variant index = IndexOf(row);
    m_Rows.push_back({qt::ToQString(m_Control->PropertyName(index)), m_Control->PropertyType(index),
                      qt::ToQString(m_Control->PropertyDescription(index)), TextOfRow(row)});
  }
  endResetModel();
}

// A control without its widget has no values any more.
Variant PropertyModel::ValueOf(int row) const {
  if (!m_Control) return {};
  return BestEffortOr(Variant(), [&] { return m_Control->PropertyValue(IndexOf(row)); });
}

QString PropertyModel::TextOfRow(int row) const {
  return TextOf(m_Control->PropertyType(IndexOf(row)), ValueOf(row));
}

int PropertyModel::RowOf(const QString& name) const {
  const auto found = std::ranges::find(m_Rows, name, &Row::name);
  return found == m_Rows.end() ? -1 : static_cast<int>(found - m_Rows.begin());
}

QString PropertyModel::RefusalOf(int row) const {
  const auto& refusal = m_Rows[static_cast<std::size_t>(row)].refusal;
  return refusal ? refusal->reason : QString();
}

bool PropertyModel::Assign(int row, const Variant& value) {
  const QString reason = Try(row, value);
  if (!reason.isEmpty()) Q_EMIT Refused(reason);
  return reason.isEmpty();
}

bool PropertyModel::Enter(int row, const QString& text) {
  const Ref<IControl> control = m_Control;
  const TypedValue typed = ValueOfText(TypeOf(row), text);
  const QString reason = typed.fault.isEmpty() ? Try(row, typed.value) : typed.fault;
  if (reason.isEmpty()) return true;
  if (m_Control == control) {
    m_Rows[static_cast<std::size_t>(row)].refusal = Refusal{text, reason};
    Changed(row);
  }
  Q_EMIT Refused(reason);
  return false;
}

void PropertyModel::Discard(int row) {
  if (!IsRefused(row)) return;
  m_Rows[static_cast<std::size_t>(row)].refusal.reset();
  Changed(row);
  Q_EMIT Discarded();
}

QString PropertyModel::Try(int row, const Variant& value) {
  if (!m_Control) return tr("There is no control any more.");
  const Ref<IControl> control = m_Control;
  const PropertyTypeEnum type = TypeOf(row);
  try {
    const QString fault = CheckValue(*control, NameOf(row), type, value);
    if (!fault.isEmpty()) return fault;
    control->SetPropertyValue(IndexOf(row), value);
  } catch (const Error& error) {
    return tr("%1 was not changed: %2").arg(NameOf(row), qt::ToQString(error.Description()));
  }
  QString dropped;
  if (m_Control == control) {
    dropped = ReasonItWasDropped(row, value);
    if (dropped.isEmpty()) m_Rows[static_cast<std::size_t>(row)].refusal.reset();
    RefreshAll();
    Changed(row);
  }
  Q_EMIT Assigned();
  const QString warning = dropped.isEmpty() ? WarningAbout(type, value) : QString();
  if (!warning.isEmpty()) Q_EMIT Refused(warning);
  return dropped;
}

// Some controls ignore invalid texts, such as a list one that is not in it.
QString PropertyModel::ReasonItWasDropped(int row, const Variant& value) const {
  if (!value.IsString()) return {};
  const QString wanted = qt::ToQString(value.String());
  const QString taken = TextOfRow(row);
  if (taken.compare(wanted, Qt::CaseInsensitive) == 0) return {};
  return tr("“%1” was not taken: %2 is “%3”.").arg(wanted, NameOf(row), taken);
}

void PropertyModel::Changed(int row) { Q_EMIT dataChanged(index(row, kName), index(row, kValue)); }

void PropertyModel::Refresh(int row) {
  if (!m_Control || row < 0 || row >= rowCount()) return;
  QString text = TextOfRow(row);
  Row& shown = m_Rows[static_cast<std::size_t>(row)];
  if (shown.text == text && shown.type != PropertyTypeEnum::ptImage) return;
  shown.refusal.reset();  // it was about another value
  shown.text = std::move(text);
  Changed(row);
}

void PropertyModel::RefreshAll() {
  for (int row = 0; row < rowCount(); ++row) Refresh(row);
}

int PropertyModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_Rows.size());
}

int PropertyModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int{kColumnCount};
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Row& row = m_Rows[static_cast<std::size_t>(index.row())];
  const QString& message = row.refusal ? row.refusal->reason : row.description;
  if (role == Qt::AccessibleDescriptionRole || role == Qt::StatusTipRole) return message;
  if (role == Qt::ToolTipRole) return index.column() == kName ? row.name + u'\n' + message : message;
  if (index.column() == kName) return role == Qt::DisplayRole ? QVariant(row.name) : QVariant();
  const QString& text = row.refusal ? row.refusal->text : row.text;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return text;
    case Qt::AccessibleTextRole: return tr("%1: %2").arg(row.name, text);
    case Qt::CheckStateRole:
      if (row.type != PropertyTypeEnum::ptBoolean) return {};
      return text == u"True" ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole: return SignOf(index.row());
    default: return {};
  }
}

// Invalid texts have an icon; colours and pictures show a sample.
QVariant PropertyModel::SignOf(int row) const {
  if (IsRefused(row)) return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
  const QIcon sample = SampleOf(TypeOf(row), ValueOf(row));
  return sample.isNull() ? QVariant() : QVariant(sample);
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == kName ? tr("Property") : tr("Value");
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (!index.isValid() || index.column() != kValue) return flags;
  if (TypeOf(index.row()) == PropertyTypeEnum::ptBoolean) return flags | Qt::ItemIsUserCheckable;
  return flags | Qt::ItemIsEditable;
}

bool PropertyModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole) return false;
  return Assign(index.row(), FlagOf(value.toInt() == Qt::Checked));
}

}  // namespace cardwright::workbench
