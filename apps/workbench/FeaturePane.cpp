#include "workbench/FeaturePane.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "qt/KindSigns.h"
#include "qt/QtText.h"

namespace cardwright::workbench {

FeaturePane::FeaturePane(QWidget* parent)
    : QWidget(parent),
      m_Model(new FeatureModel(this)),
      m_Themes(new QComboBox(this)),
      m_Count(new QLabel(this)),
      m_Open(new QPushButton(tr("Open data source…"), this)),
      m_Fill(new QPushButton(tr("Fill in"), this)),
      m_View(new QTableView(this)) {
  m_Themes->setAccessibleName(tr("Theme"));
  m_Themes->setMinimumContentsLength(16);
  auto* label = new QLabel(tr("&Theme:"), this);
  label->setBuddy(m_Themes);
  m_Open->setAutoDefault(false);
  m_Fill->setAutoDefault(false);
  m_Fill->setToolTip(tr("Opens the form for the chosen feature (Ctrl+R)"));
  m_View->setModel(m_Model);
  m_View->setAccessibleName(tr("Features"));
  m_View->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_View->setSelectionMode(QAbstractItemView::SingleSelection);
  m_View->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_View->setTabKeyNavigation(false);
  m_View->setAlternatingRowColors(true);
  m_View->setWordWrap(false);
  m_View->verticalHeader()->hide();
  m_View->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  m_View->horizontalHeader()->setHighlightSections(false);

  auto* head = new QHBoxLayout;
  head->setContentsMargins(4, 4, 4, 0);
  head->addWidget(label);
  head->addWidget(m_Themes);
  head->addWidget(m_Count);
  head->addStretch();
  head->addWidget(m_Open);
  head->addWidget(m_Fill);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(m_View, 1);

  connect(m_Open, &QPushButton::clicked, this, &FeaturePane::OpenWanted);
  connect(m_Fill, &QPushButton::clicked, this, &FeaturePane::FillWanted);
  connect(m_View, &QTableView::doubleClicked, this, &FeaturePane::FillWanted);
  connect(m_Themes, &QComboBox::activated, this, [this] { ShowTheme(m_Themes->currentText()); });
  ShowChoice();
}

void FeaturePane::Open(const QString& source) {
  m_Model->Open(source);
  m_Themes->clear();
  const QColor ink = palette().color(QPalette::WindowText);
  for (const ListedTheme& theme : m_Model->Themes())
    m_Themes->addItem(qt::KindSign(static_cast<int>(theme.featureType), ink, devicePixelRatioF()),
                      qt::ToQString(theme.name));
  if (m_Themes->count() > 0) ShowTheme(m_Themes->itemText(0));
  ShowChoice();
}

void FeaturePane::ShowTheme(const QString& theme) {
  const int at = m_Themes->findText(theme, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (at < 0 || (theme == m_Model->Theme() && m_Model->rowCount() > 0)) return;
  m_Themes->setCurrentIndex(at);
  m_Model->Show(theme);
  if (m_Model->rowCount() > 0) m_View->setCurrentIndex(m_Model->index(0, 0));
  ShowChoice();
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
  m_Model->Reload();
  ChooseFeature(id);
  ShowChoice();
}

void FeaturePane::ShowChoice() {
  const int count = m_Model->rowCount();
  m_Fill->setEnabled(count > 0);
  m_Themes->setEnabled(m_Themes->count() > 0);
  m_Count->setText(m_Themes->count() == 0 ? tr("No data source is open.")
                   : count == 1           ? tr("1 feature")
                                          : tr("%1 features").arg(count));
}

}  // namespace cardwright::workbench
