// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/QtWidget.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace cardwright::qt {

/// A list view of one column without a header. Row numbers outside the list are error 9.
class QtListView final : public QtWidget<ListViewWidget> {
 public:
  explicit QtListView(WidgetPlace place);
  /// A list view has no text of its own: empty, and error 438 where one is set.
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

  bool HasCheckBoxes() const override;
  /// Rows keep their marks while the boxes are not shown.
  void SetCheckBoxes(bool shown) override;
  int RowCount() const override;
  Text RowText(int row) const override;
  void SetRowText(int row, const Text& text) override;
  bool IsRowChecked(int row) const override;
  void SetRowChecked(int row, bool checked) override;
  void AddRow(const Text& text) override;
  void RemoveRow(int row) override;
  void Clear() override;
  int SelectedRow() const override;
  /// 0 takes the selection away.
  void SetSelectedRow(int row) override;
  float ColumnWidth() const override;
  void SetColumnWidth(float width) override;

 private:
  class Tree;
  QTreeWidgetItem& Row(int row) const;
  void ShowMark(QTreeWidgetItem& item);
  void OnItemChanged(QTreeWidgetItem& item);

  Tree* m_Tree;
  float m_ColumnPixels = 96.0F;
  bool m_HasCheckBoxes = false;
};

}  // namespace cardwright::qt
