// SPDX-License-Identifier: MIT
#include "workbench/panes/FeaturePane.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "cardwright/qt/values/FeatureTypeIcon.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::workbench {
namespace {

constexpr int kSearchAfter = 200;  // milliseconds after the last key

/// Reading all features of a large theme takes a while.
class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace

FeaturePane::FeaturePane(QWidget* parent)
    : QWidget(parent),
      m_Model(new FeatureModel(this)),
      m_Themes(new QComboBox(this)),
      m_Count(new QLabel(this)),
      m_Search(new QLineEdit(this)),
      m_Open(new QPushButton(tr("Open…"), this)),
      m_Fill(new QPushButton(tr("Fill in"), this)),
      m_View(new QTableView(this)),
      m_SortBy(new QMenu(tr("Sort &by"), this)) {
  MakeTable();
  MakeActions();
  setFocusProxy(m_View);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(4);
  layout->addLayout(MakeHead());
  layout->addWidget(m_View, 1);
  m_SearchSoon.setSingleShot(true);
  m_SearchSoon.setInterval(kSearchAfter);

  connect(m_Open, &QPushButton::clicked, this, &FeaturePane::OpenWanted);
  connect(m_Fill, &QPushButton::clicked, this, &FeaturePane::FillWanted);
  connect(m_View, &QTableView::doubleClicked, this, &FeaturePane::FillWanted);
  connect(m_Themes, &QComboBox::activated, this, [this] { ShowTheme(m_Themes->currentText()); });
  connect(m_Search, &QLineEdit::textEdited, this, [this] { m_SearchSoon.start(); });
  connect(m_Search, &QLineEdit::returnPressed, this, [this] {
    m_SearchSoon.stop();
    Search();
    m_View->setFocus(Qt::OtherFocusReason);
  });
  connect(&m_SearchSoon, &QTimer::timeout, this, &FeaturePane::Search);
  connect(m_View->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &FeaturePane::Sort);
  ShowChoice();
}

QLayout* FeaturePane::MakeHead() {
  m_Themes->setAccessibleName(tr("Theme"));
  m_Themes->setMinimumContentsLength(8);
  auto* label = new QLabel(tr("&Theme:"), this);
  label->setBuddy(m_Themes);
  m_Search->setPlaceholderText(tr("Search (Ctrl+F)"));
  m_Search->setAccessibleName(tr("Search the features"));
  m_Search->setClearButtonEnabled(true);
  m_Open->setAutoDefault(false);
  m_Open->setAccessibleName(tr("Open a data source"));
  m_Open->setToolTip(tr("Opens another data source (Ctrl+Shift+O)"));
  m_Fill->setAutoDefault(false);
  m_Fill->setToolTip(tr("Opens the form for the chosen feature (Ctrl+R)"));
  // This part shrinks on a small screen.
  m_Search->setMinimumWidth(fontMetrics().averageCharWidth() * 10);
  m_Count->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* head = new QHBoxLayout;
  head->setContentsMargins(4, 4, 4, 0);
  head->addWidget(label);
  head->addWidget(m_Themes);
  head->addWidget(m_Search, 1);
  head->addWidget(m_Count, 1);
  head->addWidget(m_Open);
  head->addWidget(m_Fill);
  return head;
}

void FeaturePane::MakeTable() {
  m_View->setModel(m_Model);
  m_View->setAccessibleName(tr("Features"));
  m_View->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_View->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_View->setTabKeyNavigation(false);
  m_View->setAlternatingRowColors(true);
  m_View->setWordWrap(false);
  m_View->verticalHeader()->hide();
  m_View->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  QHeaderView& header = *m_View->horizontalHeader();
  header.setHighlightSections(false);
  header.setResizeContentsPrecision(0);
  header.setSectionsClickable(true);
  header.setSortIndicatorShown(true);
  header.setSortIndicator(-1, Qt::AscendingOrder);
  header.setSortIndicatorClearable(true);
}

void FeaturePane::MakeActions() {
  auto* copy = new QAction(tr("&Copy Rows"), this);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  connect(copy, &QAction::triggered, this, &FeaturePane::Copy);
  m_View->addAction(copy);
  connect(m_SortBy, &QMenu::aboutToShow, this, &FeaturePane::FillSortMenu);
  m_View->addAction(m_SortBy->menuAction());
  m_View->setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* search = new QAction(this);
  search->setShortcut(QKeySequence::Find);
  search->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  connect(search, &QAction::triggered, m_Search, [this] {
    m_Search->setFocus(Qt::ShortcutFocusReason);
    m_Search->selectAll();
  });
  addAction(search);
}

// The keyboard's counterpart to clicking column headers.
void FeaturePane::FillSortMenu() {
  QHeaderView* header = m_View->horizontalHeader();
  const int sorted = header->sortIndicatorSection();
  const Qt::SortOrder order = sorted < 0 ? Qt::AscendingOrder : header->sortIndicatorOrder();
  m_SortBy->clear();
  for (int column = -1; column < header->count(); ++column) {
    const QString name =
        column < 0 ? tr("Order of the Store") : m_Model->headerData(column, Qt::Horizontal).toString();
    QAction* action = m_SortBy->addAction(QString(name).replace(u'&', QLatin1String("&&")));
    action->setCheckable(true);
    action->setChecked(column == sorted);
    connect(action, &QAction::triggered, header,
            [header, column, order] { header->setSortIndicator(column, order); });
  }
  m_SortBy->addSeparator();
  QAction* descending = m_SortBy->addAction(tr("&Descending"));
  descending->setCheckable(true);
  descending->setChecked(order == Qt::DescendingOrder);
  descending->setEnabled(sorted >= 0);
  connect(descending, &QAction::triggered, header, [header, sorted](bool isOn) {
    header->setSortIndicator(sorted, isOn ? Qt::DescendingOrder : Qt::AscendingOrder);
  });
}

void FeaturePane::Open(const QString& source) {
  m_Model->Open(source);
  m_Themes->clear();
  for (const ListedTheme& theme : m_Model->Themes())
    m_Themes->addItem(qt::ToQString(theme.name), static_cast<int>(theme.featureType));
  ShowSigns();
  if (m_Themes->count() > 0) ShowTheme(m_Themes->itemText(0));
  ShowChoice();
}

void FeaturePane::ShowTheme(const QString& theme) {
  const int at = m_Themes->findText(theme, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (at < 0 || (theme == m_Model->Theme() && m_Model->Total() > 0)) return;
  m_Themes->setCurrentIndex(at);
  m_Search->clear();
  m_Model->Show(theme);
  m_View->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  if (m_Model->rowCount() > 0) m_View->setCurrentIndex(m_Model->index(0, 0));
  FitColumns();
  ShowChoice();
}

QMap<QString, int> FeaturePane::ColumnWidths() const {
  QMap<QString, int> widths;
  for (int column = 0; column < m_Model->columnCount(); ++column)
    widths[m_Model->headerData(column, Qt::Horizontal).toString()] = m_View->columnWidth(column);
  return widths;
}

// Fits columns to the first rows, so that no more of the theme is read than is visible. Columns with a known
// width keep it.
void FeaturePane::FitColumns(const QMap<QString, int>& known) {
  QHeaderView& header = *m_View->horizontalHeader();
  const int most = fontMetrics().averageCharWidth() * 40;
  for (int column = 0; column < header.count(); ++column) {
    const auto width = known.constFind(m_Model->headerData(column, Qt::Horizontal).toString());
    if (width != known.cend()) {
      header.resizeSection(column, *width);
      continue;
    }
    m_View->resizeColumnToContents(column);
    if (header.sectionSize(column) > most) header.resizeSection(column, most);
  }
}

QString FeaturePane::Feature() const {
  const QModelIndex current = m_View->currentIndex();
  return current.isValid() ? m_Model->IdOf(current.row()) : QString();
}

void FeaturePane::ChooseFeature(const QString& id) {
  const int row = m_Model->RowOf(id);
  if (row >= 0) m_View->setCurrentIndex(m_Model->index(row, 0));
}

void FeaturePane::Reload() {
  const QString id = Feature();
  const QMap<QString, int> widths = ColumnWidths();
  m_Model->Reload();
  FitColumns(widths);
  ChooseFeature(id);
  ShowChoice();
}

// Selects the feature that was selected before, or the first one found, ready for a run.
void FeaturePane::Search() {
  const WaitCursor wait;
  const QString id = Feature();
  m_Model->Search(m_Search->text().trimmed());
  if (m_Model->rowCount() > 0) m_View->setCurrentIndex(m_Model->index(qMax(0, m_Model->RowOf(id)), 0));
  ShowChoice();
}

void FeaturePane::Sort(int column, Qt::SortOrder order) {
  const WaitCursor wait;
  const QString id = Feature();
  m_Model->sort(column, order);
  ChooseFeature(id);
}

void FeaturePane::Copy() {
  const WaitCursor wait;
  std::vector<int> rows;
  for (const QModelIndex& index : m_View->selectionModel()->selectedRows()) rows.push_back(index.row());
  std::ranges::sort(rows);
  if (!rows.empty()) QApplication::clipboard()->setText(m_Model->AsText(rows));
}

// In the colour of the text next to them.
void FeaturePane::ShowSigns() {
  const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
  for (int at = 0; at < m_Themes->count(); ++at)
    m_Themes->setItemIcon(at, qt::FeatureTypeIcon(m_Themes->itemData(at).toInt(), ink, devicePixelRatioF()));
}

void FeaturePane::ShowChoice() {
  const int shown = m_Model->rowCount();
  const int total = m_Model->Total();
  m_Fill->setEnabled(shown > 0);
  m_SortBy->setEnabled(m_Model->columnCount() > 0);
  m_Themes->setEnabled(m_Themes->count() > 0);
  m_Search->setEnabled(m_Themes->count() > 0);
  m_Count->setText(m_Themes->count() == 0 ? tr("No data source is open.")
                   : shown < total        ? tr("%L1 of %L2 features").arg(shown).arg(total)
                   : total == 1           ? tr("1 feature")
                                          : tr("%L1 features").arg(total));
}

void FeaturePane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowSigns();
  if (event->type() == QEvent::FontChange)
    m_View->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
}

}  // namespace cardwright::workbench
