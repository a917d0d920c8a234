#pragma once

#include <QAbstractTableModel>
#include <QCache>
#include <QStringList>
#include <vector>

#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright::workbench {

/// The features of one theme with their attributes, read as they come into view; all at once when they are
/// sorted, searched or copied. It looks at the source over a connection of its own, so that it does not
/// disturb what a form has selected.
class FeatureModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit FeatureModel(QObject* parent);
  ~FeatureModel() override;

  /// Looks at another source; "" for none. Error 53 with a description where it cannot be opened.
  void Open(const QString& source);
  std::vector<ListedTheme> Themes() const { return OrvClient::At(m_Handle).ListThemes(); }
  /// Shows the features of a theme, all in the store's order; none for a name that the source does not have.
  void Show(const QString& theme);
  const QString& Theme() const noexcept { return m_Theme; }
  /// Reads everything anew.
  void Reload();

  /// Leaves only the features that have the text in one of their values, whatever its case; "" shows all.
  void Search(const QString& text);
  /// By numbers where values are such, by the user's language where not; column -1 is the store's order.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
  /// How many features the theme has, those that a search leaves out too.
  int Total() const noexcept { return static_cast<int>(m_Ids.size()); }

  /// Identifier of the feature in a row.
  QString IdOf(int row) const { return QString::number(m_Ids[Place(row)]); }
  /// The row of a feature; -1 where none shows it.
  int RowOf(const QString& id) const;
  /// Rows as spreadsheets take them: a line for each, a tab between two values.
  QString AsText(const std::vector<int>& rows);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  std::size_t Place(int row) const { return m_Shown[static_cast<std::size_t>(row)]; }
  QString TextOf(std::size_t place, int column) const;
  const QStringList& ValuesOf(std::size_t place) const;
  QStringList Ask(std::size_t place) const;
  void Clear();
  void ReadTheme(const QString& theme);
  void ReadAll();
  void Arrange();
  bool Matches(std::size_t place) const;
  void Close();

  QString m_Source;
  Ref<EmbeddedHost> m_Host;
  std::int32_t m_Handle = 0;
  QString m_Theme;
  FeatureTypeEnum m_Type = FeatureTypeEnum::ftNone;
  std::vector<Text> m_Attributes;
  std::vector<std::int64_t> m_Ids;    // in the store's order
  std::vector<std::size_t> m_Shown;   // rows, as places in it
  std::vector<QStringList> m_Values;  // by place; empty until all were needed
  mutable QCache<std::size_t, QStringList> m_Seen;
  QString m_Search;
  int m_SortColumn = -1;
  Qt::SortOrder m_Order = Qt::AscendingOrder;
};

}  // namespace cardwright::workbench
