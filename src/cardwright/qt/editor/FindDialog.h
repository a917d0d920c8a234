// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "cardwright/editor/TextSearch.h"

class QCheckBox;
class QComboBox;

namespace cardwright::qt {

/// The search dialog of the script editor, "frmTrova". It is kept between searches, with the texts that were
/// looked for.
class FindDialog final : public QDialog {
 public:
  explicit FindDialog(QWidget* parent);

  void SetSearched(const Text& text);
  /// What was asked for; none where the dialog was left without OK or without a text.
  std::optional<SearchRequest> Request() const;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void NameParts();
  void LayOutParts();
  void OnOk();

  SearchHistory m_History;
  QComboBox* const m_Text;
  QComboBox* const m_Direction;
  QCheckBox* const m_WholeWord;
  QCheckBox* const m_MatchCase;
  bool m_IsAsked = false;
};

}  // namespace cardwright::qt
