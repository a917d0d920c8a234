// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QPointer>

#include "cardwright/automation/MemberTable.h"

namespace cardwright::desktop {

/// The output object of a debugging run: SelText appends text to a pane.
class DebugPane final : public TableObject {
 public:
  explicit DebugPane(QWidget& parent);

  Text TypeName() const override { return u"TextBox"; }
  QPlainTextEdit* Pane() const noexcept { return m_Pane; }
  Text SelText() const { return {}; }
  void SetSelText(const Text& text);

 protected:
  const MemberTable& Members() const override;

 private:
  QPointer<QPlainTextEdit> m_Pane;
};

}  // namespace cardwright::desktop
