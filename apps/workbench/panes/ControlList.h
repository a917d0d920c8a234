#pragma once

#include <QSet>
#include <QTreeWidget>

#include "cardwright/designer/FormDesigner.h"

namespace cardwright::workbench {

/// The controls of the form as they lie one on the other, the front one first, those of a frame below it.
class ControlList final : public QTreeWidget {
  Q_OBJECT
 public:
  explicit ControlList(QWidget* parent);

  /// Lists the controls of a designer; rows that are as they were stay, and frames that were closed too.
  void Show(cardwright::FormDesigner& designer);
  /// Marks the selected control.
  void Mark(const cardwright::IControl* control);
  /// What is listed next is another form.
  void Forget();

 Q_SIGNALS:
  /// A person has chosen a control.
  void Chosen(cardwright::IControl* control);

 private:
  struct Row {
    Ref<IControl> control;
    QString object;  ///< name of the widget, which a renamed control keeps
    QString name;
    ControlTypeEnum kind;
    std::size_t frame;  ///< row of the frame that it lies in, that of the form otherwise
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
