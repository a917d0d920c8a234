#pragma once

#include <QListWidget>

#include "cardwright/model/Enums.h"

namespace cardwright::workbench {

/// The kinds of control that can be drawn, and above them the pointer that selects.
class ToolBox final : public QListWidget {
  Q_OBJECT
 public:
  explicit ToolBox(QWidget* parent);

  /// Back to the pointer.
  void Reset();
  ControlTypeEnum Kind() const;

  QSize sizeHint() const override { return {170, 420}; }

 Q_SIGNALS:
  /// The next press on the form draws one of this kind; ctDefault selects.
  void KindChosen(cardwright::ControlTypeEnum kind);
  /// A control of this kind is to be put on the form at once.
  void InsertWanted(cardwright::ControlTypeEnum kind);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Insert();
};

}  // namespace cardwright::workbench
