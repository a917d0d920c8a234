// SPDX-License-Identifier: MIT
#include "workbench/panes/FeatureModel.h"

#include <QCollator>
#include <algorithm>
#include <numeric>
#include <optional>

#include "cardwright/automation/Conversions.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::workbench {
namespace {

constexpr int kRowsInMemory = 4096;
constexpr std::size_t kAskedSingly = 64;  // rows; with more, all features are read at once

/// The sort key of a value: empty values before numbers before texts.
struct SortKey {
  enum class Kind { Nothing, Number, Word } kind = Kind::Nothing;
  double number = 0;
  std::optional<QCollatorSortKey> word;

  SortKey(const QString& text, const QCollator& collator) {
    if (text.isEmpty()) return;
    bool isNumber = false;
    number = text.toDouble(&isNumber);
    kind = isNumber ? Kind::Number : Kind::Word;
    if (!isNumber) word = collator.sortKey(text);
  }
  bool operator<(const SortKey& other) const {
    if (kind != other.kind) return kind < other.kind;
    return kind == Kind::Word ? *word < *other.word : number < other.number;
  }
};

/// A value that would be split is quoted.
QString Quoted(QString value) {
  const bool isPlain =
      !value.contains(u'\t') && !value.contains(u'\n') && !value.contains(u'\r') && !value.startsWith(u'"');
  return isPlain ? value : u'"' + value.replace(u'"', QLatin1String("\"\"")) + u'"';
}

}  // namespace

FeatureModel::FeatureModel(QObject* parent) : QAbstractTableModel(parent), m_Seen(kRowsInMemory) {}

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
  m_Search.clear();
  m_SortColumn = -1;
  beginResetModel();
  ReadTheme(theme);
  Arrange();
  endResetModel();
}

void FeatureModel::ReadTheme(const QString& theme) {
  Clear();
  for (const ListedTheme& listed : Themes()) {
    if (listed.name != qt::FromQString(theme)) continue;
    m_Theme = theme;
    m_Type = listed.featureType;
    for (const ListedAttribute& each : OrvClient::At(m_Handle).ListAttributes({listed.name, m_Type}))
      m_Attributes.push_back(each.name);
    m_Ids = m_Host->FeatureIds(listed.name);
    break;
  }
}

void FeatureModel::Clear() {
  m_Theme.clear();
  m_Attributes.clear();
  m_Ids.clear();
  m_Shown.clear();
  m_Values.clear();
  m_Seen.clear();
}

// Formats that cache what they read would show old values on an old connection.
void FeatureModel::Reload() {
  const QString theme = m_Theme;
  const QString search = m_Search;
  const int column = m_SortColumn;
  try {
    Open(m_Source);
  } catch (const Error&) {
    Close();  // the data source has disappeared meanwhile
  }
  beginResetModel();
  m_Search = search;
  m_SortColumn = column;
  ReadTheme(theme);
  Arrange();
  endResetModel();
}

void FeatureModel::Search(const QString& text) {
  if (text == m_Search) return;
  beginResetModel();
  m_Search = text;
  Arrange();
  endResetModel();
}

void FeatureModel::sort(int column, Qt::SortOrder order) {
  if (column == m_SortColumn && order == m_Order) return;
  beginResetModel();
  m_SortColumn = column;
  m_Order = order;
  Arrange();
  endResetModel();
}

// Filters and sorts the rows again.
void FeatureModel::Arrange() {
  if (!m_Search.isEmpty() || m_SortColumn > 0) ReadAll();
  m_Shown.resize(m_Ids.size());
  std::iota(m_Shown.begin(), m_Shown.end(), std::size_t{0});
  std::erase_if(m_Shown, [this](std::size_t place) { return !Matches(place); });
  if (m_SortColumn < 0 || m_SortColumn >= columnCount()) return;
  const QCollator collator;
  std::vector<SortKey> keys;
  keys.reserve(m_Ids.size());
  for (std::size_t place = 0; place < m_Ids.size(); ++place)
    keys.emplace_back(TextOf(place, m_SortColumn), collator);
  std::ranges::stable_sort(m_Shown, [&](std::size_t a, std::size_t b) {
    return m_Order == Qt::AscendingOrder ? keys[a] < keys[b] : keys[b] < keys[a];
  });
}

bool FeatureModel::Matches(std::size_t place) const {
  if (m_Search.isEmpty()) return true;
  const auto has = [this](const QString& value) { return value.contains(m_Search, Qt::CaseInsensitive); };
  return has(QString::number(m_Ids[place])) || std::ranges::any_of(m_Values[place], has);
}

// In the order of m_Ids, except what others have changed meanwhile.
void FeatureModel::ReadAll() {
  if (!m_Host || !m_Values.empty()) return;
  m_Values.resize(m_Ids.size());
  std::size_t place = 0;
  const auto put = [&](std::int64_t id, const std::vector<Text>& texts) {
    if (place == m_Ids.size() || m_Ids[place] != id)
      place = static_cast<std::size_t>(std::ranges::find(m_Ids, id) - m_Ids.begin());
    if (place == m_Ids.size()) return;
    for (const Text& text : texts) m_Values[place] += qt::ToQString(text);
    ++place;
  };
  m_Host->ReadFeatures(qt::FromQString(m_Theme), m_Attributes, put);
}

int FeatureModel::RowOf(const QString& id) const {
  const auto found =
      std::ranges::find(m_Shown, id.toLongLong(), [this](std::size_t at) { return m_Ids[at]; });
  return found == m_Shown.end() ? -1 : static_cast<int>(found - m_Shown.begin());
}

QString FeatureModel::AsText(const std::vector<int>& rows) {
  if (rows.size() > kAskedSingly) ReadAll();
  QString text;
  for (const int row : rows) {
    QStringList cells;
    for (int column = 0; column < columnCount(); ++column) cells += Quoted(TextOf(Place(row), column));
    text += cells.join(u'\t') + u'\n';
  }
  return text;
}

QString FeatureModel::TextOf(std::size_t place, int column) const {
  return column == 0 ? QString::number(m_Ids[place]) : ValuesOf(place).value(column - 1);
}

const QStringList& FeatureModel::ValuesOf(std::size_t place) const {
  if (!m_Values.empty()) return m_Values[place];
  if (const QStringList* known = m_Seen.object(place)) return *known;
  auto* values = new QStringList(Ask(place));
  m_Seen.insert(place, values);
  return *values;
}

QStringList FeatureModel::Ask(std::size_t place) const {
  const FeatureClass features{qt::FromQString(m_Theme), m_Type};
  OrvClient host(m_Host);
  host.SelectByValue(features, qt::FromQString(QString::number(m_Ids[place])));
  host.MoveFirst(features);
  QStringList values;
  for (const Text& attribute : m_Attributes) values += qt::ToQString(host.GetAttribute(features, attribute));
  return values;
}

int FeatureModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_Shown.size());
}

int FeatureModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || m_Theme.isEmpty() ? 0 : static_cast<int>(m_Attributes.size()) + 1;
}

QVariant FeatureModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  if (index.column() == 0 && role == Qt::ToolTipRole) return {};
  return TextOf(Place(index.row()), index.column());
}

QVariant FeatureModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  if (section == 0) return tr("Id");
  return qt::ToQString(m_Attributes[static_cast<std::size_t>(section) - 1]);
}

}  // namespace cardwright::workbench
