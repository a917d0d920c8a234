// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

#include "cardwright/model/Enums.h"

namespace cardwright::workbench {

/// The kinds of control that can be drawn, after the pointer for selecting.
class ToolBox final : public QListWidget {
  Q_OBJECT
 public:
  explicit ToolBox(QWidget* parent);

  /// Chooses the pointer again.
  void Reset();
  ControlTypeEnum Kind() const;

  QSize sizeHint() const override { return {170, 420}; }

 Q_SIGNALS:
  /// The next press on the form draws a control of this kind; ctDefault selects.
  void KindChosen(cardwright::ControlTypeEnum kind);
  /// A control of this kind is to be added without drawing it.
  void InsertWanted(cardwright::ControlTypeEnum kind);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Insert();
};

}  // namespace cardwright::workbench
