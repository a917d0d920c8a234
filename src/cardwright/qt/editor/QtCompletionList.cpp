// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/QtCompletionList.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/editor/EditorIcons.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kCompletionList = MakeFieldKind(u"ListView", MouseUse::All, ClickSource::Widget);

Text IconKey(const CompletionRow& row) { return row.isRequest ? u"function" : u"method"; }

}  // namespace

class QtCompletionList::Rows final : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Set(std::vector<CompletionRow> rows) {
    beginResetModel();
    m_Rows = std::move(rows);
    endResetModel();
  }
  std::vector<CompletionRow>& All() noexcept { return m_Rows; }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(m_Rows.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const CompletionRow& row = m_Rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) return ToQString(row.text);
    if (role == Qt::DecorationRole) return row.isRequest ? m_Request : m_Command;
    return {};
  }

 private:
  std::vector<CompletionRow> m_Rows;
  const QIcon m_Command = EditorIcon(u"method");
  const QIcon m_Request = EditorIcon(u"function");
};

class QtCompletionList::View final : public QListView {
 public:
  View(QWidget* parent, QtCompletionList& owner) : QListView(parent), m_Owner(owner) {
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setAccessibleName(tr("Host commands"));
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isOurs = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space || event->key() == Qt::Key_Escape;
    if (!isOurs) return QListView::keyPressEvent(event);
    event->accept();
    const char16_t key = event->key() == Qt::Key_Space    ? u' '
                         : event->key() == Qt::Key_Escape ? u'\x1B'
                                                          : u'\r';
    m_Owner.NotifyList([&](CompletionListListener& listener) { listener.OnListKeyPress(key); });
  }
  void focusInEvent(QFocusEvent* event) override {
    QListView::focusInEvent(event);
    if (!currentIndex().isValid() && model()->rowCount() > 0) setCurrentIndex(model()->index(0, 0));
    m_Owner.NotifyList([](CompletionListListener& listener) { listener.OnListGotFocus(); });
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    QListView::mouseMoveEvent(event);
    const QModelIndex over = indexAt(event->pos());
    if (!over.isValid() || over == m_Over) return;
    m_Over = over;
    const int row = over.row() + 1;
    m_Owner.NotifyList([&](CompletionListListener& listener) { listener.OnListHover(row); });
  }

 private:
  QtCompletionList& m_Owner;
  QPersistentModelIndex m_Over;
};

QtCompletionList::QtCompletionList(WidgetPlace place)
    : QtWidget(kCompletionList, place), m_View(new View(place.parent, *this)), m_Rows(new Rows(m_View)) {
  m_View->setModel(m_Rows);
  Adopt(*m_View);
  QObject::connect(m_View, &QListView::doubleClicked, this, [this] {
    NotifyList([](CompletionListListener& listener) { listener.OnListDoubleClick(); });
  });
  const auto onChosen = [this](const QModelIndex& index) {
    const int row = index.row() + 1;
    if (row > 0) NotifyList([&](CompletionListListener& listener) { listener.OnListItemClick(row); });
  };
  QObject::connect(m_View, &QListView::clicked, this, onChosen);
  QObject::connect(m_View->selectionModel(), &QItemSelectionModel::currentChanged, this,
                   [this, onChosen](const QModelIndex& index) {
                     if (m_View->hasFocus()) onChosen(index);
                   });
}

template <class Call>
void QtCompletionList::NotifyList(Call&& call) {
  if (!m_ListListener) return;
  const HandlerScope scope(*this);
  BestEffort([&] { call(*m_ListListener); });
}

Text QtCompletionList::TypeName() const { return kCompletionList.typeName; }

void QtCompletionList::SetDisplayText(const Text& /*text*/) { Raise(ErrorNumber::NotSupported); }

const CompletionRow& QtCompletionList::At(int row) const {
  if (row < 1 || row > RowCount()) Raise(ErrorNumber::SubscriptOutOfRange);
  return m_Rows->All()[static_cast<std::size_t>(row - 1)];
}

void QtCompletionList::SetRows(std::span<const CompletionRow> rows) {
  RequireAlive();
  m_Rows->Set({rows.begin(), rows.end()});
}

Text QtCompletionList::RowIcon(int row) const { return IconKey(At(row)); }

void QtCompletionList::EnsureVisible(int row) {
  At(row);
  m_View->scrollTo(m_Rows->index(row - 1, 0));
}

int QtCompletionList::RowCount() const { return Live(m_Rows)->rowCount(); }
Text QtCompletionList::RowText(int row) const { return At(row).text; }

void QtCompletionList::SetRowText(int row, const Text& text) {
  At(row);
  m_Rows->All()[static_cast<std::size_t>(row - 1)].text = text;
  m_View->update(m_Rows->index(row - 1, 0));
}

void QtCompletionList::AddRow(const Text& text) {
  std::vector<CompletionRow> rows = Live(m_Rows)->All();
  rows.push_back({text, false});
  m_Rows->Set(std::move(rows));
}

void QtCompletionList::RemoveRow(int row) {
  At(row);
  std::vector<CompletionRow> rows = m_Rows->All();
  rows.erase(rows.begin() + row - 1);
  m_Rows->Set(std::move(rows));
}

int QtCompletionList::SelectedRow() const {
  const QModelIndexList selected = Live(m_View)->selectionModel()->selectedIndexes();
  return selected.isEmpty() ? 0 : selected.front().row() + 1;
}

void QtCompletionList::SetSelectedRow(int row) {
  RequireAlive();
  if (row == 0) return m_View->clearSelection();
  At(row);
  m_View->setCurrentIndex(m_Rows->index(row - 1, 0));
}

float QtCompletionList::ColumnWidth() const {
  return PixelsToScale(static_cast<float>(Live(m_View)->viewport()->width()), Scale());
}

}  // namespace cardwright::qt
