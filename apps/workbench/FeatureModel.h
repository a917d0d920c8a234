#pragma once

#include <QAbstractTableModel>
#include <QCache>
#include <QStringList>

#include "orv/EmbeddedHost.h"
#include "runtime/HostLists.h"

namespace cardwright::workbench {

/// The features of one theme with their attributes, read as they come into view. It looks at the source over
/// a connection of its own, so that it does not disturb what a form has selected.
class FeatureModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit FeatureModel(QObject* parent);
  ~FeatureModel() override;

  /// Looks at another source; "" for none. Error 53 with a description where it cannot be opened.
  void Open(const QString& source);
  std::vector<ListedTheme> Themes() const { return ListThemes(m_Handle); }
  /// Shows the features of a theme; none for a name that the source does not have.
  void Show(const QString& theme);
  const QString& Theme() const noexcept { return m_Theme; }
  /// Reads everything anew.
  void Reload();

  /// Identifier of the feature in a row.
  QString IdOf(int row) const { return QString::number(m_Ids[static_cast<std::size_t>(row)]); }
  /// The row of a feature; -1 where there is none.
  int RowOf(const QString& id) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const QStringList& ValuesOf(int row) const;
  void Close();

  QString m_Source;
  Ref<EmbeddedHost> m_Host;
  std::int32_t m_Handle = 0;
  QString m_Theme;
  FeatureTypeEnum m_Type = FeatureTypeEnum::ftNone;
  std::vector<Text> m_Attributes;
  std::vector<std::int64_t> m_Ids;
  mutable QCache<int, QStringList> m_Rows;
};

}  // namespace cardwright::workbench
