// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/QtListView.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeWidget>
#include <cmath>
#include <functional>

#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/FocusFramed.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kListView = MakeFieldKind(u"ListView", MouseUse::All, ClickSource::Widget);
constexpr int kMarkRole = Qt::UserRole;
constexpr float kWidestColumn = 100000.0F;

}  // namespace

/// Fires the click after the tree has handled it, so that the listener finds the new selection. A column as
/// wide as the list, frames and all, as forms ask for, is no reason to scroll.
class QtListView::Tree final : public FocusFramed<QTreeWidget> {
 public:
  using FocusFramed::FocusFramed;
  std::function<void()> onClick;

  void SetColumn(int width) {
    setColumnWidth(0, width);
    UpdateBar();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTreeWidget::resizeEvent(event);
    UpdateBar();
  }
  void mousePressEvent(QMouseEvent* event) override {
    m_IsPressed = event->button() == Qt::LeftButton;
    QTreeWidget::mousePressEvent(event);
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    m_IsPressed = false;
    QTreeWidget::mouseDoubleClickEvent(event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    const bool clicked = m_IsPressed && event->button() == Qt::LeftButton &&
                         viewport()->rect().contains(event->position().toPoint());
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) m_IsPressed = false;
    if (clicked) onClick();
  }

 private:
  void UpdateBar() {
    const Qt::ScrollBarPolicy policy =
        columnWidth(0) > width() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    if (policy != horizontalScrollBarPolicy()) setHorizontalScrollBarPolicy(policy);
  }

  bool m_IsPressed = false;
};

QtListView::QtListView(WidgetPlace place) : QtWidget(kListView, place), m_Tree(new Tree(place.parent)) {
  m_Tree->setColumnCount(1);
  m_Tree->setHeaderHidden(true);
  m_Tree->setRootIsDecorated(false);
  m_Tree->setUniformRowHeights(true);
  m_Tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_Tree->header()->setStretchLastSection(false);
  m_Tree->header()->setMinimumSectionSize(0);
  m_Tree->SetColumn(static_cast<int>(m_ColumnPixels));
  // A handler of the same click may have removed the list already.
  m_Tree->onClick = [this, self = QPointer<QObject>(this)] {
    if (self && Native()) NotifyClick();
  };
  Adopt(*m_Tree);
  WatchPart(*m_Tree->viewport());
  QObject::connect(m_Tree, &QTreeWidget::itemChanged, this,
                   [this](QTreeWidgetItem* item) { OnItemChanged(*item); });
}

Text QtListView::DisplayText() const {
  RequireAlive();
  return {};
}

void QtListView::SetDisplayText(const Text& /*text*/) {
  RequireAlive();
  Raise(ErrorNumber::NotSupported);
}

bool QtListView::HasCheckBoxes() const { return Live(m_HasCheckBoxes); }

void QtListView::SetCheckBoxes(bool shown) {
  RequireAlive();
  if (shown == m_HasCheckBoxes) return;
  m_HasCheckBoxes = shown;
  for (int row = 1; row <= RowCount(); ++row) ShowMark(Row(row));
}

void QtListView::ShowMark(QTreeWidgetItem& item) {
  const QSignalBlocker silence(m_Tree);
  const bool marked = item.data(0, kMarkRole).toBool();
  const Qt::CheckState state = marked ? Qt::Checked : Qt::Unchecked;
  item.setData(0, Qt::CheckStateRole, m_HasCheckBoxes ? QVariant(state) : QVariant());
}

/// Only the user's click or key gets here: what code changes is silent.
void QtListView::OnItemChanged(QTreeWidgetItem& item) {
  const bool marked = item.checkState(0) == Qt::Checked;
  if (!m_HasCheckBoxes || marked == item.data(0, kMarkRole).toBool()) return;
  {
    const QSignalBlocker silence(m_Tree);
    item.setData(0, kMarkRole, marked);
  }
  const int row = m_Tree->indexOfTopLevelItem(&item) + 1;
  Notify([row](WidgetListener& listener) { listener.OnItemCheck(row); });
}

int QtListView::RowCount() const { return Live(m_Tree)->topLevelItemCount(); }

QTreeWidgetItem& QtListView::Row(int row) const {
  if (row < 1 || row > RowCount()) Raise(ErrorNumber::SubscriptOutOfRange);
  return *m_Tree->topLevelItem(row - 1);
}

Text QtListView::RowText(int row) const { return FromQString(Row(row).text(0)); }

void QtListView::SetRowText(int row, const Text& text) {
  const QSignalBlocker silence(m_Tree);
  Row(row).setText(0, ToQString(text));
}

bool QtListView::IsRowChecked(int row) const { return Row(row).data(0, kMarkRole).toBool(); }

void QtListView::SetRowChecked(int row, bool checked) {
  QTreeWidgetItem& item = Row(row);
  {
    const QSignalBlocker silence(m_Tree);
    item.setData(0, kMarkRole, checked);
  }
  ShowMark(item);
}

void QtListView::AddRow(const Text& text) {
  RequireAlive();
  auto item = std::make_unique<QTreeWidgetItem>();
  item->setText(0, ToQString(text));
  item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
  if (m_HasCheckBoxes) item->setCheckState(0, Qt::Unchecked);
  m_Tree->addTopLevelItem(item.release());
}

void QtListView::RemoveRow(int row) {
  const bool wasSelected = SelectedRow() == row;
  delete &Row(row);
  // The toolkit would pass the selection on to a neighbour.
  if (wasSelected) SetSelectedRow(0);
}

void QtListView::Clear() { Live(m_Tree)->clear(); }

int QtListView::SelectedRow() const {
  RequireAlive();
  const QList<QTreeWidgetItem*> selected = m_Tree->selectedItems();
  return selected.isEmpty() ? 0 : m_Tree->indexOfTopLevelItem(selected.front()) + 1;
}

void QtListView::SetSelectedRow(int row) {
  RequireAlive();
  if (row == 0) {
    m_Tree->setCurrentItem(nullptr);
    m_Tree->clearSelection();
    return;
  }
  m_Tree->setCurrentItem(&Row(row));
}

float QtListView::ColumnWidth() const { return PixelsToScale(m_ColumnPixels, Scale()); }

void QtListView::SetColumnWidth(float width) {
  const float pixels = ScaleToPixels(width, Scale());
  if (!(pixels >= 0 && pixels <= kWidestColumn)) Raise(ErrorNumber::InvalidPropertyValue);
  m_ColumnPixels = pixels;
  m_Tree->SetColumn(static_cast<int>(std::lround(pixels)));
}

}  // namespace cardwright::qt
