// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QTreeWidget>

#include "cardwright/designer/FormDesigner.h"

namespace cardwright::workbench {

/// The controls of the form from front to back, with the contents of each frame below it.
class ControlList final : public QTreeWidget {
  Q_OBJECT
 public:
  explicit ControlList(QWidget* parent);

  /// Lists the controls of a designer; unchanged rows and collapsed frames stay as they are.
  void Show(cardwright::FormDesigner& designer);
  /// Shows which control is selected.
  void Mark(const cardwright::IControl* control);
  /// The next list is of another form.
  void Forget();

 Q_SIGNALS:
  /// The user has selected a control.
  void Chosen(cardwright::IControl* control);

 private:
  struct Row {
    Ref<IControl> control;
    QString object;  ///< name of the widget, which a renamed control keeps
    QString name;
    ControlTypeEnum kind;
    std::size_t frame;  ///< row of its frame, or of the form
    QTreeWidgetItem* item = nullptr;

    bool LooksLike(const Row& other) const {
      return object == other.object && name == other.name && kind == other.kind && frame == other.frame;
    }
  };
  static std::vector<Row> RowsOf(cardwright::FormDesigner& designer);
  void Fill();
  QSet<QString> Closed() const;
  void OnCurrent(QTreeWidgetItem* item);

  std::vector<Row> m_Rows;  // the form, then its controls
  bool m_IsFilling = false;
};

}  // namespace cardwright::workbench
