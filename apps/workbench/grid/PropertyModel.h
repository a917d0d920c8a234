// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "cardwright/model/IControl.h"

namespace cardwright::workbench {

/// The properties of one form element, in the order of its table, as a model of names and values. It uses
/// only IControl.
class PropertyModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Column { kName, kValue, kColumnCount };

  using QAbstractTableModel::QAbstractTableModel;

  /// Shows another control, or the same one again; null for none.
  void SetControl(Ref<IControl> control);
  const Ref<IControl>& Control() const noexcept { return m_Control; }

  PropertyTypeEnum TypeOf(int row) const { return m_Rows[static_cast<std::size_t>(row)].type; }
  QString NameOf(int row) const { return m_Rows[static_cast<std::size_t>(row)].name; }
  QString DescriptionOf(int row) const { return m_Rows[static_cast<std::size_t>(row)].description; }
  Variant ValueOf(int row) const;
  /// The index of the row of that name; -1 if there is none.
  int RowOf(const QString& name) const;

  /// Sets the value of a row. Returns false if it is invalid, and emits Refused with the reason.
  bool Assign(int row, const Variant& value);
  /// Sets a row to what the user typed. An invalid text stays in the row, to be corrected.
  bool Enter(int row, const QString& text);
  /// Whether the row has an invalid text, and why it is invalid.
  bool IsRefused(int row) const { return m_Rows[static_cast<std::size_t>(row)].refusal.has_value(); }
  QString RefusalOf(int row) const;
  /// Discards an invalid text.
  void Discard(int row);
  /// The value as a text, even while the row shows an invalid one.
  QString TextAt(int row) const { return m_Rows[static_cast<std::size_t>(row)].text; }
  /// Reads the value of a row, or of all rows, again.
  void Refresh(int row);
  void RefreshAll();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 Q_SIGNALS:
  /// The control has accepted a value.
  void Assigned();
  /// An invalid text was discarded.
  void Discarded();
  /// A value is invalid, or was accepted with a warning.
  void Refused(const QString& reason);

 private:
  struct Refusal {
    QString text;
    QString reason;
  };
  struct Row {
    QString name;
    PropertyTypeEnum type;
    QString description;
    QString text;
    std::optional<Refusal> refusal = {};
  };

  QString TextOfRow(int row) const;
  QVariant SignOf(int row) const;
  /// Sets a value; returns the reason if it is invalid.
  QString Try(int row, const Variant& value);
  /// Why the control does not have the text that was set; "" if it has.
  QString ReasonItWasDropped(int row, const Variant& value) const;
  void Changed(int row);

  Ref<IControl> m_Control;
  std::vector<Row> m_Rows;
};

}  // namespace cardwright::workbench
