// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/OptionsDialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "cardwright/qt/selectors/ColorSwatch.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

// The literal texts are those that users of the program have always read, in its makers' language.
const QStringList& ElementTitles() {
  static const QStringList titles = {QStringLiteral("Testo normale"), QStringLiteral("Parole chiave"),
                                     QStringLiteral("Commenti"),      QStringLiteral("Costanti"),
                                     QStringLiteral("Stringhe"),      QStringLiteral("Valori numerici")};
  return titles;
}

constexpr int kFontSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 24};

}  // namespace

OptionsDialog::OptionsDialog(QWidget* parent, SyntaxOptions& options)
    : QDialog(parent),
      m_Options(options),
      m_Elements(new QListWidget(this)),
      m_FontName(new QComboBox(this)),
      m_FontSize(new QComboBox(this)),
      m_Bold(new QCheckBox(QStringLiteral("Grassetto"), this)),
      m_Browse(new QPushButton(QStringLiteral("..."), this)),
      m_Color(new ColorSwatch(this)),
      m_Sample(new QLabel(QStringLiteral("ABCXYZabcxyz"), this)) {
  setObjectName(QStringLiteral("frmProps"));
  setWindowTitle(QStringLiteral("Formato Editor"));
  m_Elements->addItems(ElementTitles());
  m_FontName->addItems(QFontDatabase::families());
  for (const int size : kFontSizes) m_FontSize->addItem(QString::number(size));
  NameParts();
  LayOutParts();
  ShowFont();
  connect(m_FontName, &QComboBox::currentTextChanged, this, &OptionsDialog::OnFontName);
  connect(m_FontSize, &QComboBox::currentTextChanged, this, &OptionsDialog::OnFontSize);
  connect(m_Bold, &QCheckBox::toggled, this, &OptionsDialog::OnBold);
  connect(m_Browse, &QPushButton::clicked, this, &OptionsDialog::OnBrowse);
  connect(m_Color, &QAbstractButton::clicked, this, &OptionsDialog::OnBrowse);
  connect(m_Elements, &QListWidget::currentRowChanged, this, &OptionsDialog::ShowElement);
  m_Elements->setCurrentRow(0);
}

void OptionsDialog::NameParts() {
  m_Elements->setObjectName(QStringLiteral("lstElements"));
  m_FontName->setObjectName(QStringLiteral("cboFontName"));
  m_FontSize->setObjectName(QStringLiteral("cboFontSize"));
  m_Bold->setObjectName(QStringLiteral("chkFontBold"));
  m_Browse->setObjectName(QStringLiteral("cmdBrowse"));
  m_Browse->setAccessibleName(tr("Choose the colour"));
  m_Color->setObjectName(QStringLiteral("lblColor"));
  m_Sample->setObjectName(QStringLiteral("lblEsempio"));
  m_Elements->setAccessibleName(tr("Elements of a script"));
}

QLayout* OptionsDialog::LayOutFont() {
  auto* const font = new QFormLayout;
  font->addRow(QStringLiteral("Tipo di carattere:"), m_FontName);
  font->addRow(QStringLiteral("Dimensione"), m_FontSize);
  return font;
}

QWidget* OptionsDialog::LayOutColors() {
  auto* const colors = new QGroupBox(QStringLiteral("Colori codice"), this);
  m_Color->setMinimumSize(m_Color->sizeHint().expandedTo({40, 20}));
  auto* const color = new QHBoxLayout;
  color->addWidget(m_Color, 1);
  color->addWidget(m_Browse);
  auto* const right = new QVBoxLayout;
  right->addLayout(color);
  right->addWidget(m_Bold);
  right->addStretch();
  auto* const both = new QHBoxLayout(colors);
  both->addWidget(m_Elements, 1);
  both->addLayout(right);
  return colors;
}

void OptionsDialog::LayOutParts() {
  auto* const sample = new QGroupBox(QStringLiteral("Esempio"), this);
  auto* const inSample = new QVBoxLayout(sample);
  m_Sample->setAlignment(Qt::AlignCenter);
  m_Sample->setAutoFillBackground(true);
  m_Sample->setBackgroundRole(QPalette::Base);
  inSample->addWidget(m_Sample);

  auto* const ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  auto* const cancel = new QPushButton(QStringLiteral("Annulla"), this);
  cancel->setObjectName(QStringLiteral("cmdCancel"));
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);

  auto* const all = new QVBoxLayout(this);
  all->addLayout(LayOutFont());
  all->addWidget(LayOutColors());
  all->addWidget(sample);
  all->addLayout(buttons);
}

// A name or a size that is not in its list leaves the list without a selection.
void OptionsDialog::ShowFont() {
  m_FontName->setCurrentIndex(m_FontName->findText(ToQString(m_Options.FontName()), Qt::MatchFixedString));
  m_FontSize->setCurrentIndex(m_FontSize->findText(QString::number(static_cast<int>(m_Options.FontSize()))));
}

void OptionsDialog::ShowElement() {
  const int row = m_Elements->currentRow();
  if (row < 0) return;
  const QSignalBlocker silence(m_Bold);
  m_Bold->setChecked(m_Options.Element(row).m_FontBold);
  m_Color->SetColor(m_Options.Element(row).m_Color);
  ShowSample();
}

void OptionsDialog::ShowSample() {
  const CElement& element = m_Options.Element(std::max(0, m_Elements->currentRow()));
  QFont font = m_Sample->font();
  font.setFamily(ToQString(m_Options.FontName()));
  font.setPointSizeF(m_Options.FontSize());
  font.setBold(element.m_FontBold);
  m_Sample->setFont(font);
  QPalette colors = m_Sample->palette();
  colors.setColor(QPalette::WindowText, ToQColor(element.m_Color, colors));
  m_Sample->setPalette(colors);
}

void OptionsDialog::OnFontName(const QString& name) {
  m_Options.SetFontName(FromQString(name));
  ShowSample();
}

void OptionsDialog::OnFontSize(const QString& size) {
  if (size.trimmed().isEmpty()) return;
  m_Options.SetFontSize(size.toDouble());
  ShowSample();
}

void OptionsDialog::OnBold(bool bold) {
  m_Options.SetBold(m_Elements->currentRow(), bold);
  ShowSample();
}

void OptionsDialog::OnBrowse() {
  const int row = m_Elements->currentRow();
  const QColor before = ToQColor(m_Options.Element(row).m_Color, palette());
  const QColor chosen = QColorDialog::getColor(before, this);
  if (!chosen.isValid() || chosen == before) return;
  m_Options.SetColor(row, FromQColor(chosen));
  ShowElement();
}

}  // namespace cardwright::qt
