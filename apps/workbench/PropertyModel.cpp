#include "workbench/PropertyModel.h"

#include <algorithm>

#include "automation/Conversions.h"
#include "automation/Errors.h"
#include "model/FormOwner.h"
#include "qt/QtText.h"
#include "storage/CodePage.h"
#include "workbench/PropertyText.h"

namespace cardwright::workbench {
namespace {

Variant IndexOf(int row) { return Variant(std::int32_t{row}); }

// The classes that keep a flag as a text keep the very text they were given.
Variant FlagOf(bool on) { return Variant(on ? u"True" : u"False"); }

}  // namespace

void PropertyModel::SetControl(Ref<IControl> control) {
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
  return AttemptOr(Variant(), [&] { return m_Control->PropertyValue(IndexOf(row)); });
}

QString PropertyModel::TextOfRow(int row) const {
  return TextOf(m_Control->PropertyType(IndexOf(row)), ValueOf(row));
}

int PropertyModel::RowOf(const QString& name) const {
  const auto found = std::ranges::find(m_Rows, name, &Row::name);
  return found == m_Rows.end() ? -1 : static_cast<int>(found - m_Rows.begin());
}

QString PropertyModel::ReasonAgainstName(const QString& name) const {
  if (qt::FromQString(name).IsEmpty() || Trim(qt::ViewOf(name)).empty()) return tr("A control needs a name.");
  auto* owner = dynamic_cast<FormOwner*>(m_Control->ParentForm().get());
  const IControl* other = owner ? FindControl(owner->Controls(), qt::ViewOf(name)) : nullptr;
  if (!other || other == m_Control.get()) return {};
  return tr("Another control is called “%1” already; capital and small letters count as the same.")
      .arg(qt::ToQString(other->UserName()));
}

bool PropertyModel::Assign(int row, const Variant& value) {
  if (!m_Control) return false;
  const PropertyTypeEnum type = TypeOf(row);
  const Ref<IControl> control = m_Control;
  if (type == PropertyTypeEnum::ptName) {
    const QString reason = ReasonAgainstName(qt::ToQString(ToText(value)));
    if (!reason.isEmpty()) {
      Q_EMIT Refused(reason);
      return false;
    }
  }
  try {
    control->SetPropertyValue(IndexOf(row), value);
  } catch (const Error& error) {
    Q_EMIT Refused(tr("%1 was not changed: %2").arg(NameOf(row), qt::ToQString(error.Description())));
    return false;
  }
  if (m_Control == control) RefreshAll();
  Q_EMIT Assigned();
  WarnOfLoss(type, value);
  return true;
}

// What the project's code page cannot hold is lost in the file, and what follows a line break is not read.
void PropertyModel::WarnOfLoss(PropertyTypeEnum type, const Variant& value) {
  if (!value.IsString()) return;
  const Text text = value.String();
  const auto lost = CodePage::Current().FirstLost(text);
  if (lost) {
    Q_EMIT Refused(tr("The code page of form projects has no “%1”: the file will hold “?” in its place.")
                       .arg(QChar(text[*lost])));
    return;
  }
  if (type != PropertyTypeEnum::ptName) return;
  const QString name = qt::ToQString(text);
  const bool isIdentifier = !name.isEmpty() && name[0].isLetter() && std::ranges::all_of(name, [](QChar c) {
    return c.isLetterOrNumber() || c == u'_';
  });
  if (!isIdentifier)
    Q_EMIT Refused(
        tr("Scripts cannot use this name: it should begin with a letter and hold letters, "
           "digits and “_” only."));
}

void PropertyModel::Refresh(int row) {
  if (!m_Control || row < 0 || row >= rowCount()) return;
  QString text = TextOfRow(row);
  Row& shown = m_Rows[static_cast<std::size_t>(row)];
  if (shown.text == text && shown.type != PropertyTypeEnum::ptImage) return;
  shown.text = std::move(text);
  Q_EMIT dataChanged(index(row, kValue), index(row, kValue));
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
  const bool isFlag = row.type == PropertyTypeEnum::ptBoolean;
  if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole || role == Qt::StatusTipRole)
    return row.description;
  if (index.column() == kName) return role == Qt::DisplayRole ? QVariant(row.name) : QVariant();
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return row.text;
    case Qt::AccessibleTextRole: return tr("%1: %2").arg(row.name, row.text);
    case Qt::CheckStateRole:
      if (!isFlag) return {};
      return row.text == u"True" ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole: {
      const QIcon sample = SampleOf(row.type, ValueOf(index.row()));
      return sample.isNull() ? QVariant() : QVariant(sample);
    }
    default: return {};
  }
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
