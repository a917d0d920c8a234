// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

#include "cardwright/qt/widgets/QtWidget.h"

class QLabel;
class QPushButton;

namespace cardwright::qt {

/// Text that does not react to keys: word-wrapped from the top left.
class QtLabel final : public QtWidget<CaptionWidget> {
 public:
  explicit QtLabel(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  QLabel* m_Label;
  Text m_Text;
};

/// A box around other widgets. Its children count from its outer top left corner, and its caption interrupts
/// the border without moving anything.
class QtFrame final : public QtWidget<CaptionWidget> {
 public:
  explicit QtFrame(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  class Box;
  QGroupBox* m_Box;
};

/// A push button; Enter presses it while it has the focus. It keeps colours but does not show them.
class QtCommandButton final : public QtWidget<CaptionWidget> {
 public:
  explicit QtCommandButton(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  QPushButton* m_Button;
};

/// The viewer of a table, which authors draw for its own sake: an empty sheet. No form holds one.
class QtDbTableViewer final : public QtWidget<CaptionWidget> {
 public:
  explicit QtDbTableViewer(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  QLabel* m_Sheet;
};

}  // namespace cardwright::qt
