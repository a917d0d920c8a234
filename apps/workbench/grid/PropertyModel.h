#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "cardwright/model/IControl.h"

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
  /// Gives the control what a person has typed. A text that is refused stays in the row, to be mended.
  bool Enter(int row, const QString& text);
  /// Whether a refused text stands in the row, and why it was refused.
  bool IsRefused(int row) const { return m_Rows[static_cast<std::size_t>(row)].refusal.has_value(); }
  QString RefusalOf(int row) const;
  /// Puts the value back in the place of a refused text.
  void GiveUp(int row);
  /// The value as a text, also while a refused one stands in its place.
  QString TextAt(int row) const { return m_Rows[static_cast<std::size_t>(row)].text; }
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
  /// A refused text has made way for the value again.
  void GaveUp();
  /// A value was refused, or taken with a warning.
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
  /// Gives the control a value; the reason where it was refused.
  QString Try(int row, const Variant& value);
  /// Why a text that was set is not what the control has now; "" where it is.
  QString ReasonItWasDropped(int row, const Variant& value) const;
  void Changed(int row);

  Ref<IControl> m_Control;
  std::vector<Row> m_Rows;
};

}  // namespace cardwright::workbench
