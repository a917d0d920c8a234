// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QCache>
#include <QStringList>
#include <vector>

#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright::workbench {

/// The features of one theme with their attributes. Rows are read when they come into view, and all at once
/// for sorting, searching and copying. The model has a connection of its own, so that it does not change what
/// a form has selected.
class FeatureModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit FeatureModel(QObject* parent);
  ~FeatureModel() override;

  /// Connects to another data source; "" for none. Error 53 with a description if it cannot be opened.
  void Open(const QString& source);
  std::vector<ListedTheme> Themes() const { return OrvClient::At(m_Handle).ListThemes(); }
  /// Shows all features of a theme in the order of the store; none if there is no such theme.
  void Show(const QString& theme);
  const QString& Theme() const noexcept { return m_Theme; }
  /// Reads everything again.
  void Reload();

  /// Shows only features with the text in one of their values, ignoring case; "" shows all.
  void Search(const QString& text);
  /// Sorts numbers by value and texts by the user's language; column -1 is the order of the store.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
  /// The number of features in the theme, including those not found by a search.
  int Total() const noexcept { return static_cast<int>(m_Ids.size()); }

  /// The identifier of the feature in a row.
  QString IdOf(int row) const { return QString::number(m_Ids[Place(row)]); }
  /// The row of a feature; -1 if it is not shown.
  int RowOf(const QString& id) const;
  /// Rows in the format of spreadsheets: one per line, values separated by tabs.
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
  std::vector<std::size_t> m_Shown;   // for each row, an index in m_Ids
  std::vector<QStringList> m_Values;  // by index in m_Ids; empty until all are needed
  mutable QCache<std::size_t, QStringList> m_Seen;
  QString m_Search;
  int m_SortColumn = -1;
  Qt::SortOrder m_Order = Qt::AscendingOrder;
};

}  // namespace cardwright::workbench
