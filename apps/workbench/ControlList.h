#pragma once

#include <QTreeWidget>

#include "designer/FormDesigner.h"

namespace cardwright::workbench {

/// The controls of the form as they lie one on the other, the front one first, those of a frame below it.
class ControlList final : public QTreeWidget {
  Q_OBJECT
 public:
  explicit ControlList(QWidget* parent);

  /// Lists the controls of a designer anew.
  void Show(cardwright::FormDesigner& designer);
  /// Marks the selected control.
  void Mark(const cardwright::IControl* control);

 Q_SIGNALS:
  /// A person has chosen a control.
  void Chosen(cardwright::IControl* control);

 private:
  void OnCurrent(QTreeWidgetItem* item);

  std::vector<Ref<IControl>> m_Controls;  // what the rows stand for, by the number each row bears
  bool m_IsFilling = false;
};

}  // namespace cardwright::workbench
