#include "workbench/FeatureModel.h"

#include <algorithm>

#include "automation/Conversions.h"
#include "qt/QtText.h"
#include "runtime/HostCommands.h"
#include "shared/ModuleState.h"

namespace cardwright::workbench {
namespace {

constexpr int kRowsInMemory = 4096;

}  // namespace

FeatureModel::FeatureModel(QObject* parent) : QAbstractTableModel(parent), m_Rows(kRowsInMemory) {}

FeatureModel::~FeatureModel() { Close(); }

void FeatureModel::Close() {
  if (m_Handle) Module().connections.Close(m_Handle);
  m_Handle = 0;
  m_Host = nullptr;
}

void FeatureModel::Open(const QString& source) {
  Ref<EmbeddedHost> host;
  if (!source.isEmpty()) host = EmbeddedHost::Open(qt::FromQString(source), EmbeddedHost::Access::ReadOnly);
  Close();
  m_Source = source;
  m_Host = host;
  if (host) m_Handle = Module().connections.Register(host);
  Show({});
}

void FeatureModel::Show(const QString& theme) {
  beginResetModel();
  m_Theme.clear();
  m_Attributes.clear();
  m_Ids.clear();
  m_Rows.clear();
  for (const ListedTheme& listed : Themes()) {
    if (listed.name != qt::FromQString(theme)) continue;
    m_Theme = theme;
    m_Type = listed.featureType;
    for (const ListedAttribute& each : ListAttributes(m_Handle, listed.name, m_Type))
      m_Attributes.push_back(each.name);
    m_Ids = m_Host->FeatureIds(listed.name);
    break;
  }
  endResetModel();
}

// Formats that keep what they have read would show old values over an old connection.
void FeatureModel::Reload() {
  const QString theme = m_Theme;
  try {
    Open(m_Source);
  } catch (const Error&) {
    Close();  // the source is gone meanwhile
  }
  Show(theme);
}

int FeatureModel::RowOf(const QString& id) const {
  const auto found = std::ranges::find(m_Ids, id.toLongLong());
  return found == m_Ids.end() ? -1 : static_cast<int>(found - m_Ids.begin());
}

const QStringList& FeatureModel::ValuesOf(int row) const {
  if (const QStringList* known = m_Rows.object(row)) return *known;
  auto* values = new QStringList;
  const FeaturePlace place{qt::FromQString(m_Theme), FeatureTypeText(m_Type)};
  m_Host->Execute(commands::SelectByValue(place, qt::FromQString(IdOf(row))));
  m_Host->Execute(commands::MoveFirst(place));
  for (const Text& attribute : m_Attributes)
    *values += qt::ToQString(m_Host->Request(commands::GetAttribute(place, attribute)));
  m_Rows.insert(row, values);
  return *values;
}

int FeatureModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_Ids.size());
}

int FeatureModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || m_Theme.isEmpty() ? 0 : static_cast<int>(m_Attributes.size()) + 1;
}

QVariant FeatureModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  if (index.column() == 0) return role == Qt::DisplayRole ? QVariant(IdOf(index.row())) : QVariant();
  return ValuesOf(index.row()).value(index.column() - 1);
}

QVariant FeatureModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  if (section == 0) return tr("Id");
  return qt::ToQString(m_Attributes[static_cast<std::size_t>(section) - 1]);
}

}  // namespace cardwright::workbench
