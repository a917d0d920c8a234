// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/editor/EditorSurface.h"
#include "cardwright/qt/widgets/QtWidget.h"

class QListView;

namespace cardwright::qt {

/// The list of the script editor's pop-up. Rows are drawn as they come into view, so a long list opens at
/// once.
class QtCompletionList final : public QtWidget<CompletionListWidget> {
 public:
  explicit QtCompletionList(WidgetPlace place);

  Text TypeName() const override;
  Text DisplayText() const override { return {}; }
  void SetDisplayText(const Text& text) override;

  void SetRows(std::span<const CompletionRow> rows) override;
  Text RowIcon(int row) const override;
  void EnsureVisible(int row) override;
  void SetCompletionListener(CompletionListListener* listener) override { m_ListListener = listener; }

  bool HasCheckBoxes() const override { return false; }
  void SetCheckBoxes(bool /*shown*/) override {}
  int RowCount() const override;
  Text RowText(int row) const override;
  void SetRowText(int row, const Text& text) override;
  bool IsRowChecked(int /*row*/) const override { return false; }
  void SetRowChecked(int /*row*/, bool /*checked*/) override {}
  void AddRow(const Text& text) override;
  void RemoveRow(int row) override;
  void Clear() override { SetRows({}); }
  int SelectedRow() const override;
  void SetSelectedRow(int row) override;
  float ColumnWidth() const override;
  void SetColumnWidth(float /*width*/) override {}

 private:
  class Rows;
  class View;

  const CompletionRow& At(int row) const;
  template <class Call>
  void NotifyList(Call&& call);

  View* m_View;
  Rows* m_Rows;
  CompletionListListener* m_ListListener = nullptr;
};

}  // namespace cardwright::qt
