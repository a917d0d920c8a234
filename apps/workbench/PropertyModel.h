#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

#include "model/IControl.h"

namespace cardwright::workbench {

/// The rows of one form element, in the order of its table, as a toolkit's table of names and values. It
/// knows a control by its contract alone.
class PropertyModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Column { kName, kValue, kColumnCount };

  using QAbstractTableModel::QAbstractTableModel;

  /// Shows another control, or the same one anew; null for none.
  void SetControl(Ref<IControl> control);
  const Ref<IControl>& Control() const noexcept { return m_Control; }

  PropertyTypeEnum TypeOf(int row) const { return m_Rows[static_cast<std::size_t>(row)].type; }
  QString NameOf(int row) const { return m_Rows[static_cast<std::size_t>(row)].name; }
  QString DescriptionOf(int row) const { return m_Rows[static_cast<std::size_t>(row)].description; }
  Variant ValueOf(int row) const;
  /// Position of the row of that name; -1 where there is none.
  int RowOf(const QString& name) const;

  /// Gives the control a value. False where it was refused, which Refused tells with the reason.
  bool Assign(int row, const Variant& value);
  /// Reads the value of a row, or of all, anew.
  void Refresh(int row);
  void RefreshAll();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 Q_SIGNALS:
  /// A control has taken a value.
  void Assigned();
  /// A value was refused, or taken with a warning.
  void Refused(const QString& reason);

 private:
  struct Row {
    QString name;
    PropertyTypeEnum type;
    QString description;
    QString text;
  };

  QString TextOfRow(int row) const;
  /// Why a name cannot be taken; "" where it can.
  QString ReasonAgainstName(const QString& name) const;
  void WarnOfLoss(PropertyTypeEnum type, const Variant& value);

  Ref<IControl> m_Control;
  std::vector<Row> m_Rows;
};

}  // namespace cardwright::workbench
