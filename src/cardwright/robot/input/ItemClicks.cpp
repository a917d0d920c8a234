// SPDX-License-Identifier: MIT
#include "cardwright/robot/input/ItemClicks.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <chrono>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/input/EventProcessing.h"

namespace cardwright::robot {
namespace {

/// The toolkit ignores clicks on a list that was just opened until the time for a double click has passed. A
/// short one saves that wait.
class ShortDoubleClick {
 public:
  ShortDoubleClick() { QApplication::setDoubleClickInterval(1); }
  ~ShortDoubleClick() { QApplication::setDoubleClickInterval(m_Before); }
  ShortDoubleClick(const ShortDoubleClick&) = delete;
  ShortDoubleClick& operator=(const ShortDoubleClick&) = delete;

 private:
  const int m_Before = QApplication::doubleClickInterval();
};

QPoint PositionOf(const QAbstractItemView& view, const QModelIndex& index, ItemPart part) {
  const QRect row = view.visualRect(index);
  if (part == ItemPart::Text) return row.center();
  if (!index.data(Qt::CheckStateRole).isValid()) Raise(ErrorNumber::NotSupported);
  QStyleOptionViewItem option;
  option.initFrom(&view);
  option.rect = row;
  option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
  return view.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view).center();
}

void ClickRow(Mouse& mouse, QAbstractItemView& view, int row, ItemPart part) {
  const QModelIndex index = view.model()->index(row - 1, 0);
  if (!index.isValid()) Raise(ErrorNumber::SubscriptOutOfRange);
  view.scrollTo(index);
  const QPoint at = PositionOf(view, index, part);
  if (view.window()->windowType() == Qt::Popup) mouse.Move(*view.viewport(), at);  // selects the row
  mouse.Click(*view.viewport(), at);
}

void OpenList(Mouse& mouse, QComboBox& combo) {
  const ShortDoubleClick interval;
  const QPoint arrow(combo.width() - 8, combo.height() / 2);
  mouse.Click(combo, arrow);
  ProcessEvents(std::chrono::milliseconds(5));
  if (!combo.view()->isVisible())
    Raise(static_cast<int>(ErrorNumber::InvalidCall),
          qt::FromQString(combo.objectName()) + u": the list does not open");
}

}  // namespace

void ClickItem(Mouse& mouse, QWidget& widget, int row, ItemPart part) {
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    if (row < 1 || row > combo->count()) Raise(ErrorNumber::SubscriptOutOfRange);
    if (!combo->view()->isVisible()) OpenList(mouse, *combo);
    return ClickRow(mouse, *combo->view(), row, part);
  }
  auto* view = qobject_cast<QAbstractItemView*>(&widget);
  if (!view) Raise(ErrorNumber::NotSupported);
  ClickRow(mouse, *view, row, part);
}

}  // namespace cardwright::robot
